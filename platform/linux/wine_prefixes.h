// platform/linux/wine_prefixes.h
//
// The Wine prefixes of this user: the one in use, and those that other launchers have made. Host paths.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lv {

/// The directories of Steam that are there, links followed, each once.
std::vector<std::filesystem::path> FindSteamRoots();

/// Lutris' own settings and database, wherever they may lie; what is there is for the reader to see.
std::vector<std::filesystem::path> LutrisSettings();
std::vector<std::filesystem::path> LutrisDatabases();

/// Each has a "drive_c": the one in use, then those of Lutris, of Heroic, of Bottles, of PlayOnLinux and of Steam's own
/// libraries in `steamRoots`. At most kMostKnownPlaces.
std::vector<std::filesystem::path> FindWinePrefixes(const std::vector<std::filesystem::path>& steamRoots);

}  // namespace lv
