// platform/linux/user_directories.h
//
// Where this user's settings and data lie, by the XDG base directory rules. Host paths, UTF-8.

#pragma once

#include <filesystem>
#include <string_view>

namespace lv {

/// $HOME, or what the system knows of this user.
std::filesystem::path HomeDirectory();

/// A place below the home by its usual name, "games" or ".local/share/games": what lies in ".config" or ".local/share"
/// by default is where the environment says.
std::filesystem::path HomePlace(std::string_view name);

/// $XDG_CONFIG_HOME/lorvane3d, by default ~/.config/lorvane3d.
std::filesystem::path ConfigDirectory();

/// $XDG_DATA_HOME/lorvane3d, by default ~/.local/share/lorvane3d.
std::filesystem::path DataDirectory();

/// $XDG_CACHE_HOME/lorvane3d, by default ~/.cache/lorvane3d.
std::filesystem::path CacheDirectory();

/// $XDG_STATE_HOME/lorvane3d, by default ~/.local/state/lorvane3d.
std::filesystem::path StateDirectory();

/// $WINEPREFIX, by default ~/.wine.
std::filesystem::path WinePrefix();

/// The directory that this program's own file lies in.
std::filesystem::path ProgramFileDirectory();

}  // namespace lv
