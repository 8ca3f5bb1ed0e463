#include "video/profile_settings.h"

#include <algorithm>
#include <iterator>

namespace lv {

namespace {

// clang-format off
constexpr TextView k0To1[]         = {"0", "1"};
constexpr TextView k0To2[]         = {"0", "1", "2"};
constexpr TextView k0To3[]         = {"0", "1", "2", "3"};
constexpr TextView kAlpha[]        = {"0", ".1", ".2", ".3", ".4", ".5", ".6", ".7", ".8", ".9", "1"};
constexpr TextView kTextureModes[] = {"GL_NEAREST", "GL_NEAREST_MIPMAP_NEAREST", "GL_LINEAR_MIPMAP_NEAREST",
                                      "GL_LINEAR_MIPMAP_LINEAR"};
constexpr TextView kGamma[]        = {"1.3", "1.4", "1.5", "1.6", "1.7", "1.8", "1.9", "2.0", "2.1", "2.2",
                                      "2.3", "2.4", "2.5", "2.6", "2.7", "2.8", "2.9", "3.0", "3.1", "3.2",
                                      "3.3", "3.4", "3.5", "3.6", "3.7", "3.8", "3.9", "4.0"};
constexpr TextView kRefresh[]      = {"60", "75", "85", "120"};
constexpr TextView kVoodooClock[]  = {"50", "53", "55", "57", "60", "63"};
constexpr TextView kVoodoo2Clock[] = {"80", "85", "90", "91", "92", "93", "94", "95", "96", "97", "98", "99", "100"};
constexpr TextView kBrightness[]   = {"0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0", "10"};
constexpr TextView kMipFactor[]    = {"0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0",
                                      "1.1", "1.2", "1.3", "1.4", "1.5", "1.6", "1.7", "1.8", "1.9", "2.0"};
constexpr TextView kScaleXyz[]     = {"500", "1000", "1500"};
constexpr TextView kScaleRuv[]     = {"1000", "2000", "3000"};
constexpr TextView kTrueFalse[]    = {"True", "False"};

constexpr ProfileTunable kTunables[] = {
    // flag                         list index                            list           default index, flag
    {"Shadows",                     "ShadowSetting",                      k0To1,         0,  0},
    {"Mirrors",                     "MirrorSetting",                      kAlpha,        10, 0},
    {"WaterAlpha",                  "WaterAlphaSetting",                  kAlpha,        10, 0},
    {"GL_ROUND_DOWN",               "GL_ROUND_DOWN_Setting",              k0To1,         1,  0},
    {"GL_PICMIP",                   "GL_PICMIP_Setting",                  k0To2,         0,  0},
    {"D_MipCap",                    "D_MipCap_Setting",                   k0To3,         0,  0},
    {"GL_PLAYERMIP",                "GL_PLAYERMIP_Setting",               k0To3,         0,  0},
    {"gl_ztrick",                   "gl_ztrick_Setting",                  k0To1,         0,  0},
    {"gl_keeptjunctions",           "gl_keeptjunctions_Setting",          k0To1,         0,  0},
    {"gl_polyblend",                "gl_polyblend_Setting",               k0To1,         0,  0},
    {"GL_TEXTUREMODE",              "GL_TEXTUREMODE_Setting",             kTextureModes, 2,  0},
    {"GL_FINISH",                   "GL_FINISH_Setting",                  k0To1,         1,  0},
    {"GL_FLASHBLEND",               "GL_FLASHBLEND_Setting",              k0To1,         1,  0},
    {"FX_GLIDE_SWAPINTERVAL",       "FX_GLIDE_SWAPINTERVAL_Setting",      k0To2,         1,  0},
    {"FX_GLIDE_NO_SPLASH",          "FX_GLIDE_NO_SPLASH_Setting",         k0To1,         0,  0},
    {"SST_RGAMMA",                  "SST_RGAMMA_Setting",                 kGamma,        4,  0},
    {"SST_GGAMMA",                  "SST_GGAMMA_Setting",                 kGamma,        4,  0},
    {"SST_BGAMMA",                  "SST_BGAMMA_Setting",                 kGamma,        4,  0},
    {"SST_FASTMEM",                 "SST_FASTMEM_Setting",                k0To1,         0,  0},
    {"SST_FASTPCIRD",               "SST_FASTPCIRD_Setting",              k0To1,         0,  0},
    {"SST_VIDEO_24BPP",             "SST_VIDEO_24BPP_Setting",            k0To1,         0,  0},
    {"SST_VIDEO_NOCLEAR",           "SST_VIDEO_NOCLEAR_Setting",          k0To1,         0,  0},
    {"SST_VIDEO_FILTER_DISABLE",    "SST_VIDEO_FILTER_DISABLE_Setting",   k0To1,         0,  0},
    {"SST_VIDEO_FILTER_THRESHOLD",  "SST_VIDEO_FILTER_THRESHOLD_Setting", k0To1,         0,  0},
    {"SST_SWAP_EN_WAIT_ON_VSYNC",   "SST_SWAP_EN_WAIT_ON_VSYNC_Setting",  k0To1,         1,  0},
    {"SST_SCREENREFRESH",           "SST_SCREENREFRESH_Setting",          kRefresh,      0,  0},
    {"SST_GRXCLK",                  "SST_GRXCLK_Setting",                 kVoodooClock,  0,  0},
    {"SSTV2_GRXCLK",                "SSTV2_GRXCLK_Setting",               kVoodoo2Clock, 2,  1},
    {"UnrealBrightness",            "UnrealBrightnessSetting",            kBrightness,   0,  0},
    {"UnrealMipFactor",             "UnrealMipFactorSetting",             kMipFactor,    0,  0},
    {"UnrealScaleXYZ",              "UnrealScaleXYZSetting",              kScaleXyz,     0,  0},
    {"UnrealScaleRUV",              "UnrealScaleRUVSetting",              kScaleRuv,     0,  0},
    {"UnrealUseDirectDraw",         "UnrealUseDirectDrawSetting",         kTrueFalse,    0,  0},
    {"UnrealCurvedSurfaces",        "UnrealCurvedSurfacesSetting",        kTrueFalse,    0,  0},
    {"UnrealLowDetailTextures",     "UnrealLowDetailTexturesSetting",     kTrueFalse,    0,  0},
    {"UnrealScreenFlashes",         "UnrealScreenFlashesSetting",         kTrueFalse,    0,  0},
    {"UnrealNoLighting",            "UnrealNoLightingSetting",            kTrueFalse,    0,  0},
    {"UnrealSlowVideoBuffering",    "UnrealSlowVideoBufferingSetting",    kTrueFalse,    0,  0},
    {"UnrealDeadZoneXYZ",           "UnrealDeadZoneXYZSetting",           kTrueFalse,    0,  0},
    {"UnrealDeadZoneRUV",           "UnrealDeadZoneRUVSetting",           kTrueFalse,    0,  0},
    // Read at a launch, but no window offers it: only a value stored by hand is ever used.
    {"SST_TEXMAP_DISABLE",          "SST_TEXMAP_DISABLE_Setting",         {},            0,  0},
};

constexpr ProfileFlag kFlags[] = {
    {"FX_GLIDE_SWAPINTERVAL_VOODOO2", 1},
    {"FX_LOD_DITHER",                 0},
    {"SSTV2_TMU_MEMSIZE",             0},
    {"SSTV2_SWAPINTERVAL",            0},
    {"SSTV2_FORCE_TRILINEAR",         0},
    {"SSTV2_SLIDETECT",               0},
};

constexpr TextView kQ2Resolutions[] = {"320x200",  "400x300",  "512x384",   "640x480",  "800x600", "960x720",
                                       "1024x768", "1152x864", "1280x1024", "1600x1200"};

constexpr TextView kGraphicsDrivers[] = {"Software - Window", "Software - Fullscreen", "3Dfx OpenGL port",
                                         "default OpenGL",    "PowerVR OpenGL",        "OpenGL32"};

constexpr TextView kVideoCards[] = {"None", "Voodoo1", "Voodoo2", "Other"};

constexpr TextView kShippedNames[] = {"Default", "Optimize for Speed", "Optimize for Beauty"};

constexpr Index kNotSet = ShippedSetting::kNotSet;

constexpr ShippedRow kShippedRows[] = {
    //                                 "Default"      "Optimize for Speed"  "Optimize for Beauty"
    {"Shadows",                       {{0, 0},        {0, 0},               {1, 1}}},
    {"Mirrors",                       {{0, 10},       {0, 1},               {1, 5}}},
    {"WaterAlpha",                    {{0, 10},       {0, 10},              {1, 6}}},
    {"GL_ROUND_DOWN",                 {{0, 1},        {0, 1},               {1, 0}}},
    {"GL_PICMIP",                     {{0, 0},        {0, 0},               {0, 0}}},
    {"GL_PLAYERMIP",                  {{0, 0},        {1, 3},               {1, 0}}},
    {"gl_ztrick",                     {{0, 1},        {1, 0},               {1, 1}}},
    {"gl_keeptjunctions",             {{0, 1},        {1, 0},               {1, 1}}},
    {"gl_polyblend",                  {{0, 1},        {1, 0},               {1, 0}}},
    {"GL_TEXTUREMODE",                {{0, 2},        {0, 2},               {1, 3}}},
    {"GL_FINISH",                     {{0, 1},        {1, 0},               {1, 1}}},
    {"GL_FLASHBLEND",                 {{0, 1},        {0, 1},               {0, 1}}},
    {"FX_GLIDE_SWAPINTERVAL",         {{0, 1},        {1, 0},               {1, 1}}},
    {"FX_GLIDE_NO_SPLASH",            {{0, 0},        {1, 1},               {0, 0}}},
    {"SST_RGAMMA",                    {{0, 4},        {0, 4},               {0, 4}}},
    {"SST_GGAMMA",                    {{0, 4},        {0, 4},               {0, 4}}},
    {"SST_BGAMMA",                    {{0, 4},        {0, 4},               {0, 4}}},
    {"SST_FASTMEM",                   {{0, 0},        {1, 1},               {1, 1}}},
    {"SST_FASTPCIRD",                 {{0, 0},        {1, 1},               {1, 1}}},
    {"SST_VIDEO_24BPP",               {{0, 0},        {0, 0},               {1, 1}}},
    {"SST_SWAP_EN_WAIT_ON_VSYNC",     {{0, 1},        {1, 0},               {1, 1}}},
    {"SST_SCREENREFRESH",             {{0, 0},        {1, 0},               {1, 2}}},
    {"SST_GRXCLK",                    {{0, 0},        {1, 3},               {1, 1}}},
    {"SST_VIDEO_NOCLEAR",             {{0, 0},        {1, 1},               {1, 1}}},
    {"SST_VIDEO_FILTER_DISABLE",      {{0, 0},        {0, 0},               {0, 0}}},
    {"SST_VIDEO_FILTER_THRESHOLD",    {{0, 1},        {0, 1},               {0, 1}}},
    {"FX_GLIDE_SWAPINTERVAL_VOODOO2", {{0, kNotSet},  {1, kNotSet},         {0, kNotSet}}},
    {"FX_LOD_DITHER",                 {{},            {0, kNotSet},         {1, kNotSet}}},
    {"SSTV2_GRXCLK",                  {{0, 2},        {kNotSet, 7},         {kNotSet, 2}}},
};
// clang-format on

static_assert(std::size(kTunables) == kProfileTunables);
static_assert(std::size(kFlags) == kProfileFlags);
static_assert(std::size(kShippedNames) == kShippedProfiles);

}  // namespace

TextView ProfileTunable::Item(Index index) const {
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < Items.size() ? Items[at] : TextView();
}

std::span<const ProfileTunable> ProfileTunables() {
    return kTunables;
}

const ProfileTunable* FindTunable(TextView stem) {
    const auto* const found = std::ranges::find(kTunables, stem, &ProfileTunable::Stem);
    return found == std::end(kTunables) ? nullptr : found;
}

std::span<const ProfileFlag> ProfileFlags() {
    return kFlags;
}
std::span<const TextView> Q2Resolutions() {
    return kQ2Resolutions;
}
std::span<const TextView> GraphicsDrivers() {
    return kGraphicsDrivers;
}
std::span<const TextView> VideoCards() {
    return kVideoCards;
}
std::span<const TextView> ShippedProfileNames() {
    return kShippedNames;
}
std::span<const ShippedRow> ShippedRows() {
    return kShippedRows;
}

}  // namespace lv
