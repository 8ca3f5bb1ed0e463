// platform/linux/game_notes.h
//
// The directories of games in other launchers' own files: Heroic's lists (JSON), Lutris' database (SQLite) and settings
// of single games (YAML). Strangers' text: what is damaged gives what could be read, and no file costs more than
// kLargestNotes, or of time more than kNotesSeconds. Host paths, absolute and without "..", whether or not they exist.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lv {

constexpr std::size_t kLargestNotes = 8U << 20U;
constexpr double kNotesSeconds = 0.2;

/// The whole file if it is a plain one of at most kLargestNotes; else nothing.
std::string ReadNotes(const std::string& hostPath);

/// "install_path" and "folder_name" wherever they stand.
std::vector<std::string> DirectoriesOfHeroic(std::string_view json);

/// Of the installed games in the table "games" their directories; without one the directory of their executable.
std::vector<std::string> DirectoriesOfLutris(std::string bytes);

/// The value of the first "prefix:" of a game's settings; empty if there is none.
std::string PrefixOfLutris(std::string_view yaml);

/// Whether it is a path that may be looked at: absolute, and with no ".." and no control character in it.
bool IsPlainPath(std::string_view hostPath);

}  // namespace lv
