// platform/linux/settings/settings_layout.h
//
// The table of the settings store, layout 1: made where there is none, and looked at where there is one.

#pragma once

#include <filesystem>
#include <string>

#include "platform/error.h"

struct sqlite3;

namespace lv {

constexpr int kStoreLayout = 1;  // the database's user_version

/// Nothing that stands in the file is ever run: no trigger fires, no view is read, what a column computes may call
/// nothing that reaches out of the database, and no value of it grows beyond 16 MB.
void RunNothingOfTheFile(sqlite3* database);

bool Execute(sqlite3* database, const char* sql);

/// The first column of the first row; empty on any failure.
std::string Ask(sqlite3* database, const char* sql);

/// Makes the table in a database that holds nothing yet. Refuses any other layout, and a damaged database.
Error CheckLayout(sqlite3* database, const std::filesystem::path& file);

}  // namespace lv
