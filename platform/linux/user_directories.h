// platform/linux/user_directories.h
//
// Where this user's settings and data lie, by the XDG base directory rules. Host paths, UTF-8.

#pragma once

#include <filesystem>

namespace lv {

/// $HOME, or what the system knows of this user.
std::filesystem::path HomeDirectory();

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
