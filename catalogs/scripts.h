// catalogs/scripts.h
//
// The catalog of player scripts. The list shows those in the current game's script directory.

#pragma once

#include "catalogs/catalog_lists.h"

namespace lv {

/// Where the current game's scripts lie: the data directory in use, for Unreal the executable's own.
Text ScriptDirectory(const Run& run);

/// What the names of the current game's scripts end in, with its point.
TextView ScriptEnding(const Run& run);

/// The file there that the game keeps its own settings in.
Text GamesOwnScript(const Run& run);

/// The key in section "DefaultScript" under which the current data directory remembers its script; Unreal's too, though
/// its scripts lie elsewhere.
Text DefaultScriptKey(const Run& run);

/// Drops the records whose file is gone. False if the program ended over a damaged value.
bool FixScriptRegistries(Run& run);

/// Adds the scripts found on the disk to the catalog, drops its duplicates, fills the list and selects the remembered
/// script. All stored paths become lower case. False if the program ended over a damaged value.
bool FillScriptsCombo(Run& run, CatalogLists& lists);

/// Puts a script into the stored catalog, its path in lower case, unless it stands there or its path can't stand in a
/// list. True if the value has changed: the lists don't show it yet. Over a damaged value the program ends.
bool AddToScripts(Run& run, TextView title, TextView path);

}  // namespace lv
