// catalogs/map_scan.h
//
// The start maps of the selected game, out of loose files and archives. Nothing is kept between two scans, so that the
// list is right at the moment of a launch. Nothing is reported but a directory with more maps than a list can show.

#pragma once

#include "catalogs/catalog_lists.h"

namespace lv {

/// Builds lists.MapList and Map_Cbo afresh and selects the first row. A modification's maps come before the base
/// game's; a name found twice stands twice.
void ScanForMaps(Run& run, CatalogLists& lists);

}  // namespace lv
