// platform/linux/settings/settings_copy.h
//
// The settings store in memory, for a run on a disk that holds not one byte more.

#pragma once

#include "platform/linux/settings/settings_file.h"

namespace lv {

/// A database in memory with what is stored in the file; an empty one if there is no file. What is written to it is
/// gone with it, and the file stays as it is. For a file that OpenSettingsFile refuses with 61. Errors: 75 not a store
/// that can be used, 55 locked by another program, 57 device.
Result<Database> CopySettingsFile(const std::filesystem::path& file);

}  // namespace lv
