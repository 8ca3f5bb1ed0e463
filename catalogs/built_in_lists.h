// catalogs/built_in_lists.h
//
// The two catalogs that are the same for every game and come with built-in lists: memory sizes and demos.

#pragma once

#include "catalogs/catalog_lists.h"

namespace lv {

/// Fills the list and selects the stored row. False if the program ended over a damaged value; for the memory sizes
/// an empty one is damaged too.
bool FillMemoryCombo(Run& run, CatalogLists& lists);
bool FillDemoCombo(Run& run, CatalogLists& lists);

}  // namespace lv
