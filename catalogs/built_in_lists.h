// catalogs/built_in_lists.h
//
// The two catalogs that are the same for every game and come with built-in lists: memory sizes and demos.

#pragma once

#include "catalogs/catalog_lists.h"

namespace lv {

/// The lists as they would be stored.
constexpr TextView kBuiltInMemory =
    "8 megabytes;-winmem 8;12 megabytes;-winmem 12;16 megabytes;-winmem 16;24 megabytes;-winmem 24;"
    "32 megabytes;-winmem 32;40 megabytes;-winmem 40;48 megabytes;-winmem 48";
constexpr TextView kBuiltInDemos =
    "None;playdemo nodemo.dem;Quake Demo #1;playdemo demo1.dem;Quake Demo #2;playdemo demo2.dem;"
    "Quake Demo #3;playdemo demo3.dem;Quake ][ Demo #1;demomap demo1.dm2;Quake ][ Demo #2;demomap demo2.dm2";

/// Fills the list and selects the stored row. False if the program ended over a damaged value; for the memory sizes
/// an empty one is damaged too.
bool FillMemoryCombo(Run& run, CatalogLists& lists);
bool FillDemoCombo(Run& run, CatalogLists& lists);

}  // namespace lv
