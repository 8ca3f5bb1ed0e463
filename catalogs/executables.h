// catalogs/executables.h
//
// The catalog of game executables, and what happens when a game is no longer where the catalog says.

#pragma once

#include "catalogs/catalog_lists.h"

namespace lv {

/// Fills Exe_Cbo, asks about each file that is missing, saves the catalog and selects the stored row. The change of
/// game is the caller's, if a row is selected afterwards. False if the program ended over a damaged value.
bool LoadExes(Run& run, CatalogLists& lists);

}  // namespace lv
