#include "foundry/fonts/palette.h"

#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

TEST(ReadPalette, TakesThreeBytesAColor) {
    const auto palette = ReadPalette(PaletteBytes());
    ASSERT_TRUE(palette);
    EXPECT_EQ((*palette)[200].Red, 200);
    EXPECT_EQ((*palette)[200].Green, 55);
    EXPECT_EQ((*palette)[200].Blue, 100);
}

TEST(ReadPalette, LooksAtNothingBehindIt) {
    const auto palette = ReadPalette(PaletteBytes() + "more");
    ASSERT_TRUE(palette);
    EXPECT_EQ((*palette)[255].Red, 255);
}

TEST(ReadPalette, WantsAllOfIt) {
    EXPECT_FALSE(ReadPalette(PaletteBytes().substr(0, 767)));
    EXPECT_FALSE(ReadPalette(""));
}

}  // namespace
}  // namespace lv
