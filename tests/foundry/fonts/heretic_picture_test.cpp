#include "foundry/fonts/heretic_picture.h"

#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

/// One pixel a letter: (code, 1, 2, opacity).
Text SmallPixels32(char opacity = '\x80') {
    Text pixels;
    for (int code = 0; code < 256; ++code) {
        pixels += {static_cast<char>(code), 1, 2, opacity};
    }
    return pixels;
}

Text SmallM32() {
    return M32File(16, 16, SmallPixels32());
}

Text SmallM8() {
    return M8File(16, 16, LetterPixels(16, 16, 1));
}

TEST(ReadHereticFont, TakesColorAndOpacityOfAnM32) {
    const auto map = ReadHereticFont(SmallM32());
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 0), (Pixel{0, 1, 2, 128}));
    EXPECT_EQ(PixelOf(*map, 200), (Pixel{200, 1, 2, 128}));
}

TEST(ReadHereticFont, TakesAnM8InItsOwnPaletteWithoutTransparency) {
    const auto map = ReadHereticFont(SmallM8());
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 0), (Pixel{0, 255, 0, 255}));
    EXPECT_EQ(PixelOf(*map, 200), (Pixel{200, 55, 100, 255}));
    EXPECT_EQ(PixelOf(*map, 255)[3], 255);
}

TEST(ReadHereticFont, TakesCellsOfAnySize) {
    const auto map = ReadHereticFont(M8File(320, 320, LetterPixels(16, 16, 20)));
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 33, 15, 15)[0], 33);
    EXPECT_EQ(PixelOf(*map, 34, 0, 0)[0], 34);
}

TEST(ReadHereticFont, FindsThePixelsByTheirOffset) {
    const auto map = ReadHereticFont(M32File(16, 16, Zeros(10) + SmallPixels32(), 978));
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 7), (Pixel{7, 1, 2, 128}));
}

TEST(ReadHereticFont, RefusesPixelsThatLieOutside) {
    EXPECT_FALSE(ReadHereticFont(M32File(16, 16, SmallPixels32(), 969)));
    EXPECT_FALSE(ReadHereticFont(M32File(16, 17, SmallPixels32())));
    EXPECT_FALSE(ReadHereticFont(M32File(16, 16, SmallPixels32(), 0xFFFFFFFF)));
    EXPECT_FALSE(ReadHereticFont(M8File(16, 16, Zeros(255))));
}

TEST(ReadHereticFont, RefusesAPictureWithoutItsFirstLevel) {
    EXPECT_FALSE(ReadHereticFont(M32File(16, 16, SmallPixels32(), 0)));
    EXPECT_FALSE(ReadHereticFont(M8File(16, 16, Zeros(256), 0)));
}

TEST(ReadHereticFont, RefusesPixelsWithinTheHeader) {
    EXPECT_FALSE(ReadHereticFont(M32File(16, 16, SmallPixels32(), 967)));
    EXPECT_FALSE(ReadHereticFont(M8File(16, 16, Zeros(256), 1039)));
}

TEST(ReadHereticFont, RefusesMeasuresThatAreNone) {
    EXPECT_FALSE(ReadHereticFont(M32File(0, 0, SmallPixels32())));
    EXPECT_FALSE(ReadHereticFont(M32File(0x10000, 0x10000, SmallPixels32())));
    EXPECT_FALSE(ReadHereticFont(M32File(0xFFFFFFFF, 0xFFFFFFFF, SmallPixels32())));
    EXPECT_FALSE(ReadHereticFont(M32File(1025, 16, Zeros(1025 * 16 * 4))));
    EXPECT_FALSE(ReadHereticFont(M32File(8, 32, SmallPixels32())));
}

TEST(ReadHereticFont, RefusesOtherVersions) {
    for (const char version : std::vector<char>{0, 1, 3, 5}) {
        Text file = SmallM32();
        file[0] = version;
        EXPECT_FALSE(ReadHereticFont(file)) << int{version};
    }
    EXPECT_FALSE(ReadHereticFont(""));
    EXPECT_FALSE(ReadHereticFont(Bytes32(4)));
}

TEST(ReadHereticFont, IsWholeOrNoneHoweverAnM32IsDamaged) {
    ForEachDamage(SmallM32(), 260 + 1024, [](TextView bytes) { ExpectWholeOrNone(ReadHereticFont(bytes)); });
}

TEST(ReadHereticFont, IsWholeOrNoneHoweverAnM8IsDamaged) {
    ForEachDamage(SmallM8(), 812 + 256, [](TextView bytes) { ExpectWholeOrNone(ReadHereticFont(bytes)); });
}

}  // namespace
}  // namespace lv
