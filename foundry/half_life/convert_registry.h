// foundry/half_life/convert_registry.h
//
// Half-Life keeps its settings in the registry, but runs scripts too. Here a player's settings become a script when
// the game is picked, and the chosen script's become the player's at launch.

#pragma once

#include "foundation/run.h"

namespace lv {

/// Writes the selected player's settings as a script over `path` and puts it into the catalog of scripts; tells the
/// user, unless told not to again. With a registry that can't be read the file stays as it is, and the user is told.
void ConvertRegistryToScript(Run& run, TextView path);

/// Writes what the script sets to the selected player's settings. A script that can't be opened, or is a large one,
/// changes nothing and is no error: the user was told. The errors are the registry's.
Error ConvertScriptToRegistry(Run& run, TextView path);

}  // namespace lv
