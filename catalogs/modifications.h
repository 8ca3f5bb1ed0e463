// catalogs/modifications.h
//
// The catalog of modification subdirectories, and the scan that finds them below the game's directory.

#pragma once

#include "catalogs/catalog_lists.h"
#include "foundation/game.h"

namespace lv {

/// What stands before the directory's name in a row's option text.
constexpr TextView kGameOption = "-game ";

/// The directories that one scan looks at, "." and ".." among them.
constexpr std::size_t kMostScannedEntries = 1000;

/// The title of a modification by its directory; the directory's own name if it is not a known one.
Text ModificationTitle(TextView directory, Game gameKind);

/// "ctf", of a row's option text "-game ctf".
Text DirectoryOfOption(TextView option);

/// Shows the records whose directory exists in the current game's, holds back the others, adds what the scan finds.
/// False if the program ended. A damaged value clears the list and the run goes on.
bool FillGamesCombo(Run& run, CatalogLists& lists);

/// Adds a row for this directory below the game's, unless it has one, and saves the catalog. False if there is no room.
bool AddModification(Run& run, CatalogLists& lists, TextView directory);

/// Adds a row for each game directory that has none yet, saves the catalog, and returns how many were added.
Index ScanForGames(Run& run, CatalogLists& lists);

}  // namespace lv
