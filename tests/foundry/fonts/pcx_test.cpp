#include "foundry/fonts/pcx.h"

#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

Text SmallPcx() {
    return PcxFile(16, 16, 16, PcxRuns(LetterPixels(16, 16, 1)));
}

TEST(ReadPcxFont, ShowsThePicturesCells) {
    const auto map = ReadPcxFont(PcxFile(128, 128, 128, PcxRuns(LetterPixels(16, 16))), TestPalette());
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 0), (Pixel{0, 255, 0, 255}));
    EXPECT_EQ(PixelOf(*map, 65), (Pixel{65, 190, 32, 255}));
    EXPECT_EQ(PixelOf(*map, 254), (Pixel{254, 1, 127, 255}));
}

TEST(ReadPcxFont, IsTransparentAtIndex255AndNotAtZero) {
    const auto map = ReadPcxFont(SmallPcx(), TestPalette());
    ASSERT_TRUE(map);
    EXPECT_TRUE(IsEmpty(*map, 255));
    EXPECT_EQ(PixelOf(*map, 0)[3], 255);
}

TEST(ReadPcxFont, TakesSingleBytesAndRuns) {
    Text data;
    for (int y = 0; y < 16; ++y) {
        data += "\x41\xC7";
        data += "\x42\x43\xC7";
        data += "\x44";
    }
    const auto map = ReadPcxFont(PcxFile(16, 16, 16, data), TestPalette());
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 0)[0], 0x41);
    EXPECT_EQ(PixelOf(*map, 1)[0], 0x42);
    EXPECT_EQ(PixelOf(*map, 7)[0], 0x42);
    EXPECT_EQ(PixelOf(*map, 8)[0], 0x43);
    EXPECT_EQ(PixelOf(*map, 15)[0], 0x44);
}

TEST(ReadPcxFont, DropsWhatPadsALine) {
    Text data;
    for (int y = 0; y < 16; ++y) {
        data += "\xD0";
        data += static_cast<char>(y + 1);
        data += "\xC2\x63";
    }
    const auto map = ReadPcxFont(PcxFile(16, 16, 18, data), TestPalette());
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 0)[0], 1);
    EXPECT_EQ(PixelOf(*map, 255)[0], 16);
}

TEST(ReadPcxFont, EndsARunWithItsLine) {
    Text data;
    for (int y = 0; y < 16; ++y) {
        data += "\xFF";  // 63 pixels
        data += static_cast<char>(y + 1);
    }
    const auto map = ReadPcxFont(PcxFile(16, 16, 16, data), TestPalette());
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 15)[0], 1);
    EXPECT_EQ(PixelOf(*map, 16)[0], 2);
    EXPECT_EQ(PixelOf(*map, 240)[0], 16);
}

TEST(ReadPcxFont, PassesOverRunsOfNothing) {
    Text data;
    for (int y = 0; y < 16; ++y) {
        data += "\xC0\x07\xD0\x05";
    }
    const auto map = ReadPcxFont(PcxFile(16, 16, 16, data), TestPalette());
    ASSERT_TRUE(map);
    EXPECT_EQ(PixelOf(*map, 100)[0], 5);
}

TEST(ReadPcxFont, WantsAllLines) {
    const Text data = PcxRuns(LetterPixels(16, 16, 1));
    EXPECT_TRUE(ReadPcxFont(PcxFile(16, 16, 16, data), TestPalette()));
    EXPECT_FALSE(ReadPcxFont(PcxFile(16, 16, 16, data.substr(0, data.size() - 3)), TestPalette()));
    EXPECT_FALSE(ReadPcxFont(PcxFile(16, 16, 16, ""), TestPalette()));
}

TEST(ReadPcxFont, RefusesARunThatTheFileEndsIn) {
    const Text data = PcxRuns(LetterPixels(16, 16, 1));
    Text file = PcxFile(16, 16, 16, data.substr(0, data.size() - 1));
    file.erase(file.size() - 769, 1);  // the byte in front of the palette
    EXPECT_FALSE(ReadPcxFont(file, TestPalette()));
}

TEST(ReadPcxFont, RefusesPicturesBeyondTheGamesLimits) {
    Text line640;
    for (int i = 0; i < 11; ++i) {
        line640 += "\xFF\x05";
    }
    Text wide;
    for (int y = 0; y < 16; ++y) {
        wide += line640;
    }
    EXPECT_TRUE(ReadPcxFont(PcxFile(640, 16, 640, wide), TestPalette()));
    EXPECT_FALSE(ReadPcxFont(PcxFile(641, 16, 641, wide), TestPalette()));
    Text high;
    for (int y = 0; y < 481; ++y) {
        high += "\xD0\x05";
    }
    EXPECT_TRUE(ReadPcxFont(PcxFile(16, 480, 16, high), TestPalette()));
    EXPECT_FALSE(ReadPcxFont(PcxFile(16, 481, 16, high), TestPalette()));
    EXPECT_FALSE(ReadPcxFont(PcxFile(65536, 65536, 65535, wide), TestPalette()));
}

TEST(ReadPcxFont, RefusesLinesShorterThanThePicture) {
    EXPECT_FALSE(ReadPcxFont(PcxFile(16, 16, 15, PcxRuns(Zeros(256))), TestPalette()));
    EXPECT_FALSE(ReadPcxFont(PcxFile(16, 16, 65535, PcxRuns(Zeros(256))), TestPalette()));
}

TEST(ReadPcxFont, RefusesOtherFiles) {
    for (const std::size_t at : {0, 1, 2, 3, 65}) {
        Text file = SmallPcx();
        file[at] = static_cast<char>(file[at] + 1);
        EXPECT_FALSE(ReadPcxFont(file, TestPalette())) << at;
        EXPECT_FALSE(ReadPcxPalette(file)) << at;
    }
    EXPECT_FALSE(ReadPcxFont("", TestPalette()));
    EXPECT_FALSE(ReadPcxFont(SmallPcx().substr(0, 895), TestPalette()));
}

TEST(ReadPcxFont, RefusesAPictureThatIsTooSmallForLetters) {
    EXPECT_FALSE(ReadPcxFont(PcxFile(8, 8, 8, PcxRuns(Zeros(64))), TestPalette()));
}

TEST(ReadPcxPalette, IsTheEndOfTheFile) {
    const auto palette = ReadPcxPalette(SmallPcx());
    ASSERT_TRUE(palette);
    EXPECT_EQ((*palette)[9].Red, 9);
    EXPECT_EQ((*palette)[9].Green, 246);
}

TEST(ReadPcxPalette, DoesNotLookAtTheByteBeforeIt) {
    Text file = SmallPcx();
    file[file.size() - 769] = 'x';
    EXPECT_TRUE(ReadPcxPalette(file));
}

TEST(ReadPcxFont, IsWholeOrNoneHoweverTheFileIsDamaged) {
    const Palette palette = TestPalette();
    ForEachDamage(SmallPcx(), 768, [&](TextView bytes) {
        ExpectWholeOrNone(ReadPcxFont(bytes, palette));
        ReadPcxPalette(bytes);
    });
}

}  // namespace
}  // namespace lv
