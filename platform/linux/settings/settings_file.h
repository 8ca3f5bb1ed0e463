// platform/linux/settings/settings_file.h
//
// Opening the file of the settings store, layout 1: all that is looked at before a first value is read.

#pragma once

#include <filesystem>
#include <memory>

#include "platform/error.h"

struct sqlite3;

namespace lv {

/// How long to wait for another program, in milliseconds: where nobody can be asked, and ahead of a question.
constexpr int kPatience = 10000;
constexpr int kPatienceBeforeAsking = 1000;

struct DatabaseCloser {
    void operator()(sqlite3* database) const;
};
using Database = std::unique_ptr<sqlite3, DatabaseCloser>;

/// What the file's first bytes say against it, without touching it or what lies beside it: error 75. Nothing against an
/// empty file.
Error CheckSettingsHead(const std::filesystem::path& file);

/// Opens the store, and makes it and its directory, for this user alone, if they are not there. A file that is no
/// database, is damaged, has another layout or cannot be written is left as it is. The error's text says so and names
/// the file. Errors: 75 not a store that can be used, 70 no access, 76 no directory, 61 no room for a single value,
/// 57 device, 55 locked by another program for longer than `patience` milliseconds.
Result<Database> OpenSettingsFile(const std::filesystem::path& file, int patience = kPatience);

}  // namespace lv
