// platform/linux/settings_file.h
//
// Opening the file of the settings store, layout 1: all that is looked at before a first value is read.

#pragma once

#include <filesystem>
#include <memory>

#include "platform/error.h"

struct sqlite3;

namespace lv {

struct DatabaseCloser {
    void operator()(sqlite3* database) const;
};
using Database = std::unique_ptr<sqlite3, DatabaseCloser>;

/// Opens the store, and makes it and its directory, for this user alone, if they are not there. A file that is no
/// database, is damaged, has another layout or cannot be written is left as it is. The error's text says so and names
/// the file. Errors: 75 not a store that can be used, 70 no access, 76 no directory, 61 disk full, 57 device.
Result<Database> OpenSettingsFile(const std::filesystem::path& file);

/// The error for a failed call on this database: 61 disk full, 70 no access, 57 anything else.
Error FaultOf(sqlite3* database);

/// How long to wait for another program's write, in milliseconds.
constexpr int kPatience = 10000;

}  // namespace lv
