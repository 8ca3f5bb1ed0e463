#include "video/profile_controls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "video/profile_settings.h"

namespace lv {
namespace {

using enum ProfilePanel;

struct BoxCase {
    const char* Name;
    ProfilePanel Panel;
    const char* Shown;  // the caption without the dashes
    const char* Ends;   // what it ends in
};

// clang-format off
const BoxCase kBoxCases[] = {
    {"FX_GLIDE_NO_SPLASH",            Resolution,        "Skip 3DFX Splash",             "Splash"},
    {"SST_VIDEO_FILTER_DISABLE",      VoodooScreenColor, "24 to 16-bit Color Smoothing", "->"},
    {"SST_VIDEO_FILTER_THRESHOLD",    VoodooScreenColor, "Color Smoothing Threshold",    "->"},
    {"SST_VIDEO_24BPP",               VoodooScreenColor, "24-bit Video Output",          "->"},
    {"SST_SCREENREFRESH",             VoodooScreenColor, "Screen Refresh Rate",          "--"},
    {"SST_RGAMMA",                    VoodooScreenColor, "Red Gamma (Brightness)",       "->"},
    {"SST_BGAMMA",                    VoodooScreenColor, "Blue Gamma (Brightness)",      "->"},
    {"SST_GGAMMA",                    VoodooScreenColor, "Green Gamma (Brightness)",     "->"},
    {"gl_polyblend",                  Effects,           "Polyblend",                    "->"},
    {"WaterAlpha",                    Effects,           "Water Transparency",           "->"},
    {"Mirrors",                       Effects,           "Mirrors",                      "->"},
    {"GL_FLASHBLEND",                 Effects,           "Lighting",                     "->"},
    {"GL_PICMIP",                     Effects,           "Texture Mip (Blur)",           "->"},
    {"GL_PLAYERMIP",                  Effects,           "Player Mip (Blur)",            "->"},
    {"GL_TEXTUREMODE",                Effects,           "Mode",                         "->"},
    {"GL_ROUND_DOWN",                 Effects,           "Round Texture Sizes Down",     "->"},
    {"gl_keeptjunctions",             Effects,           "Keep T Junctions",             "->"},
    {"gl_ztrick",                     Effects,           "Z Trick",                      "->"},
    {"GL_FINISH",                     Effects,           "Issue gl_finish",              "->"},
    {"Shadows",                       Effects,           "Shadows",                      "->"},
    {"D_MIPCAP",                      Effects,           "Mip Cap",                      "->"},
    {"SST_GRXCLK",                    Voodoo1,           "Clock Rate (MHz)",             "--"},
    {"SST_FASTMEM",                   Voodoo1,           "Enable Fast Memory Access",    "->"},
    {"SST_FASTPCIRD",                 Voodoo1,           "Enable Fast PCI Bus Usage",    "->"},
    {"SST_VIDEO_NOCLEAR",             Voodoo1,           "Don't Clear Video Memory",     "->"},
    {"SST_SWAP_EN_WAIT_ON_VSYNC",     Voodoo1,           "Wait for Vertical Sync",       "->"},
    {"FX_GLIDE_SWAPINTERVAL",         Voodoo1,           "Glide Swap Interval",          "--"},
    {"SSTV2_GRXCLK",                  Voodoo2,           "Clock Rate (MHz)",             "--"},
    {"FX_GLIDE_SWAPINTERVAL_VOODOO2", Voodoo2, "Don't sync buffer swaps to monitor refresh rate for Glide apps.", "."},
    {"SSTV2_SWAPINTERVAL",            Voodoo2, "Don't sync buffer swaps to monitor refresh rate for Direct3D apps.", "."},
    {"FX_LOD_DITHER",                 Voodoo2, "Force advanced texture filtering for Glide apps.", "."},
    {"SSTV2_FORCE_TRILINEAR",         Voodoo2, "Force trilinear texture filtering for Direct3D apps.", "."},
    {"SSTV2_SLIDETECT",               Voodoo2, "Disable SLI Autodection", "Autodection"},
    {"SSTV2_TMU_MEMSIZE",             Voodoo2, "Limit texture memory for Glide apps.", "."},
    {"UnrealCurvedSurfaces",          UnrealVideo,       "Curved Surfaces",              "->"},
    {"UnrealUseDirectDraw",           UnrealVideo,       "Use Direct Draw",              "->"},
    {"UnrealLowDetailTextures",       UnrealVideo,       "Low Detail Textures",          "->"},
    {"UnrealNoLighting",              UnrealVideo,       "No Lighting",                  "->"},
    {"UnrealScreenFlashes",           UnrealVideo,       "Screen Flashes",               "->"},
    {"UnrealDeadZoneXYZ",             UnrealVideo,       "Dead Zone XYZ",                "->"},
    {"UnrealSlowVideoBuffering",      UnrealVideo,       "Slow Video Buffering",         "->"},
    {"UnrealScaleXYZ",                UnrealVideo,       "Scale XYZ",                    "->"},
    {"UnrealDeadZoneRUV",             UnrealVideo,       "Dead Zone RUV",                "->"},
    {"UnrealBrightness",              UnrealVideo,       "Brightness",                   "->"},
    {"UnrealMipFactor",               UnrealVideo,       "Mip Factor",                   "->"},
    {"UnrealScaleRUV",                UnrealVideo,       "Scale RUV",                    "->"},
};
// clang-format on

TEST(ProfileControls, EachBoxStandsOnItsPanelWithItsCaption) {
    const auto rows = ProfileBoxRows();
    ASSERT_EQ(rows.size(), std::size(kBoxCases));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_STREQ(rows[i].Name, kBoxCases[i].Name);
        EXPECT_EQ(rows[i].Panel, kBoxCases[i].Panel) << rows[i].Name;
        EXPECT_EQ(WithoutLeader(rows[i].Caption), kBoxCases[i].Shown);
        EXPECT_TRUE(TextView(rows[i].Caption).ends_with(kBoxCases[i].Ends)) << rows[i].Caption;
    }
}

TEST(ProfileControls, EveryTunableWithAListAndEveryFlagHasExactlyOneBox) {
    std::multiset<TextView> keys;
    for (const ProfileBoxRow& row : ProfileBoxRows()) {
        keys.insert(row.Key);
    }
    for (const ProfileTunable& tunable : ProfileTunables()) {
        EXPECT_EQ(keys.count(tunable.Stem), tunable.Items.empty() ? 0u : 1u) << tunable.Stem;
    }
    for (const ProfileFlag& flag : ProfileFlags()) {
        EXPECT_EQ(keys.count(flag.Key), 1u) << flag.Key;
    }
    EXPECT_EQ(keys.size(), 46u);
}

TEST(ProfileControls, CaptionsStandToTheLetter) {
    const struct {
        const char* Name;
        const char* Caption;
    } kCases[] = {
        // clang-format off
        {"FX_GLIDE_NO_SPLASH", "Skip 3DFX Splash"},
        {"SST_VIDEO_FILTER_DISABLE", "24 to 16-bit Color Smoothing -------------------------------->"},
        {"SST_SCREENREFRESH", "Screen Refresh Rate -------------------------------------------"},
        {"SST_RGAMMA", "Red Gamma (Brightness) -------------------------------------->"},
        {"SST_BGAMMA", "Blue Gamma (Brightness) -------------------------------------->"},
        {"SST_GGAMMA", "Green Gamma (Brightness) ----------------------------------->"},
        {"gl_polyblend", "Polyblend ------------------------------>"},
        {"WaterAlpha", "Water Transparency------------->"},
        {"Mirrors", "Mirrors ----------------------------------->"},
        {"GL_FLASHBLEND", "Lighting --------------------------------->"},
        {"GL_PICMIP", "Texture Mip (Blur) ------------------>"},
        {"GL_PLAYERMIP", "Player Mip (Blur) -------------------->"},
        {"GL_TEXTUREMODE", "Mode -->"},
        {"GL_ROUND_DOWN", "Round Texture Sizes Down -->"},
        {"gl_keeptjunctions", "Keep T Junctions ------------------>"},
        {"gl_ztrick", "Z Trick----------------------------------->"},
        {"GL_FINISH", "Issue gl_finish ------------------------>"},
        {"Shadows", "Shadows ------------------------------->"},
        {"D_MIPCAP", "Mip Cap -------------------------------->"},
        {"SST_FASTPCIRD", "Enable Fast PCI Bus Usage ---------------------------------->"},
        {"FX_GLIDE_SWAPINTERVAL", "Glide Swap Interval -------------------------------------------"},
        {"FX_GLIDE_SWAPINTERVAL_VOODOO2", "Don't sync buffer swaps to monitor refresh rate for Glide apps."},
        {"SSTV2_SWAPINTERVAL", "Don't sync buffer swaps to monitor refresh rate for Direct3D apps."},
        {"FX_LOD_DITHER", "Force advanced texture filtering for Glide apps."},
        {"SSTV2_FORCE_TRILINEAR", "Force trilinear texture filtering for Direct3D apps."},
        {"SSTV2_SLIDETECT", "Disable SLI Autodection"},
        {"SSTV2_TMU_MEMSIZE", "Limit texture memory for Glide apps."},
        {"UnrealCurvedSurfaces", "Curved Surfaces -------------->"},
        {"UnrealUseDirectDraw", "Use Direct Draw --------------->"},
        {"UnrealLowDetailTextures", "Low Detail Textures --------->"},
        {"UnrealNoLighting", "No Lighting ---------------------->"},
        {"UnrealScreenFlashes", "Screen Flashes  --------------->"},
        {"UnrealDeadZoneXYZ", "Dead Zone XYZ ------------->"},
        {"UnrealSlowVideoBuffering", "Slow Video Buffering ------->"},
        {"UnrealScaleXYZ", "Scale XYZ ----------------------->"},
        {"UnrealDeadZoneRUV", "Dead Zone RUV--------------->"},
        {"UnrealBrightness", "Brightness ------------------------>"},
        {"UnrealMipFactor", "Mip Factor ------------------------>"},
        {"UnrealScaleRUV", "Scale RUV ---------------------->"},
        // clang-format on
    };
    for (const auto& expected : kCases) {
        const auto rows = ProfileBoxRows();
        const auto row =
            std::ranges::find_if(rows, [&](const auto& each) { return TextView(each.Name) == expected.Name; });
        ASSERT_NE(row, rows.end()) << expected.Name;
        EXPECT_STREQ(row->Caption, expected.Caption);
    }
}

TEST(ProfileControls, PanelsHaveTheirCaptions) {
    const struct {
        ProfilePanel Panel;
        const char* Name;
        const char* Caption;
    } kCases[] = {
        {Resolution, "Resolution_Pan", "  Resolution"},
        {VoodooScreenColor, "VoodooScreenColor_Pan", "  Voodoo 1 or 2  Screen / Color"},
        {Effects, "Effects_Pan", "' Effects; Q1, Q2, Hexen2, SIN, Heretic2"},
        {NoEffects, "NoEffects_Pan", "  Non GL Effects"},
        {UnrealVideo, "UnrealVideo_Pan", "  Video Effects for Unreal"},
        {Voodoo2, "Voodoo2_Pan", "  Voodoo2 Settings"},
        {Voodoo1, "Voodoo1_Pan", "  Voodoo1 Settings"},
        {No3DHardware, "No3DHardware_Pan", "No 3D Harware"},
    };
    const auto rows = ProfilePanelRows();
    ASSERT_EQ(rows.size(), std::size(kCases));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].Panel, kCases[i].Panel);
        EXPECT_STREQ(rows[i].Name, kCases[i].Name);
        EXPECT_STREQ(rows[i].Caption, kCases[i].Caption);
    }
}

TEST(InTwoLines, BreaksALongCaptionAtTheBlankNearestToItsMiddle) {
    EXPECT_EQ(InTwoLines("Don't sync buffer swaps to monitor refresh rate for Glide apps."),
              "Don't sync buffer swaps to monitor\nrefresh rate for Glide apps.");
    EXPECT_EQ(InTwoLines("Don't sync buffer swaps to monitor refresh rate for Direct3D apps."),
              "Don't sync buffer swaps to monitor\nrefresh rate for Direct3D apps.");
    EXPECT_EQ(InTwoLines("Force trilinear texture filtering for Direct3D apps."),
              "Force trilinear texture\nfiltering for Direct3D apps.");
}

TEST(InTwoLines, KeepsACaptionThatFitsOne) {
    EXPECT_EQ(InTwoLines("Limit texture memory for Glide apps."), "Limit texture memory for Glide apps.");
    EXPECT_EQ(InTwoLines(""), "");
}

TEST(InTwoLines, KeepsACaptionWithoutABlank) {
    const Text caption(60, 'x');
    EXPECT_EQ(InTwoLines(caption), caption);
}

TEST(WithoutLeader, KeepsACaptionThatHasNone) {
    EXPECT_EQ(WithoutLeader("Skip 3DFX Splash"), "Skip 3DFX Splash");
    EXPECT_EQ(WithoutLeader("24-bit"), "24-bit");
    EXPECT_EQ(WithoutLeader(""), "");
}

}  // namespace
}  // namespace lv
