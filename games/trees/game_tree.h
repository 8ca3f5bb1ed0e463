// games/trees/game_tree.h
//
// What game lies in a directory, told by what is in it and not by a program: its base directory with its archives, in
// any letter case.

#pragma once

#include <optional>
#include <span>
#include <vector>

#include "games/games.h"
#include "platform/files.h"

namespace lv {

struct GameTree {
    Game GameKind = Game::None;
    Text Directory{};    // that holds the base directory; of Unreal the one that holds "System"
    Text BaseGameDir{};  // as it is spelled there: "Id1"
    /// False for what looks like the shareware or the demo of the game.
    bool IsFull = false;
    /// Whether today's engines find the archives where letter case counts: they look for "id1/pak0.pak".
    bool IsSpelledForToday = false;
    std::vector<Text> MissionPacks{};  // directories beside the base directory, as they are spelled
};

/// The tree in the directory, or nothing. Of several games in one directory the first of the table, less those whose
/// base directory holds no archive. `entries` are the directory's.
std::optional<GameTree> TreeIn(Files& files, TextView directory, const std::vector<DirectoryEntry>& entries,
                               std::span<const GameFacts> games = AllGames());
std::optional<GameTree> TreeIn(Files& files, TextView directory);

/// Where the game's own programs lie, without a "\" at the end: what the wizard asks for.
Text ProgramDirectoryOf(const GameTree& tree);

}  // namespace lv
