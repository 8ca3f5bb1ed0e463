// console/files/search_path.h
//
// Where a game looks for its files, in its order: directories and the archives in them.

#pragma once

#include <vector>

#include "console/files/exec_rules.h"
#include "platform/files.h"

namespace lv {

/// What is played, and with what.
struct PlayedGame {
    Console Of = Console::Quake;
    Game GameKind = Game::Quake;
    Text Directory{};     // that holds the base directory, without a "\" at the end; of Unreal "System" itself
    Text Base{};          // "ID1"; empty: that of the game
    Text Modification{};  // "CTF"; empty: none
    Text Engine{};        // the name in the table of engines; empty: the game's own program
    Text UserHome{};      // empty: no directory of the user's is looked at
};

struct SearchPlace {
    Text Directory;  // "C:\QUAKE\ID1"
    Text Archive;    // a file in it, "pak0.pak"; empty: the directory's own files
    std::size_t Level =
        0;  // of the directories with this one's name: 0 the modification's or the base's, behind it what it stands on
};

/// How many archives of a directory are looked into: the first in the game's order.
constexpr std::size_t kMostSearchedArchives = 64;

/// The first place that has a file has it for the game.
std::vector<SearchPlace> SearchPath(Files& disk, const PlayedGame& game);

/// The names of the game's directories, the modification's first and the base one last.
std::vector<Text> GameDirectories(const PlayedGame& game);

}  // namespace lv
