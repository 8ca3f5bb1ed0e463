#include "foundry/fonts/qfont.h"

#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

TEST(ReadQfont, ShowsEachLetterInTheMiddleOfItsCell) {
    const auto map = ReadQfont(QfontLump(10, 12, 11));
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 65, 2, 0)[3], 0);
    EXPECT_EQ(PixelOf(*map, 65, 3, 0), (Pixel{65, 190, 32, 255}));
    EXPECT_EQ(PixelOf(*map, 65, 12, 11), (Pixel{65, 190, 32, 255}));
    EXPECT_EQ(PixelOf(*map, 65, 13, 0)[3], 0);
    EXPECT_EQ(PixelOf(*map, 65, 8, 12)[3], 0);
}

TEST(ReadQfont, DoublesSmallLetters) {
    const auto map = ReadQfont(QfontLump(8, 8, 8));
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 65, 0, 0)[0], 65);
    EXPECT_EQ(PixelOf(*map, 65, 15, 15)[0], 65);
}

TEST(ReadQfont, ShrinksLargeLetters) {
    const auto map = ReadQfont(QfontLump(20, 32, 22));
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 65, 2, 0)[3], 0);
    EXPECT_EQ(PixelOf(*map, 65, 3, 15)[0], 65);
    EXPECT_EQ(PixelOf(*map, 65, 12, 0)[0], 65);
    EXPECT_EQ(PixelOf(*map, 65, 13, 0)[3], 0);
}

TEST(ReadQfont, IsTransparentAtIndex255) {
    const auto map = ReadQfont(QfontLump(8, 8, 8));
    ASSERT_TRUE(map);
    EXPECT_TRUE(IsEmpty(*map, 255));
    EXPECT_FALSE(IsEmpty(*map, 254));
}

TEST(ReadQfont, TakesTheSheetsWidthFromTheHeaderWhereTheSizeAgrees) {
    // 32 pixels wide, one row of 12: letter 65 is its right half.
    Text letters = Zeros(1024);
    letters.replace(65 * 4, 4, Bytes16(16) + Bytes16(16));
    Text pixels;
    for (int y = 0; y < 12; ++y) {
        pixels += Text(16, '\x01') + Text(16, '\x02');
    }
    const Text lump = Bytes32(2) + Bytes32(12) + Bytes32(1) + Bytes32(12) + letters + pixels + Bytes16(256) +
                      PaletteBytes() + Zeros(64);
    const auto map = ReadQfont(lump);
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 65, 0, 11)[0], 2);
    EXPECT_EQ(PixelOf(*map, 65, 15, 0)[0], 2);
    EXPECT_TRUE(IsEmpty(*map, 64));
    EXPECT_FALSE(ReadQfont(lump + "x"));
}

TEST(ReadQfont, TakesStartsBeyond32767) {
    Text lump = QfontLump(8, 8, 20);
    lump.replace(16 + 65 * 4, 4, Bytes16(40000) + Bytes16(8));
    std::fill_n(lump.begin() + 1040 + 40000, 8, '\x07');
    const auto map = ReadQfont(lump);
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 65, 0, 0)[0], 7);
}

TEST(ReadQfont, LeavesOutLettersBesideTheSheet) {
    Text lump = QfontLump(8, 8, 8);
    lump.replace(16 + 65 * 4, 4, Bytes16(65535) + Bytes16(8));
    lump.replace(16 + 66 * 4, 4, Bytes16(0) + Bytes16(65535));
    const auto map = ReadQfont(lump);
    ASSERT_TRUE(map);
    EXPECT_TRUE(IsEmpty(*map, 65));
    EXPECT_TRUE(IsEmpty(*map, 66));
    EXPECT_FALSE(IsEmpty(*map, 67));
}

TEST(ReadQfont, TakesEitherCountOfColors) {
    EXPECT_TRUE(ReadQfont(QfontLump(8, 8, 8, 256)));
    EXPECT_TRUE(ReadQfont(QfontLump(8, 8, 8, 768)));
    EXPECT_FALSE(ReadQfont(QfontLump(8, 8, 8, 255)));
}

TEST(ReadQfont, RefusesASheetThatLiesOutside) {
    Text lump = QfontLump(8, 8, 8);
    EXPECT_FALSE(ReadQfont(lump.substr(0, lump.size() - 1)));
    lump.replace(4, 4, Bytes32(65));
    EXPECT_FALSE(ReadQfont(lump));
    lump.replace(4, 4, Bytes32(0xFFFFFFFF));
    EXPECT_FALSE(ReadQfont(lump));
}

TEST(ReadQfont, RefusesLettersWithoutAHeight) {
    for (const std::uint32_t height : {0U, 257U, 0xFFFFFFFFU}) {
        Text lump = QfontLump(8, 8, 8);
        lump.replace(12, 4, Bytes32(height));
        EXPECT_FALSE(ReadQfont(lump)) << height;
    }
}

TEST(ReadQfont, RefusesOtherBytes) {
    EXPECT_FALSE(ReadQfont(""));
    EXPECT_FALSE(ReadQfont(Zeros(1040)));
    EXPECT_FALSE(ReadQfont(Zeros(4000)));
}

TEST(ReadQfont, IsWholeOrNoneHoweverItIsDamaged) {
    const Text lump = QfontLump(8, 8, 1);
    ForEachDamage(lump, lump.size() - 16, [](TextView bytes) { ExpectWholeOrNone(ReadQfont(bytes)); });
}

}  // namespace
}  // namespace lv
