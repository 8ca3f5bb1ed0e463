// games/programs.h
//
// What is known of each program file of the games, a row a file.

#pragma once

#include <optional>
#include <span>

#include "foundation/game.h"
#include "games/places.h"

namespace lv {

/// What a program is, a bit each.
namespace program_trait {
constexpr unsigned kSoftware = 1;       // draws without the 3D card
constexpr unsigned kQuakeWorld = 2;     // plays on QuakeWorld's servers
constexpr unsigned kHexenWorld = 4;     // on HexenWorld's
constexpr unsigned kMissionPack = 8;    // plays Hexen II's mission pack
constexpr unsigned kPicturedLate = 16;  // has its picture from the next start on, not when it is added
constexpr unsigned kNotScanned = 32;    // does not make the scan for new games pass over its row of the wizard
}  // namespace program_trait

struct Program {
    TextView FileName;
    Game GameKind = Game::None;
    TextView Picture;  // in the list of executables
    unsigned Traits = 0;
    std::size_t WizardRow = 0;
    TextView EntryTitle;                   // of the entry that the wizard makes; empty: it makes none
    TextView SearchedAs;                   // the name by which the wizard looks for its row's game; empty: by another
    std::optional<std::size_t> SpySlot{};  // that offers it
};

/// Those of one row of the wizard in the order of the entries that it makes.
std::span<const Program> AllPrograms();

/// By a file name without its directory, in any letter case; null for one that is not known.
const Program* ProgramOf(TextView fileName, std::span<const Program> programs = AllPrograms());

/// The picture of an executable in the list: its key into the image list, "QUESTION" for one that is not known.
Text ImageKeyOf(TextView fileName, std::span<const Program> programs = AllPrograms());

/// The picture of a new row. Knows fewer programs than the list at the next start does: kept on purpose.
Text NewExeImageKeyOf(TextView fileName, std::span<const Program> programs = AllPrograms());

/// The wizard's row that need not be looked for where this program is known.
std::optional<std::size_t> WizardRowOf(TextView fileName, std::span<const Program> programs = AllPrograms());

/// The program by which the wizard tells a row's game, "HL.exe"; empty if there is none.
TextView SearchedProgram(std::size_t wizardRow, std::span<const Program> programs = AllPrograms());

/// The GameSpy slot that offers the program.
std::optional<std::size_t> SpySlotOf(TextView fileName, std::span<const Program> programs = AllPrograms());

struct ExecutableFlags {
    bool IsQuakeWorld = false;
    bool IsHexenWorld = false;
    bool IsMissionPack = false;
    bool UsesAccelerator = true;
};

/// What the executable's path says, in any letter case. The names of the game's programs are searched in all of it:
/// "glqwcl.exe" holds "qwcl.exe".
ExecutableFlags FlagsOfPath(Game gameKind, TextView path, std::span<const Program> programs = AllPrograms());

}  // namespace lv
