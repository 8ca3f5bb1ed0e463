#include "launch/environment_lines.h"

#include <gtest/gtest.h>

#include "tests/support/launch_input.h"

namespace lv {
namespace {

/// What a Voodoo 2 is told when every flag is off.
constexpr const char* kQuietVoodoo2 =
    "SET FX_GLIDE_SWAPINTERVAL=1\r\n"
    "SET FX_LOD_DITHER=0\r\n"
    "SET SSTV2_SWAPINTERVAL=1\r\n"
    "SET SSTV2_FORCE_TRILINEAR=0\r\n"
    "SET SSTV2_GRXCLK=90\r\n";

LaunchGame GameWith(Index cardClass) {
    LaunchGame game = QuakeLaunch().Game;
    game.CardClass = cardClass;
    return game;
}

ProfileSnapshot AllFlagsOff() {
    ProfileSnapshot profile;
    SetPlainFlag(profile, "FX_GLIDE_SWAPINTERVAL_VOODOO2", 0);
    Use(profile, "SSTV2_GRXCLK", "90", 2, 0);
    profile.ResolutionsPos_Content = Padded("640x480", "-width 640");
    profile.Q2_ResolutionsPos_Content = "800x600";
    return profile;
}

struct RowCase {
    const char* Tunable;
    const char* Voodoo;
    const char* Voodoo2;
};

void PrintTo(const RowCase& row, std::ostream* out) {
    *out << row.Tunable;
}

class EachCommonRow : public testing::TestWithParam<RowCase> {};

TEST_P(EachCommonRow, GivesItsLineForEachCard) {
    ProfileSnapshot profile = AllFlagsOff();
    Use(profile, GetParam().Tunable, "7");
    EXPECT_EQ(EnvironmentLines(GameWith(1), profile), GetParam().Voodoo);
    EXPECT_EQ(EnvironmentLines(GameWith(2), profile), Join(GetParam().Voodoo2, kQuietVoodoo2));
}

TEST_P(EachCommonRow, GivesNothingWithoutAnItem) {
    ProfileSnapshot profile = AllFlagsOff();
    Use(profile, GetParam().Tunable, "7", -1);
    EXPECT_EQ(EnvironmentLines(GameWith(1), profile), "");
    EXPECT_EQ(EnvironmentLines(GameWith(2), profile), kQuietVoodoo2);
}

TEST_P(EachCommonRow, GivesNothingWithoutItsFlag) {
    ProfileSnapshot profile = AllFlagsOff();
    Use(profile, GetParam().Tunable, "7", 0, 0);
    EXPECT_EQ(EnvironmentLines(GameWith(1), profile), "");
    EXPECT_EQ(EnvironmentLines(GameWith(2), profile), kQuietVoodoo2);
}

// clang-format off
const RowCase kRowCases[] = {
    {"FX_GLIDE_SWAPINTERVAL", "SET FX_GLIDE_SWAPINTERVAL=7\r\n", "SET FX_GLIDE_SWAPINTERVAL=7\r\n"},
    {"FX_GLIDE_NO_SPLASH", "SET FX_GLIDE_NO_SPLASH=1\r\n", "SET FX_GLIDE_NO_SPLASH=1\r\n"},
    {"SST_RGAMMA", "SET SST_RGAMMA=7\r\n", "SET SSTV2_RGAMMA=7\r\n"},
    {"SST_GGAMMA", "SET SST_GGAMMA=7\r\n", "SET SSTV2_GGAMMA=7\r\n"},
    {"SST_BGAMMA", "SET SST_BGAMMA=7\r\n", "SET SSTV2_BGAMMA=7\r\n"},
    {"SST_FASTMEM", "SET SST_FASTMEM=7\r\n", ""},
    {"SST_FASTPCIRD", "SET SST_FASTPCIRD=7\r\n", ""},
    {"SST_VIDEO_24BPP", "SET SST_VIDEO_24BPP=7\r\n", "SET SSTV2_VIDEO_24BPP=7\r\n"},
    {"SST_SWAP_EN_WAIT_ON_VSYNC", "SET SST_SWAP_EN_WAIT_ON_VSYNC=7\r\n", ""},
    {"SST_SCREENREFRESH", "SET SST_SCREENREFRESH=7\r\n", "SET SSTV2_REFRESH_640x480=7\r\n"},
    {"SST_GRXCLK", "SET SST_GRXCLK=7\r\n", ""},
    {"SST_VIDEO_NOCLEAR", "SET SST_VIDEO_NOCLEAR=7\r\n", ""},
    {"SST_VIDEO_FILTER_DISABLE", "SET SST_VIDEO_FILTER_DISABLE=7\r\n", "SET SSTV2_VIDEO_FILTER_DISABLE=7\r\n"},
    {"SST_VIDEO_FILTER_THRESHOLD", "SET SST_VIDEO_FILTER_THRESHOLD=7\r\n", "SET SSTV2_VIDEO_FILTER_THRESHOLD=7\r\n"},
    {"SST_TEXMAP_DISABLE", "SET SST_TEXMAP_DISABLE=7\r\n", "SET SSTV2_TEXMAP_DISABLE=7\r\n"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Environment, EachCommonRow, testing::ValuesIn(kRowCases),
                         [](const auto& info) { return Text(info.param.Tunable); });

/// The lines of a Voodoo 2 with this one flag on.
Text LinesWithFlag(TextView key) {
    ProfileSnapshot profile = AllFlagsOff();
    SetPlainFlag(profile, key, 1);
    return EnvironmentLines(GameWith(2), profile);
}

TEST(EnvironmentLines, TheVoodoo2SwapIntervalOfGlide) {
    EXPECT_EQ(LinesWithFlag("FX_GLIDE_SWAPINTERVAL_VOODOO2"),
              "SET FX_GLIDE_SWAPINTERVAL=0\r\nSET FX_LOD_DITHER=0\r\nSET SSTV2_SWAPINTERVAL=1\r\n"
              "SET SSTV2_FORCE_TRILINEAR=0\r\nSET SSTV2_GRXCLK=90\r\n");
}

TEST(EnvironmentLines, TheVoodoo2Dither) {
    EXPECT_EQ(LinesWithFlag("FX_LOD_DITHER"),
              "SET FX_GLIDE_SWAPINTERVAL=1\r\nSET FX_LOD_DITHER=1\r\nSET SSTV2_SWAPINTERVAL=1\r\n"
              "SET SSTV2_FORCE_TRILINEAR=0\r\nSET SSTV2_GRXCLK=90\r\n");
}

TEST(EnvironmentLines, TheVoodoo2TextureMemory) {
    EXPECT_EQ(LinesWithFlag("SSTV2_TMU_MEMSIZE"),
              "SET FX_GLIDE_SWAPINTERVAL=1\r\nSET FX_LOD_DITHER=0\r\nSET SSTV2_TMU_MEMSIZE=2\r\n"
              "SET SSTV2_SWAPINTERVAL=1\r\nSET SSTV2_FORCE_TRILINEAR=0\r\nSET SSTV2_GRXCLK=90\r\n");
}

TEST(EnvironmentLines, TheVoodoo2SwapIntervalOfDirect3d) {
    EXPECT_EQ(LinesWithFlag("SSTV2_SWAPINTERVAL"),
              "SET FX_GLIDE_SWAPINTERVAL=1\r\nSET FX_LOD_DITHER=0\r\nSET SSTV2_SWAPINTERVAL=0\r\n"
              "SET SSTV2_FORCE_TRILINEAR=0\r\nSET SSTV2_GRXCLK=90\r\n");
}

TEST(EnvironmentLines, TheVoodoo2Trilinear) {
    EXPECT_EQ(LinesWithFlag("SSTV2_FORCE_TRILINEAR"),
              "SET FX_GLIDE_SWAPINTERVAL=1\r\nSET FX_LOD_DITHER=0\r\nSET SSTV2_SWAPINTERVAL=1\r\n"
              "SET SSTV2_FORCE_TRILINEAR=1\r\nSET SSTV2_GRXCLK=90\r\n");
}

TEST(EnvironmentLines, TheVoodoo2SliDetection) {
    EXPECT_EQ(LinesWithFlag("SSTV2_SLIDETECT"),
              "SET FX_GLIDE_SWAPINTERVAL=1\r\nSET FX_LOD_DITHER=0\r\nSET SSTV2_SWAPINTERVAL=1\r\n"
              "SET SSTV2_FORCE_TRILINEAR=0\r\nSET SSTV2_SLIDETECT=0\r\nSET SSTV2_GRXCLK=90\r\n");
}

TEST(EnvironmentLines, TheVoodoo2Clock) {
    ProfileSnapshot profile = AllFlagsOff();
    Use(profile, "SSTV2_GRXCLK", "95", 7);
    EXPECT_EQ(EnvironmentLines(GameWith(2), profile),
              "SET FX_GLIDE_SWAPINTERVAL=1\r\nSET FX_LOD_DITHER=0\r\nSET SSTV2_SWAPINTERVAL=1\r\n"
              "SET SSTV2_FORCE_TRILINEAR=0\r\nSET SSTV2_GRXCLK=95\r\n");
}

TEST(EnvironmentLines, AVoodoo2WithAllFlagsOffIsStillToldFiveValues) {
    EXPECT_EQ(EnvironmentLines(GameWith(2), AllFlagsOff()), kQuietVoodoo2);
}

TEST(EnvironmentLines, AVoodooWithAllFlagsOffIsToldNothing) {
    EXPECT_EQ(EnvironmentLines(GameWith(1), AllFlagsOff()), "");
}

ProfileSnapshot Busy() {
    ProfileSnapshot profile = AllFlagsOff();
    for (const RowCase& row : kRowCases) {
        Use(profile, row.Tunable, "7");
    }
    return profile;
}

TEST(EnvironmentLines, NoneForASoftwareExecutableWhateverTheProfileHolds) {
    for (const Index card : {Index(0), Index(1), Index(2), Index(100)}) {
        LaunchGame game = GameWith(card);
        game.UsesAccelerator = false;
        EXPECT_EQ(EnvironmentLines(game, Busy()), "") << card;
    }
}

TEST(EnvironmentLines, NoneWithoutACardAndWithAnother) {
    EXPECT_EQ(EnvironmentLines(GameWith(0), Busy()), "");
    EXPECT_EQ(EnvironmentLines(GameWith(100), Busy()), "");
}

TEST(EnvironmentLines, StandInTheOrderOfTheTable) {
    EXPECT_EQ(EnvironmentLines(GameWith(1), Busy()),
              "SET FX_GLIDE_SWAPINTERVAL=7\r\nSET FX_GLIDE_NO_SPLASH=1\r\nSET SST_RGAMMA=7\r\nSET SST_GGAMMA=7\r\n"
              "SET SST_BGAMMA=7\r\nSET SST_FASTMEM=7\r\nSET SST_FASTPCIRD=7\r\nSET SST_VIDEO_24BPP=7\r\n"
              "SET SST_SWAP_EN_WAIT_ON_VSYNC=7\r\nSET SST_SCREENREFRESH=7\r\nSET SST_GRXCLK=7\r\n"
              "SET SST_VIDEO_NOCLEAR=7\r\nSET SST_VIDEO_FILTER_DISABLE=7\r\nSET SST_VIDEO_FILTER_THRESHOLD=7\r\n"
              "SET SST_TEXMAP_DISABLE=7\r\n");
}

TEST(EnvironmentLines, BothSwapIntervalsStandInTheBatchOfAVoodoo2TheLaterOneLast) {
    ProfileSnapshot profile;
    Use(profile, "FX_GLIDE_SWAPINTERVAL", "2");
    Use(profile, "SSTV2_GRXCLK", "90", 2);
    EXPECT_EQ(EnvironmentLines(GameWith(2), profile),
              "SET FX_GLIDE_SWAPINTERVAL=2\r\nSET FX_GLIDE_SWAPINTERVAL=0\r\nSET FX_LOD_DITHER=0\r\n"
              "SET SSTV2_SWAPINTERVAL=1\r\nSET SSTV2_FORCE_TRILINEAR=0\r\nSET SSTV2_GRXCLK=90\r\n");
}

TEST(EnvironmentLines, FiveTunablesNeverReachAVoodoo2) {
    const Text lines = EnvironmentLines(GameWith(2), Busy());
    for (const TextView never :
         {"SST_GRXCLK", "SST_FASTMEM", "SST_FASTPCIRD", "SST_SWAP_EN_WAIT_ON_VSYNC", "SST_VIDEO_NOCLEAR"}) {
        EXPECT_EQ(lines.find(never), Text::npos) << never;
    }
}

TEST(EnvironmentLines, TheVoodoo2RefreshRateIsPerResolutionOfTheGamesFamily) {
    ProfileSnapshot profile = AllFlagsOff();
    Use(profile, "SST_SCREENREFRESH", "75", 1);
    LaunchGame quake2 = Quake2Launch().Game;
    quake2.CardClass = 2;
    EXPECT_EQ(EnvironmentLines(GameWith(2), profile), Join("SET SSTV2_REFRESH_640x480=75\r\n", kQuietVoodoo2));
    EXPECT_EQ(EnvironmentLines(quake2, profile), Join("SET SSTV2_REFRESH_800x600=75\r\n", kQuietVoodoo2));
}

TEST(EnvironmentLines, NoLineGoesOutWithoutAWholeName) {
    for (const char* resolution : {"", "    ", "640=480", "640\r\n480"}) {
        ProfileSnapshot profile = AllFlagsOff();
        Use(profile, "SST_SCREENREFRESH", "60");
        profile.ResolutionsPos_Content = resolution;
        EXPECT_EQ(EnvironmentLines(GameWith(2), profile), kQuietVoodoo2) << resolution;
        EXPECT_EQ(EnvironmentLines(GameWith(1), profile), "SET SST_SCREENREFRESH=60\r\n") << resolution;
    }
}

TEST(EnvironmentLines, TheRefreshRatesResolutionIsItsFirstTwentyCharactersTrimmed) {
    ProfileSnapshot profile = AllFlagsOff();
    Use(profile, "SST_SCREENREFRESH", "75", 1);
    profile.ResolutionsPos_Content = Padded("  640x480 of my own making", "-width 640");
    EXPECT_EQ(EnvironmentLines(GameWith(2), profile),
              Join("SET SSTV2_REFRESH_640x480 of my own=75\r\n", kQuietVoodoo2));
}

TEST(EnvironmentLines, TheVoodoo2ClockNeedsNoPlaceInItsList) {
    ProfileSnapshot profile = AllFlagsOff();
    Use(profile, "SSTV2_GRXCLK", "95", -1);
    EXPECT_TRUE(EnvironmentLines(GameWith(2), profile).ends_with("SET SSTV2_GRXCLK=95\r\n"));
}

}  // namespace
}  // namespace lv
