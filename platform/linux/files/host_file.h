// platform/linux/files/host_file.h
//
// Small files that a start writes for another program to read: in the cache directory, replaced in one step.
// They may hold the password of a server: directory and files are this user's alone.

#pragma once

#include <filesystem>
#include <string_view>

#include "platform/error.h"

namespace lv {

/// Makes the directory and those above it as needed, and itself private (0700). What cannot be made, or is another's,
/// shows when a file is written there.
void MakePrivateDirectory(const std::filesystem::path& directory);

/// The directory is made private first. The error's text names the file.
Error WriteHostFile(const std::filesystem::path& path, std::string_view bytes);

/// Deletes the files in `directory` whose names start with `start` and that nobody has written for `days`.
void DropOldHostFiles(const std::filesystem::path& directory, std::string_view start, int days);

}  // namespace lv
