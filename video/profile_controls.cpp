#include "video/profile_controls.h"

#include <iterator>

#include "foundation/field_strings.h"

namespace lv {

namespace {

using enum ProfilePanel;

// clang-format off
constexpr ProfilePanelRow kPanels[] = {
    {Resolution,        "Resolution_Pan",        "  Resolution"},
    {VoodooScreenColor, "VoodooScreenColor_Pan", "  Voodoo 1 or 2  Screen / Color"},
    {Effects,           "Effects_Pan",           "' Effects; Q1, Q2, Hexen2, SIN, Heretic2"},
    {NoEffects,         "NoEffects_Pan",         "  Non GL Effects"},
    {UnrealVideo,       "UnrealVideo_Pan",       "  Video Effects for Unreal"},
    {Voodoo2,           "Voodoo2_Pan",           "  Voodoo2 Settings"},
    {Voodoo1,           "Voodoo1_Pan",           "  Voodoo1 Settings"},
    {No3DHardware,      "No3DHardware_Pan",      "No 3D Harware"},
};

constexpr ProfileBoxRow kBoxes[] = {
    {"FX_GLIDE_NO_SPLASH",            "FX_GLIDE_NO_SPLASH",            Resolution,        "Skip 3DFX Splash"},

    {"SST_VIDEO_FILTER_DISABLE",      "SST_VIDEO_FILTER_DISABLE",      VoodooScreenColor, "24 to 16-bit Color Smoothing -------------------------------->"},
    {"SST_VIDEO_FILTER_THRESHOLD",    "SST_VIDEO_FILTER_THRESHOLD",    VoodooScreenColor, "Color Smoothing Threshold -------------------------------->"},
    {"SST_VIDEO_24BPP",               "SST_VIDEO_24BPP",               VoodooScreenColor, "24-bit Video Output ------------------------------------------>"},
    {"SST_SCREENREFRESH",             "SST_SCREENREFRESH",             VoodooScreenColor, "Screen Refresh Rate -------------------------------------------"},
    {"SST_RGAMMA",                    "SST_RGAMMA",                    VoodooScreenColor, "Red Gamma (Brightness) -------------------------------------->"},
    {"SST_BGAMMA",                    "SST_BGAMMA",                    VoodooScreenColor, "Blue Gamma (Brightness) -------------------------------------->"},
    {"SST_GGAMMA",                    "SST_GGAMMA",                    VoodooScreenColor, "Green Gamma (Brightness) ----------------------------------->"},

    {"gl_polyblend",                  "gl_polyblend",                  Effects,           "Polyblend ------------------------------>"},
    {"WaterAlpha",                    "WaterAlpha",                    Effects,           "Water Transparency------------->"},
    {"Mirrors",                       "Mirrors",                       Effects,           "Mirrors ----------------------------------->"},
    {"GL_FLASHBLEND",                 "GL_FLASHBLEND",                 Effects,           "Lighting --------------------------------->"},
    {"GL_PICMIP",                     "GL_PICMIP",                     Effects,           "Texture Mip (Blur) ------------------>"},
    {"GL_PLAYERMIP",                  "GL_PLAYERMIP",                  Effects,           "Player Mip (Blur) -------------------->"},
    {"GL_TEXTUREMODE",                "GL_TEXTUREMODE",                Effects,           "Mode -->"},
    {"GL_ROUND_DOWN",                 "GL_ROUND_DOWN",                 Effects,           "Round Texture Sizes Down -->"},
    {"gl_keeptjunctions",             "gl_keeptjunctions",             Effects,           "Keep T Junctions ------------------>"},
    {"gl_ztrick",                     "gl_ztrick",                     Effects,           "Z Trick----------------------------------->"},
    {"GL_FINISH",                     "GL_FINISH",                     Effects,           "Issue gl_finish ------------------------>"},
    {"Shadows",                       "Shadows",                       Effects,           "Shadows ------------------------------->"},
    {"D_MIPCAP",                      "D_MipCap",                      Effects,           "Mip Cap -------------------------------->"},

    {"SST_GRXCLK",                    "SST_GRXCLK",                    Voodoo1,           "Clock Rate (MHz) ----------------------------------------------"},
    {"SST_FASTMEM",                   "SST_FASTMEM",                   Voodoo1,           "Enable Fast Memory Access ---------------------------------->"},
    {"SST_FASTPCIRD",                 "SST_FASTPCIRD",                 Voodoo1,           "Enable Fast PCI Bus Usage ---------------------------------->"},
    {"SST_VIDEO_NOCLEAR",             "SST_VIDEO_NOCLEAR",             Voodoo1,           "Don't Clear Video Memory ----------------------------------->"},
    {"SST_SWAP_EN_WAIT_ON_VSYNC",     "SST_SWAP_EN_WAIT_ON_VSYNC",     Voodoo1,           "Wait for Vertical Sync --------------------------------------->"},
    {"FX_GLIDE_SWAPINTERVAL",         "FX_GLIDE_SWAPINTERVAL",         Voodoo1,           "Glide Swap Interval -------------------------------------------"},

    {"SSTV2_GRXCLK",                  "SSTV2_GRXCLK",                  Voodoo2,           "Clock Rate (MHz) ---------------------------------------"},
    {"FX_GLIDE_SWAPINTERVAL_VOODOO2", "FX_GLIDE_SWAPINTERVAL_VOODOO2", Voodoo2,           "Don't sync buffer swaps to monitor refresh rate for Glide apps."},
    {"SSTV2_SWAPINTERVAL",            "SSTV2_SWAPINTERVAL",            Voodoo2,           "Don't sync buffer swaps to monitor refresh rate for Direct3D apps."},
    {"FX_LOD_DITHER",                 "FX_LOD_DITHER",                 Voodoo2,           "Force advanced texture filtering for Glide apps."},
    {"SSTV2_FORCE_TRILINEAR",         "SSTV2_FORCE_TRILINEAR",         Voodoo2,           "Force trilinear texture filtering for Direct3D apps."},
    {"SSTV2_SLIDETECT",               "SSTV2_SLIDETECT",               Voodoo2,           "Disable SLI Autodection"},
    {"SSTV2_TMU_MEMSIZE",             "SSTV2_TMU_MEMSIZE",             Voodoo2,           "Limit texture memory for Glide apps."},

    {"UnrealCurvedSurfaces",          "UnrealCurvedSurfaces",          UnrealVideo,       "Curved Surfaces -------------->"},
    {"UnrealUseDirectDraw",           "UnrealUseDirectDraw",           UnrealVideo,       "Use Direct Draw --------------->"},
    {"UnrealLowDetailTextures",       "UnrealLowDetailTextures",       UnrealVideo,       "Low Detail Textures --------->"},
    {"UnrealNoLighting",              "UnrealNoLighting",              UnrealVideo,       "No Lighting ---------------------->"},
    {"UnrealScreenFlashes",           "UnrealScreenFlashes",           UnrealVideo,       "Screen Flashes  --------------->"},
    {"UnrealDeadZoneXYZ",             "UnrealDeadZoneXYZ",             UnrealVideo,       "Dead Zone XYZ ------------->"},
    {"UnrealSlowVideoBuffering",      "UnrealSlowVideoBuffering",      UnrealVideo,       "Slow Video Buffering ------->"},
    {"UnrealScaleXYZ",                "UnrealScaleXYZ",                UnrealVideo,       "Scale XYZ ----------------------->"},
    {"UnrealDeadZoneRUV",             "UnrealDeadZoneRUV",             UnrealVideo,       "Dead Zone RUV--------------->"},
    {"UnrealBrightness",              "UnrealBrightness",              UnrealVideo,       "Brightness ------------------------>"},
    {"UnrealMipFactor",               "UnrealMipFactor",               UnrealVideo,       "Mip Factor ------------------------>"},
    {"UnrealScaleRUV",                "UnrealScaleRUV",                UnrealVideo,       "Scale RUV ---------------------->"},
};
// clang-format on

static_assert(std::size(kPanels) == kProfilePanels);

constexpr TextView kLeader = "--";
constexpr std::size_t kLongCaption = 45;  // characters that one line takes beside two other columns

}  // namespace

std::span<const ProfilePanelRow> ProfilePanelRows() {
    return kPanels;
}

std::span<const ProfileBoxRow> ProfileBoxRows() {
    return kBoxes;
}

Text WithoutLeader(TextView caption) {
    return Trim(caption.substr(0, caption.find(kLeader)));
}

Text InTwoLines(TextView caption) {
    if (caption.size() <= kLongCaption) {
        return Text(caption);
    }
    const std::size_t middle = caption.size() / 2;
    const std::size_t before = caption.rfind(' ', middle);
    const std::size_t behind = caption.find(' ', middle);
    if (before == TextView::npos && behind == TextView::npos) {
        return Text(caption);
    }
    const bool take_behind =
        before == TextView::npos || (behind != TextView::npos && behind - middle < middle - before);
    Text lines(caption);
    lines[take_behind ? behind : before] = '\n';
    return lines;
}

}  // namespace lv
