// catalogs/editors/delete_entry.h
//
// Taking a row out of a catalog: asked for twice, and saved. The select event of the row that is selected afterwards
// is the caller's.

#pragma once

#include "catalogs/catalog_lists.h"

namespace lv {

/// True if the selected row is gone; without one the user is told, and with none left nothing is selected.
bool DeleteExecutable(Run& run, CatalogLists& lists);
bool DeleteGame(Run& run, CatalogLists& lists);
bool DeleteDemo(Run& run, CatalogLists& lists);
bool DeleteServer(Run& run, CatalogLists& lists);

/// Deletes the script's file too.
bool DeleteScript(Run& run, CatalogLists& lists);

/// What is told when a command needs a row.
constexpr const char* kNoExecutable = "No executable is selected.";
constexpr const char* kNoGame = "No game directory is selected.";
constexpr const char* kNoDemo = "No Demo is selected.";
constexpr const char* kNoScript = "No script is selected.";
constexpr const char* kNoServer = "No server is selected.";

}  // namespace lv
