#include "foundry/fonts/letter_sheet.h"

#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

TEST(ColorSheet, ShowsIndexesInThePalettesColors) {
    const auto sheet = ColorSheet("\x07\x09", 2, 1, TestPalette(), 9);
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->Pixels, (std::vector<std::uint8_t>{7, 248, 3, 255, 9, 246, 4, 0}));
}

TEST(ColorSheet, CanDoWithoutTransparency) {
    const auto sheet = ColorSheet(Text(1, '\xFF'), 1, 1, TestPalette(), kNoTransparentColor);
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->Pixels[3], 255);
}

TEST(ColorSheet, WantsAllItsPixels) {
    EXPECT_FALSE(ColorSheet("123", 2, 2, TestPalette(), 0));
    EXPECT_TRUE(ColorSheet("1234", 2, 2, TestPalette(), 0));
}

TEST(ColorSheet, IsNotEmptyNorHuge) {
    EXPECT_FALSE(ColorSheet("", 0, 0, TestPalette(), 0));
    EXPECT_FALSE(ColorSheet("1", 1, 0, TestPalette(), 0));
    EXPECT_FALSE(ColorSheet(Zeros(1025), 1025, 1, TestPalette(), 0));
    EXPECT_TRUE(ColorSheet(Zeros(1024), 1024, 1, TestPalette(), 0));
    EXPECT_FALSE(ColorSheet("1", 0x80000000, 0x80000000, TestPalette(), 0));
}

TEST(MapOfSheet, HasFifteenLettersInARow) {
    const auto sheet = ColorSheet(LetterPixels(16, 16, 1), 16, 16, TestPalette(), kNoTransparentColor);
    const auto map = MapOfSheet(*sheet, 16, 16);
    ASSERT_TRUE(map);
    EXPECT_EQ(map->Pixel(14 * 16, 0)[0], 14);
    EXPECT_EQ(map->Pixel(0, 16)[0], 15);
    EXPECT_EQ(map->Pixel(0, 17 * 16)[0], 255);
    EXPECT_EQ(map->Pixel(16, 17 * 16)[3], 0);
}

TEST(MapOfSheet, StretchesEachLetterToItsCell) {
    // Letters of 2 by 2: the first has the colours 1 2 / 3 4.
    Text pixels = Zeros(32 * 32);
    pixels[0] = 1;
    pixels[1] = 2;
    pixels[32] = 3;
    pixels[33] = 4;
    const auto map = MapOfSheet(*ColorSheet(pixels, 32, 32, TestPalette(), 0), 16, 16);
    ASSERT_TRUE(map);
    EXPECT_EQ(map->Pixel(7, 7)[0], 1);
    EXPECT_EQ(map->Pixel(8, 7)[0], 2);
    EXPECT_EQ(map->Pixel(7, 8)[0], 3);
    EXPECT_EQ(map->Pixel(15, 15)[0], 4);
    EXPECT_EQ(map->Pixel(16, 0)[3], 0);
}

TEST(MapOfSheet, ShrinksLargeLetters) {
    const auto sheet = ColorSheet(LetterPixels(16, 16, 64), 1024, 1024, TestPalette(), kNoTransparentColor);
    const auto map = MapOfSheet(*sheet, 16, 16);
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 77, 0, 0)[0], 77);
    EXPECT_EQ(PixelOf(*map, 77, 15, 15)[0], 77);
}

TEST(MapOfSheet, LeavesOutPixelsThatAreOfNoLetter) {
    const auto sheet = ColorSheet(LetterPixels(17, 16, 1), 17, 16, TestPalette(), kNoTransparentColor);
    const auto map = MapOfSheet(*sheet, 16, 16);
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 15)[0], 15);
    EXPECT_EQ(PixelOf(*map, 16)[0], 17);
}

TEST(MapOfSheet, WantsAPixelForEachLetter) {
    EXPECT_FALSE(MapOfSheet(*ColorSheet(Zeros(15 * 16), 15, 16, TestPalette(), 0), 16, 16));
    EXPECT_FALSE(MapOfSheet(*ColorSheet(Zeros(16 * 15), 16, 15, TestPalette(), 0), 16, 16));
}

TEST(DrawCell, LeavesOutWhatLiesBesideTheSheet) {
    const auto sheet = ColorSheet(Text(4, '\x05'), 2, 2, TestPalette(), 0);
    FontMap map;
    DrawCell(map, 0, *sheet, {1, 1, 16, 16});
    EXPECT_EQ(map.Pixel(0, 0)[0], 5);
    EXPECT_EQ(map.Pixel(1, 0)[3], 0);
    DrawCell(map, 1, *sheet, {-40, 3, 16, 16});
    EXPECT_TRUE(IsEmpty(map, 1));
}

TEST(DrawCell, PutsANarrowLetterInTheMiddle) {
    const auto sheet = ColorSheet(Text(4, '\x05'), 2, 2, TestPalette(), 0);
    FontMap map;
    DrawCell(map, 2, *sheet, {0, 0, 2, 2}, 4, 6);
    EXPECT_EQ(PixelOf(map, 2, 5, 0)[3], 0);
    EXPECT_EQ(PixelOf(map, 2, 6, 0)[3], 255);
    EXPECT_EQ(PixelOf(map, 2, 9, 5)[3], 255);
    EXPECT_EQ(PixelOf(map, 2, 10, 0)[3], 0);
    EXPECT_EQ(PixelOf(map, 2, 6, 6)[3], 0);
}

}  // namespace
}  // namespace lv
