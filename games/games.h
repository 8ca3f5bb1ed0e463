// games/games.h
//
// What is known of each game, a row a game.

#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "foundation/game.h"
#include "games/places.h"
#include "platform/files.h"

namespace lv {

/// How a directory is told to be a game's.
enum class TreeTest {
    Below,         // the base directory stands below it
    PathHolds,     // its path, in upper case, holds this
    BaseAndHolds,  // the base directory stands below it, and its path in lower case holds this
};

/// Names and the "*.pak" of patterns, in lower case; a "*" stands at the start or at the end.
using FileMarks = std::array<TextView, 3>;

/// How a game's data are told wherever they lie. Names in lower case.
struct DataMarks {
    TextView Directory{};                    // where they lie; empty: in the base directory
    FileMarks Within{};                      // one of these lies there; none: an archive of the game's
    TextView NotThere{};                     // lies there of another game
    TextView Beside{};                       // a directory that must stand beside it
    FileMarks FullWithin{};                  // the full game has one of these there; none: it always is the full one
    FileMarks FullBeside{};                  // or one of these beside it
    bool AnyCase = false;                    // today's engines find the files in whatever spelling
    std::array<TextView, 4> MissionPacks{};  // directories beside it
    FileMarks InPack{};                      // one of these lies in a pack; none: an archive of the game's
};

struct GameFacts {
    Game GameKind = Game::None;
    Dialect ScriptFamily = Dialect::None;
    TextView Name = "Unknown";  // as questions name it
    TreeTest How = TreeTest::Below;
    TextView What{};
    TextView BaseGameDir{};  // below the executable's directory, in upper case
    DataMarks Data{};
    std::size_t WizardRow = kWizardRows;
    TextView ScriptFilter{};     // of file dialogs
    TextView DemoFilter{};       // the same; empty: the game has none
    TextView ScriptExtension{};  // of its own scripts, with its point, ".qs"
    TextView Archives = "*.pak";
    TextView ArchiveMark = "PACK";  // at the start of each
};

/// In the order in which a directory is tested.
std::span<const GameFacts> AllGames();

/// The base directory in lower case, as it is called on disks of today.
Text BaseDirectoryOf(const GameFacts& game);

/// Those of Game::None if there is no row, "Unknown" and otherwise empty.
const GameFacts& FactsOf(Game game, std::span<const GameFacts> games = AllGames());

/// The game whose executable lies in this directory (without a trailing "\"). The first hit of the table counts, so a
/// Hexen II tree with a left-over "id1" is Quake.
const GameFacts& FactsOfDirectory(Files& files, TextView directory, std::span<const GameFacts> games = AllGames());

}  // namespace lv
