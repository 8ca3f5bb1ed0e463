#include "foundry/fonts/raw_font.h"

#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

TEST(ReadQuakeFont, HasSixteenLettersInARow) {
    const auto map = ReadQuakeFont(LetterPixels(16, 16), TestPalette());
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 1), (Pixel{1, 254, 0, 255}));
    EXPECT_EQ(PixelOf(*map, 65), (Pixel{65, 190, 32, 255}));
    EXPECT_EQ(PixelOf(*map, 255), (Pixel{255, 0, 127, 255}));
}

TEST(ReadQuakeFont, IsTransparentAtIndexZero) {
    Text bytes = LetterPixels(16, 16);
    bytes[8 * 128 + 8] = 0;  // the left top of letter 17
    const auto map = ReadQuakeFont(bytes, TestPalette());
    ASSERT_TRUE(map);
    EXPECT_TRUE(IsEmpty(*map, 0));
    EXPECT_EQ(PixelOf(*map, 17, 1, 1)[3], 0);
    EXPECT_EQ(PixelOf(*map, 17, 2, 1)[3], 255);
}

TEST(ReadQuakeFont, RefusesAnyOtherSize) {
    const Text bytes = LetterPixels(16, 16);
    EXPECT_FALSE(ReadQuakeFont(bytes.substr(1), TestPalette()));
    EXPECT_FALSE(ReadQuakeFont(bytes + " ", TestPalette()));
    EXPECT_FALSE(ReadQuakeFont("", TestPalette()));
}

TEST(ReadHexen2Font, TakesTheFirstHalfOfItsLetters) {
    const auto map = ReadHexen2Font(LetterPixels(32, 16), TestPalette());
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 31)[0], 31);
    EXPECT_EQ(PixelOf(*map, 32)[0], 32);
    EXPECT_EQ(PixelOf(*map, 233)[0], 233);
    EXPECT_TRUE(IsEmpty(*map, 0));
}

TEST(ReadHexen2Font, DoesNotShowTheSecondColor) {
    Text bytes = LetterPixels(32, 16);
    std::fill(bytes.begin() + 256 * 64, bytes.end(), '\x09');
    const auto map = ReadHexen2Font(bytes, TestPalette());
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 255)[0], 255);
}

TEST(ReadHexen2Font, RefusesAnyOtherSize) {
    const Text bytes = LetterPixels(32, 16);
    EXPECT_FALSE(ReadHexen2Font(bytes.substr(1), TestPalette()));
    EXPECT_FALSE(ReadHexen2Font(bytes + " ", TestPalette()));
    EXPECT_FALSE(ReadHexen2Font(LetterPixels(16, 16), TestPalette()));
}

TEST(ReadQuakeFont, ReadsNothingBesideDamagedBytes) {
    const Palette palette = TestPalette();
    const Text bytes = LetterPixels(16, 16);
    for (std::size_t length = 0; length < bytes.size(); length += 101) {
        const std::vector<char> cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_FALSE(ReadQuakeFont(TextView(cut.data(), cut.size()), palette));
        EXPECT_FALSE(ReadHexen2Font(TextView(cut.data(), cut.size()), palette));
    }
}

}  // namespace
}  // namespace lv
