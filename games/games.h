// games/games.h
//
// What is known of each game, a row a game.

#pragma once

#include <span>

#include "foundation/game.h"
#include "platform/files.h"

namespace lv {

/// How a directory is told to be a game's.
enum class TreeTest {
    Below,         // this directory stands below it
    PathHolds,     // its path, in upper case, holds this
    BaseAndHolds,  // "\base" stands below it, and its path in lower case holds this
};

struct GameFacts {
    Game GameKind = Game::None;
    Dialect ScriptFamily = Dialect::None;
    TextView Name = "Unknown";  // as questions name it
    TreeTest How = TreeTest::Below;
    TextView What{};
    TextView BaseGameDir{};      // below the executable's directory, in upper case
    TextView ScriptFilter{};     // of file dialogs
    TextView DemoFilter{};       // the same; empty: the game has none
    TextView ScriptExtension{};  // of its own scripts, with its point, ".qs"
    TextView Archives = "*.pak";
    TextView ArchiveMark = "PACK";  // at the start of each
};

/// In the order in which a directory is tested.
std::span<const GameFacts> AllGames();

/// Those of Game::None if there is no row, "Unknown" and otherwise empty.
const GameFacts& FactsOf(Game game, std::span<const GameFacts> games = AllGames());

/// The game whose executable lies in this directory (without a trailing "\"). The first hit of the table counts, so a
/// Hexen II tree with a left-over "id1" is Quake.
const GameFacts& FactsOfDirectory(Files& files, TextView directory, std::span<const GameFacts> games = AllGames());

}  // namespace lv
