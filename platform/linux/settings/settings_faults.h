// platform/linux/settings/settings_faults.h
//
// What is said when the file of the settings store cannot be used, and the numbers for what SQLite says.

#pragma once

#include <filesystem>
#include <string>

#include "platform/error.h"

struct sqlite3;

namespace lv {

/// "The settings in "<file>" cannot be used: <reason>"
Error StoreRefusal(int number, const std::filesystem::path& file, const std::string& reason);

/// The same as error 75, and what the user can do.
Error UnusableStore(const std::filesystem::path& file, const std::string& reason);

Error NewerLayout(const std::filesystem::path& file);
Error NoDatabase(const std::filesystem::path& file);
Error DamagedDatabase(const std::filesystem::path& file);

/// `what` ("the file", "their directory") cannot be written, for that `errno`; and what the user can do if that is a
/// matter of rights.
Error UnwritableStore(int number, const std::filesystem::path& file, const char* what);

/// The file cannot be read, for that `errno`.
Error UnreadableStore(int number, const std::filesystem::path& file);

/// Another program keeps this one out: 55, with its name if the system tells it.
Error LockedStore(const std::filesystem::path& file);

/// The error for a failed call on this database: 61 disk full, 55 locked by another program, 70 no access, 57 anything
/// else.
Error FaultOf(sqlite3* database);

/// What SQLite itself says against the file that was to be opened.
Error RefusedBySqlite(sqlite3* database, const std::filesystem::path& file);

}  // namespace lv
