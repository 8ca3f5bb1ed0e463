// launcher/drop/copy_dropped.h
//
// An archive, a map or a script that lies elsewhere: copied into a game, in one step and where nothing is yet, then
// picked. What was dropped stays where it lies.

#pragma once

#include "launcher/drop/dropped_thing.h"
#include "launcher/drop/listed_programs.h"

namespace lv {

/// Asks, copies, and picks. `others` is what the question says of what else was dropped.
void OfferToCopy(Launcher& launcher, const DroppedThing& thing, const ListedProgram& into, TextView others);

}  // namespace lv
