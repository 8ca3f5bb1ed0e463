// platform/linux/settings/settings_copy.h
//
// The settings store in memory: for a run on a disk that holds not one byte more, and for one that only reads.

#pragma once

#include "platform/linux/settings/settings_file.h"

namespace lv {

/// A database in memory with what is stored in the file; an empty one if there is no file. What is written to it is
/// gone with it, and the file stays as it is. For a file that OpenSettingsFile refuses with 61. Errors: 75 not a store
/// that can be used, 55 locked by another program, 57 device.
Result<Database> CopySettingsFile(const std::filesystem::path& file);

/// The same for a file that nothing is to be written to: neither it nor its directory changes, and they need not allow
/// it. Only what a program that was killed has left unfinished is brought in order, where that may be written; where it
/// may not, and cannot be read either, what was stored before it counts. Errors: as above, and 70 no access.
Result<Database> ReadSettingsFile(const std::filesystem::path& file);

}  // namespace lv
