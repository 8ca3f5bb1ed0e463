// catalogs/editors/copy_script.h
//
// Copying the selected script to a directory of the user's choice.

#pragma once

#include "catalogs/catalog_lists.h"

namespace lv {

void CopyScript(Run& run, CatalogLists& lists);

}  // namespace lv
