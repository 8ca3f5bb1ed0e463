#include "launch/environment_lines.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "launch/text_patterns.h"

namespace lv {

namespace {

constexpr Index kVoodoo = 1;
constexpr Index kVoodoo2 = 2;
constexpr std::size_t kResolutionWidth = 20;  // characters

/// A tunable of both cards. "%" stands for its value, "#" for the chosen resolution; null: not for this card.
struct BothRow {
    const char* Tunable;
    const char* Voodoo;
    const char* Voodoo2;
};

/// A flag of the Voodoo 2. "%" stands for the value of the tunable of that name; null: no line.
struct Voodoo2Row {
    const char* Flag;
    const char* Ticked;
    const char* NotTicked;
};

// clang-format off
constexpr BothRow kBothRows[] = {
    // profile key                  Voodoo                            Voodoo 2
    {"FX_GLIDE_SWAPINTERVAL",      "FX_GLIDE_SWAPINTERVAL=%",        "FX_GLIDE_SWAPINTERVAL=%"},
    {"FX_GLIDE_NO_SPLASH",         "FX_GLIDE_NO_SPLASH=1",           "FX_GLIDE_NO_SPLASH=1"},
    {"SST_RGAMMA",                 "SST_RGAMMA=%",                   "SSTV2_RGAMMA=%"},
    {"SST_GGAMMA",                 "SST_GGAMMA=%",                   "SSTV2_GGAMMA=%"},
    {"SST_BGAMMA",                 "SST_BGAMMA=%",                   "SSTV2_BGAMMA=%"},
    {"SST_FASTMEM",                "SST_FASTMEM=%",                  nullptr},
    {"SST_FASTPCIRD",              "SST_FASTPCIRD=%",                nullptr},
    {"SST_VIDEO_24BPP",            "SST_VIDEO_24BPP=%",              "SSTV2_VIDEO_24BPP=%"},
    {"SST_SWAP_EN_WAIT_ON_VSYNC",  "SST_SWAP_EN_WAIT_ON_VSYNC=%",    nullptr},
    {"SST_SCREENREFRESH",          "SST_SCREENREFRESH=%",            "SSTV2_REFRESH_#=%"},
    {"SST_GRXCLK",                 "SST_GRXCLK=%",                   nullptr},
    {"SST_VIDEO_NOCLEAR",          "SST_VIDEO_NOCLEAR=%",            nullptr},
    {"SST_VIDEO_FILTER_DISABLE",   "SST_VIDEO_FILTER_DISABLE=%",     "SSTV2_VIDEO_FILTER_DISABLE=%"},
    {"SST_VIDEO_FILTER_THRESHOLD", "SST_VIDEO_FILTER_THRESHOLD=%",   "SSTV2_VIDEO_FILTER_THRESHOLD=%"},
    {"SST_TEXMAP_DISABLE",         "SST_TEXMAP_DISABLE=%",           "SSTV2_TEXMAP_DISABLE=%"},
};

constexpr Voodoo2Row kVoodoo2Rows[] = {
    // flag                            ticked                       not ticked
    {"FX_GLIDE_SWAPINTERVAL_VOODOO2", "FX_GLIDE_SWAPINTERVAL=0",   "FX_GLIDE_SWAPINTERVAL=1"},
    {"FX_LOD_DITHER",                 "FX_LOD_DITHER=1",           "FX_LOD_DITHER=0"},
    {"SSTV2_TMU_MEMSIZE",             "SSTV2_TMU_MEMSIZE=2",       nullptr},
    {"SSTV2_SWAPINTERVAL",            "SSTV2_SWAPINTERVAL=0",      "SSTV2_SWAPINTERVAL=1"},
    {"SSTV2_FORCE_TRILINEAR",         "SSTV2_FORCE_TRILINEAR=1",   "SSTV2_FORCE_TRILINEAR=0"},
    {"SSTV2_SLIDETECT",               "SSTV2_SLIDETECT=0",         nullptr},
    {"SSTV2_GRXCLK",                  "SSTV2_GRXCLK=%",            "SSTV2_GRXCLK=90"},
};
// clang-format on

Text SetLine(const char* pattern, TextView resolution, TextView value) {
    return Join("SET ", FillPattern(pattern, value, resolution), NewLine);
}

/// Whether it makes a variable's name whole. A profile that was never loaded has no resolution yet.
bool FitsAName(TextView resolution) {
    return !resolution.empty() &&
           std::ranges::none_of(resolution, [](char c) { return c == '=' || static_cast<unsigned char>(c) < ' '; });
}

Text ResolutionOf(const LaunchGame& game, const ProfileSnapshot& profile) {
    const Text& content =
        game.ScriptFamily == Dialect::Quake2 ? profile.Q2_ResolutionsPos_Content : profile.ResolutionsPos_Content;
    return Trim(content.substr(0, kResolutionWidth));
}

}  // namespace

Text EnvironmentLines(const LaunchGame& game, const ProfileSnapshot& profile) {
    if (!game.UsesAccelerator || (game.CardClass != kVoodoo && game.CardClass != kVoodoo2)) {
        return {};
    }
    const bool isVoodoo2 = game.CardClass == kVoodoo2;
    const Text resolution = ResolutionOf(game, profile);
    const bool fits = FitsAName(resolution);
    Text lines;
    for (const BothRow& row : kBothRows) {
        const char* const pattern = isVoodoo2 ? row.Voodoo2 : row.Voodoo;
        if (pattern != nullptr && profile.Active(row.Tunable) && (fits || !Holds(pattern, "#"))) {
            lines += SetLine(pattern, resolution, profile.Value(row.Tunable));
        }
    }
    if (!isVoodoo2) {
        return lines;
    }
    for (const Voodoo2Row& row : kVoodoo2Rows) {
        if (const char* const pattern = profile.Ticked(row.Flag) ? row.Ticked : row.NotTicked) {
            lines += SetLine(pattern, resolution, profile.Value(row.Flag));
        }
    }
    return lines;
}

}  // namespace lv
