// catalogs/editors/view_all.h
//
// All rows of a catalog in one box.

#pragma once

#include <vector>

#include "catalogs/catalog_lists.h"

namespace lv {

struct ViewRow {
    Text Title;
    Text Value;
};

/// The two columns, the titles padded to the widest of them in the windows' font.
Text ViewText(UserInterface& user, TextView firstColumn, TextView secondColumn, const std::vector<ViewRow>& rows);

void ViewAllExecutables(Run& run, const CatalogLists& lists);
void ViewAllGames(Run& run, const CatalogLists& lists);
void ViewAllScripts(Run& run, const CatalogLists& lists);
void ViewAllDemos(Run& run, const CatalogLists& lists);
void ViewAllMemory(Run& run, const CatalogLists& lists);

/// Titled for the first four types only; the others show the program's name.
void ViewAllServers(Run& run, const CatalogLists& lists);

}  // namespace lv
