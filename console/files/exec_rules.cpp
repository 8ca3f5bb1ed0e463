#include "console/files/exec_rules.h"

#include <algorithm>
#include <iterator>

namespace lv {

namespace {

using enum ExecEnding;

constexpr Numbering kUntilGap = Numbering::UntilGap;
constexpr Numbering kToNine = Numbering::ToNine;
constexpr Numbering kNoNumbers = Numbering::None;
constexpr ExecEnding kPlain = ExecEnding::None;

// clang-format off
constexpr ExecRules kRules[] = {
    // console             loose  numbered        numbers     more archives                  exact  more bases           ending        1 word patterns ends  sure
    {Console::Quake,       false, "pak%.pak",     kUntilGap,  "",                            true,  "",                  kPlain,       true,  false, false, true},
    {Console::QuakeWorld,  false, "pak%.pak",     kUntilGap,  "",                            true,  "qw",                kPlain,       true,  false, true, true},
    {Console::Hexen2,      true,  "pak%.pak",     kToNine,    "",                            true,  "",                  kPlain,       true,  false, true, true},
    {Console::Quake2,      false, "pak%.pak",     kToNine,    "",                            false, "",                  kPlain,       false, false, false, true},
    {Console::Heretic2,    false, "htic2-%.pak",  kToNine,    "",                            false, "",                  kPlain,       false, false, false, true},
    {Console::Sin,         false, "pak%.sin",     kToNine,    "",                            false, "",                  kPlain,       false, false, false, false},
    {Console::EzQuake,     false, "pak%.pak",     kUntilGap,  "*.pk3",                       true,  "ezquake;qw",        WithoutPoint, true,  false, true, true},
    {Console::Ironwail,    false, "pak%.pak",     kUntilGap,  "",                            true,  "",                  kPlain,       true,  false, true, true},
    {Console::DarkPlaces,  true,  "",             kNoNumbers, "*.pak;*.pk3",                 false, "",                  kPlain,       false, true,  true, true},
    {Console::Fte,         false, "pak%.pak",     kUntilGap,  "*.pk3",                       true,  "qw;fte",            WhenMissing,  false, false, true, false},
    {Console::Yamagi,      false, "pak%.pak",     kToNine,    "*.pak;*.pk2;*.pk3;*.pkz;*.zip", false, "",                kPlain,       false, false, false, false},
    {Console::Q2Pro,       false, "pak%.pak",     kToNine,    "*.pak;*.pkz",                 false, "",                  WhenMissing,  false, false, false, false},
    {Console::HalfLife,    true,  "",             kNoNumbers, "*.pak;*.pk3",                 false, "",                  WithoutPoint, true,  true,  true, true},
    {Console::Unreal,      true,  "",             kNoNumbers, "",                            false, "",                  kPlain,       false, false, true, false},
    {Console::QuakeSpasm,  false, "pak%.pak",     kUntilGap,  "",                            true,  "",                  kPlain,       true,  false, true, true},
    {Console::HexenWorld,  true,  "pak%.pak",     kToNine,    "",                            true,  "portals;hw",        kPlain,       true,  false, true, true},
};

constexpr EngineFiles kEngineFiles[] = {
    // engine               user directory         own archive       config          beside config.cfg
    {"QuakeSpasm-Spiked",   "",                    "quakespasm.pak", "",             false},
    {"QuakeSpasm",          "\\.quakespasm",       "quakespasm.pak", "",             false},
    {"vkQuake",             "\\.vkquake",          "",               "vkQuake.cfg",  true},
    {"Ironwail",            "\\.ironwail",         "",               "ironwail.cfg", false},
    {"DarkPlaces",          "\\.darkplaces",       "",               "",             false},
    {"FTEQW",               "\\.local\\share\\%",  "",            "",             false},
    {"ezQuake",             "\\.ezquake",          "",               "",             false},
    {"TyrQuake",            "\\.tyrquake",         "",               "",             false},
    {"Hammer of Thyrion",   "\\.hexen2",           "",               "",             false},
    {"Yamagi Quake II",     "\\.yq2",              "",               "",             false},
    {"Heretic2R",           "\\.Heretic2R",        "",               "",             false},
};
// clang-format on

constexpr EngineFiles kNoFiles{};

}  // namespace

std::span<const ExecRules> AllExecRules() {
    return kRules;
}

const ExecRules& ExecRulesOf(Console console) {
    return kRules[static_cast<std::size_t>(console)];
}

std::span<const EngineFiles> AllEngineFiles() {
    return kEngineFiles;
}

const EngineFiles& FilesOfEngine(TextView engine) {
    const auto* const row = std::ranges::find_if(
        kEngineFiles, [&](const EngineFiles& each) { return StartsWithText(engine, each.Engine); });
    return row == std::end(kEngineFiles) ? kNoFiles : *row;
}

}  // namespace lv
