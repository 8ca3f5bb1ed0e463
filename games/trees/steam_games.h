// games/trees/steam_games.h
//
// Where Steam keeps its games: its libraries, the directories of the games known here, and the Wine prefixes that it
// plays in. Names from Steam's files are looked at and never followed: a library is a directory that is there, a game's
// directory one name below "steamapps\common".

#pragma once

#include <cstddef>
#include <vector>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

constexpr std::size_t kMostSteamLibraries = 64;
constexpr std::size_t kMostSteamPrefixes = 1000;

/// The root itself, then those that its "libraryfolders.vdf" names, in either of its layouts and places.
std::vector<Text> SteamLibraries(Files& files, TextView root);

/// The directories of the games known here that are installed in the library, each once, in the order of the titles:
/// by its manifest where there is one, and by name otherwise.
std::vector<Text> SteamGameDirectories(Files& files, TextView library);

/// Those of Proton: directories with a "drive_c".
std::vector<Text> SteamPrefixes(Files& files, TextView library);

}  // namespace lv
