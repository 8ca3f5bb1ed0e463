// catalogs/servers.h
//
// The catalog of servers, of which the list shows the current game's.

#pragma once

#include "catalogs/catalog_lists.h"

namespace lv {

/// Fields of a server record.
namespace server_field {
constexpr std::size_t kTitle = 0;
constexpr std::size_t kAddress = 1;
constexpr std::size_t kPort = 2;
constexpr std::size_t kType = 3;
constexpr std::size_t kPassword = 4;
}  // namespace server_field

/// Server types 0 to 9.
constexpr Index kServerTypes = 10;

/// The game that a server type stands for, "QuakeWorld" for 1; empty for a number that is none.
TextView ServerTypeName(Index type);

/// The type of the servers that the current game can join: the number of its GameKind, but 0 for plain Quake.
Index WantedServerType(const Run& run);

/// False if the program ended over a damaged value.
bool FillServerCombo(Run& run, CatalogLists& lists);

}  // namespace lv
