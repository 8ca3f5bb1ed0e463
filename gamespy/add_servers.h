// gamespy/add_servers.h
//
// The servers selected in GameSpy 3D become entries of the catalog.

#pragma once

#include "catalogs/catalog_lists.h"

namespace lv {

/// One server is shown in its dialog first; of several only the game is asked.
void AddCurrentGameSpyServers(Run& run, CatalogLists& lists);

}  // namespace lv
