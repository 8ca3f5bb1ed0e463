// platform/linux/user_dirs.h
//
// The user's own directories with names of their own, as xdg-user-dirs notes them down in "user-dirs.dirs".

#pragma once

#include <filesystem>
#include <string_view>

namespace lv {

/// The directory of a key, "XDG_DESKTOP_DIR", in the text of that file: "$HOME/..." or an absolute path, in double
/// quotes, the last line of the key. Empty if there is none, or if it is the home itself: the user has none then.
std::filesystem::path DirectoryInUserDirs(std::string_view text, std::string_view key,
                                          const std::filesystem::path& home);

/// Where icons on the desktop lie; "Desktop" in the home by default. Empty if the user has none.
std::filesystem::path DesktopDirectory();

}  // namespace lv
