#include "video/profile_settings.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

Text Joined(std::span<const TextView> items, TextView separator = " ") {
    Text joined;
    for (const TextView item : items) {
        joined.append(joined.empty() ? TextView() : separator).append(item);
    }
    return joined;
}

struct TunableCase {
    const char* Stem;
    const char* SettingKey;
    const char* ContentKey;
    const char* Items;
    Index DefaultIndex;
    Index DefaultFlag;
};

void PrintTo(const TunableCase& expected, std::ostream* out) {
    *out << expected.Stem;
}

constexpr const char* kTenths = "0 .1 .2 .3 .4 .5 .6 .7 .8 .9 1";
constexpr const char* kGamma =
    "1.3 1.4 1.5 1.6 1.7 1.8 1.9 2.0 2.1 2.2 2.3 2.4 2.5 2.6 2.7 2.8 2.9 3.0 3.1 3.2 3.3 3.4 3.5 3.6 3.7 3.8 3.9 4.0";

// clang-format off
const TunableCase kTunableCases[] = {
    {"Shadows", "ShadowSetting", "ShadowSetting_Content", "0 1", 0, 0},
    {"Mirrors", "MirrorSetting", "MirrorSetting_Content", kTenths, 10, 0},
    {"WaterAlpha", "WaterAlphaSetting", "WaterAlphaSetting_Content", kTenths, 10, 0},
    {"GL_ROUND_DOWN", "GL_ROUND_DOWN_Setting", "GL_ROUND_DOWN_Setting_Content", "0 1", 1, 0},
    {"GL_PICMIP", "GL_PICMIP_Setting", "GL_PICMIP_Setting_Content", "0 1 2", 0, 0},
    {"D_MipCap", "D_MipCap_Setting", "D_MipCap_Setting_Content", "0 1 2 3", 0, 0},
    {"GL_PLAYERMIP", "GL_PLAYERMIP_Setting", "GL_PLAYERMIP_Setting_Content", "0 1 2 3", 0, 0},
    {"gl_ztrick", "gl_ztrick_Setting", "gl_ztrick_Setting_Content", "0 1", 0, 0},
    {"gl_keeptjunctions", "gl_keeptjunctions_Setting", "gl_keeptjunctions_Setting_Content", "0 1", 0, 0},
    {"gl_polyblend", "gl_polyblend_Setting", "gl_polyblend_Setting_Content", "0 1", 0, 0},
    {"GL_TEXTUREMODE", "GL_TEXTUREMODE_Setting", "GL_TEXTUREMODE_Setting_Content",
     "GL_NEAREST GL_NEAREST_MIPMAP_NEAREST GL_LINEAR_MIPMAP_NEAREST GL_LINEAR_MIPMAP_LINEAR", 2, 0},
    {"GL_FINISH", "GL_FINISH_Setting", "GL_FINISH_Setting_Content", "0 1", 1, 0},
    {"GL_FLASHBLEND", "GL_FLASHBLEND_Setting", "GL_FLASHBLEND_Setting_Content", "0 1", 1, 0},
    {"FX_GLIDE_SWAPINTERVAL", "FX_GLIDE_SWAPINTERVAL_Setting", "FX_GLIDE_SWAPINTERVAL_Setting_Content", "0 1 2", 1, 0},
    {"FX_GLIDE_NO_SPLASH", "FX_GLIDE_NO_SPLASH_Setting", "FX_GLIDE_NO_SPLASH_Setting_Content", "0 1", 0, 0},
    {"SST_RGAMMA", "SST_RGAMMA_Setting", "SST_RGAMMA_Setting_Content", kGamma, 4, 0},
    {"SST_GGAMMA", "SST_GGAMMA_Setting", "SST_GGAMMA_Setting_Content", kGamma, 4, 0},
    {"SST_BGAMMA", "SST_BGAMMA_Setting", "SST_BGAMMA_Setting_Content", kGamma, 4, 0},
    {"SST_FASTMEM", "SST_FASTMEM_Setting", "SST_FASTMEM_Setting_Content", "0 1", 0, 0},
    {"SST_FASTPCIRD", "SST_FASTPCIRD_Setting", "SST_FASTPCIRD_Setting_Content", "0 1", 0, 0},
    {"SST_VIDEO_24BPP", "SST_VIDEO_24BPP_Setting", "SST_VIDEO_24BPP_Setting_Content", "0 1", 0, 0},
    {"SST_VIDEO_NOCLEAR", "SST_VIDEO_NOCLEAR_Setting", "SST_VIDEO_NOCLEAR_Setting_Content", "0 1", 0, 0},
    {"SST_VIDEO_FILTER_DISABLE", "SST_VIDEO_FILTER_DISABLE_Setting", "SST_VIDEO_FILTER_DISABLE_Setting_Content",
     "0 1", 0, 0},
    {"SST_VIDEO_FILTER_THRESHOLD", "SST_VIDEO_FILTER_THRESHOLD_Setting", "SST_VIDEO_FILTER_THRESHOLD_Setting_Content",
     "0 1", 0, 0},
    {"SST_SWAP_EN_WAIT_ON_VSYNC", "SST_SWAP_EN_WAIT_ON_VSYNC_Setting", "SST_SWAP_EN_WAIT_ON_VSYNC_Setting_Content",
     "0 1", 1, 0},
    {"SST_SCREENREFRESH", "SST_SCREENREFRESH_Setting", "SST_SCREENREFRESH_Setting_Content", "60 75 85 120", 0, 0},
    {"SST_GRXCLK", "SST_GRXCLK_Setting", "SST_GRXCLK_Setting_Content", "50 53 55 57 60 63", 0, 0},
    {"SSTV2_GRXCLK", "SSTV2_GRXCLK_Setting", "SSTV2_GRXCLK_Setting_Content",
     "80 85 90 91 92 93 94 95 96 97 98 99 100", 2, 1},
    {"UnrealBrightness", "UnrealBrightnessSetting", "UnrealBrightnessSetting_Content",
     "0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1.0 10", 0, 0},
    {"UnrealMipFactor", "UnrealMipFactorSetting", "UnrealMipFactorSetting_Content",
     "0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1.0 1.1 1.2 1.3 1.4 1.5 1.6 1.7 1.8 1.9 2.0", 0, 0},
    {"UnrealScaleXYZ", "UnrealScaleXYZSetting", "UnrealScaleXYZSetting_Content", "500 1000 1500", 0, 0},
    {"UnrealScaleRUV", "UnrealScaleRUVSetting", "UnrealScaleRUVSetting_Content", "1000 2000 3000", 0, 0},
    {"UnrealUseDirectDraw", "UnrealUseDirectDrawSetting", "UnrealUseDirectDrawSetting_Content", "True False", 0, 0},
    {"UnrealCurvedSurfaces", "UnrealCurvedSurfacesSetting", "UnrealCurvedSurfacesSetting_Content", "True False", 0, 0},
    {"UnrealLowDetailTextures", "UnrealLowDetailTexturesSetting", "UnrealLowDetailTexturesSetting_Content",
     "True False", 0, 0},
    {"UnrealScreenFlashes", "UnrealScreenFlashesSetting", "UnrealScreenFlashesSetting_Content", "True False", 0, 0},
    {"UnrealNoLighting", "UnrealNoLightingSetting", "UnrealNoLightingSetting_Content", "True False", 0, 0},
    {"UnrealSlowVideoBuffering", "UnrealSlowVideoBufferingSetting", "UnrealSlowVideoBufferingSetting_Content",
     "True False", 0, 0},
    {"UnrealDeadZoneXYZ", "UnrealDeadZoneXYZSetting", "UnrealDeadZoneXYZSetting_Content", "True False", 0, 0},
    {"UnrealDeadZoneRUV", "UnrealDeadZoneRUVSetting", "UnrealDeadZoneRUVSetting_Content", "True False", 0, 0},
    {"SST_TEXMAP_DISABLE", "SST_TEXMAP_DISABLE_Setting", "SST_TEXMAP_DISABLE_Setting_Content", "", 0, 0},
};
// clang-format on

class EachTunable : public testing::TestWithParam<TunableCase> {};

TEST_P(EachTunable, HasItsKeysItsListAndItsDefaults) {
    const TunableCase& expected = GetParam();
    const ProfileTunable* const tunable = FindTunable(expected.Stem);
    ASSERT_NE(tunable, nullptr);
    EXPECT_EQ(tunable->SettingKey, expected.SettingKey);
    EXPECT_EQ(tunable->ContentKey(), expected.ContentKey);
    EXPECT_EQ(Joined(tunable->Items), expected.Items);
    EXPECT_EQ(tunable->DefaultIndex, expected.DefaultIndex);
    EXPECT_EQ(tunable->DefaultFlag, expected.DefaultFlag);
}

INSTANTIATE_TEST_SUITE_P(Profile, EachTunable, testing::ValuesIn(kTunableCases),
                         [](const auto& info) { return Text(info.param.Stem); });

TEST(ProfileTunables, AreAllListedHere) {
    EXPECT_EQ(ProfileTunables().size(), std::size(kTunableCases));
}

TEST(FindTunable, GivesNullForAStemThatIsNone) {
    EXPECT_EQ(FindTunable("gl_nothing"), nullptr);
}

TEST(ProfileTunable, HasNoItemOutsideItsList) {
    const ProfileTunable* const clock = FindTunable("SST_GRXCLK");
    EXPECT_EQ(clock->Item(5), "63");
    EXPECT_EQ(clock->Item(6), "");
    EXPECT_EQ(clock->Item(-1), "");
}

TEST(ProfileFlags, AreTheVoodoo2FlagsOfWhichOneIsOnByDefault) {
    Text flags;
    for (const ProfileFlag& flag : ProfileFlags()) {
        flags += Join(flag.Key, "=", std::to_string(flag.Default), " ");
    }
    EXPECT_EQ(flags,
              "FX_GLIDE_SWAPINTERVAL_VOODOO2=1 FX_LOD_DITHER=0 SSTV2_TMU_MEMSIZE=0 SSTV2_SWAPINTERVAL=0 "
              "SSTV2_FORCE_TRILINEAR=0 SSTV2_SLIDETECT=0 ");
}

TEST(DefaultLists, AreRecordsOfCaptionAndPayload) {
    EXPECT_EQ(kDefaultResolutions,
              "320x200;-width 320 -height 200;320x240;-width 320 -height 240;400x300;-width 400;512x384;-width 512;"
              "640x480;-width 640;800x600;-width 800;1024x768;-width 1024;1152x864;-width 1152;1280x1024;-width 1280");
    EXPECT_EQ(kDefaultBits, "8 bit color;-bpp 8;16 bit color;-bpp 16;24 bit color;-bpp 24;32 bit color;-bpp 32");
    EXPECT_EQ(kDefaultProfileList, "Base;Optimize for Speed;Optimize for Beauty;Default");
}

TEST(Q2Resolutions, AreTen) {
    EXPECT_EQ(Joined(Q2Resolutions()),
              "320x200 400x300 512x384 640x480 800x600 960x720 1024x768 1152x864 1280x1024 1600x1200");
}

TEST(GraphicsDrivers, AreSix) {
    EXPECT_EQ(Joined(GraphicsDrivers(), ";"),
              "Software - Window;Software - Fullscreen;3Dfx OpenGL port;default OpenGL;PowerVR OpenGL;OpenGL32");
}

TEST(VideoCards, EndWithOther) {
    EXPECT_EQ(Joined(VideoCards(), ";"), "None;Voodoo1;Voodoo2;Other");
}

TEST(ShippedProfileNames, StandInTheOrderOfCreation) {
    EXPECT_EQ(Joined(ShippedProfileNames(), ";"), "Default;Optimize for Speed;Optimize for Beauty");
}

}  // namespace
}  // namespace lv
