#include "games/programs.h"

#include <algorithm>

#include "foundation/field_strings.h"

namespace lv {

namespace {

using namespace program_trait;

namespace row = wizard_row;
namespace slot = spy_slot;

constexpr TextView kUnknownPicture = "QUESTION";
constexpr auto kNoSpy = std::nullopt;

// clang-format off
constexpr Program kPrograms[] = {
    // file          game            picture       traits                                     wizard's row    its entry               searched as     GameSpy slot
    {"quake.exe",    Game::Quake,    "QUAKE",      kSoftware,                                 row::kQuake,    "Quake",                "quake.exe",    slot::kQuake},
    {"glquake.exe",  Game::Quake,    "QUAKE",      0,                                         row::kQuake,    "GL Quake",             "",             slot::kQuake},
    {"qwcl.exe",     Game::Quake,    "QUAKEWORLD", kSoftware | kQuakeWorld,                   row::kQuake,    "QuakeWorld",           "",             slot::kQuakeWorld},
    {"glqwcl.exe",   Game::Quake,    "QUAKEWORLD", kQuakeWorld,                               row::kQuake,    "GL QuakeWorld",        "",             slot::kQuakeWorld},
    {"winquake.exe", Game::Quake,    "QUAKE",      0,                                         row::kQuake,    "WinQuake",             "",             slot::kQuake},
    {"vquake.exe",   Game::Quake,    "QUAKE",      0,                                         row::kQuake,    "V Quake",              "",             slot::kQuake},
    {"h2.exe",       Game::Hexen2,   "HEXEN2",     kSoftware,                                 row::kHexen2,   "Hexen 2",              "h2.exe",       slot::kHexen2},
    {"glh2.exe",     Game::Hexen2,   "HEXEN2",     0,                                         row::kHexen2,   "GL Hexen 2",           "",             slot::kHexen2},
    {"hwcl.exe",     Game::Hexen2,   "HEXEN2",     kSoftware | kHexenWorld,                   row::kHexen2,   "Hexen World",          "",             kNoSpy},
    {"glhwcl.exe",   Game::Hexen2,   "HEXEN2",     kHexenWorld | kPicturedLate | kNotScanned, row::kHexen2,   "",                     "",             kNoSpy},
    {"h2mp.exe",     Game::Hexen2,   "HEXEN2",     kSoftware | kMissionPack,                  row::kHexen2,   "Hexen 2 - Portals",    "",             kNoSpy},
    {"glh2mp.exe",   Game::Hexen2,   "HEXEN2",     kMissionPack,                              row::kHexen2,   "GL Hexen 2 - Portals", "",             kNoSpy},
    {"quake2.exe",   Game::Quake2,   "QUAKE2",     0,                                         row::kQuake2,   "Quake 2",              "quake2.exe",   slot::kQuake2},
    {"unreal.exe",   Game::Unreal,   "UNREAL",     0,                                         row::kUnreal,   "Unreal",               "unreal.exe",   slot::kUnreal},
    {"sin.exe",      Game::Sin,      "SIN",        0,                                         row::kSin,      "Sin",                  "sin.exe",      slot::kSin},
    {"sindemo.exe",  Game::Sin,      "SIN",        0,                                         row::kSin,      "",                     "",             kNoSpy},
    {"heretic2.exe", Game::Heretic2, "HERETIC2",   0,                                         row::kHeretic2, "Heretic 2",            "Heretic2.exe", kNoSpy},
    {"shogo.exe",    Game::None,     "SHOGO",      kPicturedLate | kNotScanned,               row::kShogo,    "Shogo",                "shogo.exe",    kNoSpy},
    {"blood2.exe",   Game::None,     "BLOOD2",     kPicturedLate | kNotScanned,               row::kBlood2,   "Blood 2",              "blood2.exe",   kNoSpy},
    {"b2demo.exe",   Game::None,     "QUESTION",   kNotScanned,                               row::kBlood2,   "Blood 2",              "",             kNoSpy},
    {"hl.exe",       Game::HalfLife, "HALFLIFE",   kPicturedLate,                             row::kHalfLife, "Half-Life",            "HL.exe",       kNoSpy},
};
// clang-format on

bool Is(const Program& program, unsigned trait) {
    return (program.Traits & trait) != 0;
}

}  // namespace

std::span<const Program> AllPrograms() {
    return kPrograms;
}

const Program* ProgramOf(TextView fileName, std::span<const Program> programs) {
    const auto found =
        std::ranges::find_if(programs, [&](const Program& each) { return SameText(each.FileName, fileName); });
    return found == programs.end() ? nullptr : &*found;
}

Text ImageKeyOf(TextView fileName, std::span<const Program> programs) {
    const Program* const program = ProgramOf(fileName, programs);
    return Text(program == nullptr ? kUnknownPicture : program->Picture);
}

Text NewExeImageKeyOf(TextView fileName, std::span<const Program> programs) {
    const Program* const program = ProgramOf(fileName, programs);
    return Text(program == nullptr || Is(*program, kPicturedLate) ? kUnknownPicture : program->Picture);
}

std::optional<std::size_t> WizardRowOf(TextView fileName, std::span<const Program> programs) {
    const Program* const program = ProgramOf(fileName, programs);
    return program == nullptr || Is(*program, kNotScanned) ? std::nullopt : std::optional(program->WizardRow);
}

TextView SearchedProgram(std::size_t wizardRow, std::span<const Program> programs) {
    const auto found = std::ranges::find_if(
        programs, [&](const Program& each) { return each.WizardRow == wizardRow && !each.SearchedAs.empty(); });
    return found == programs.end() ? TextView() : found->SearchedAs;
}

std::optional<std::size_t> SpySlotOf(TextView fileName, std::span<const Program> programs) {
    const Program* const program = ProgramOf(fileName, programs);
    return program == nullptr ? std::nullopt : program->SpySlot;
}

ExecutableFlags FlagsOfPath(Game gameKind, TextView path, std::span<const Program> programs) {
    const Text upper = UpperCase(path);
    ExecutableFlags flags;
    for (const Program& program : programs) {
        if (program.GameKind != gameKind) {
            continue;
        }
        const Text name = UpperCase(program.FileName);
        flags.IsQuakeWorld = flags.IsQuakeWorld || (Is(program, kQuakeWorld) && Holds(upper, name));
        flags.IsMissionPack = flags.IsMissionPack || (Is(program, kMissionPack) && Holds(upper, name));
        // With the blank, kept on purpose: something must follow the name for the test to hit.
        flags.IsHexenWorld = flags.IsHexenWorld || (Is(program, kHexenWorld) && Holds(upper, Join(name, Blank)));
        flags.UsesAccelerator = flags.UsesAccelerator && !(Is(program, kSoftware) && Holds(upper, Join("\\", name)));
    }
    flags.IsHexenWorld = flags.IsHexenWorld && !flags.IsMissionPack;
    return flags;
}

}  // namespace lv
