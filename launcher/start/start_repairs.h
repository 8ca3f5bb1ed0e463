// launcher/start/start_repairs.h
//
// What a start puts right in stored values that older versions left behind.

#pragma once

#include "foundation/run.h"

namespace lv {

/// Takes off every ";" at the end.
void RepairVideoProfileList(Run& run);

/// Turns "/" into "\".
void RepairExecutables(Run& run);

/// Of several modifications with the same option text the first one stays; the other names are lost. So is a name at
/// the end without an option text.
void RepairGames(Run& run);
Text WithoutDuplicateGames(TextView games);

}  // namespace lv
