// launcher/drop/pick_dropped.h
//
// What lies in a listed game already is picked: the game's program, the modification, and the map, script or program.

#pragma once

#include "launcher/drop/dropped_thing.h"
#include "launcher/drop/listed_programs.h"

namespace lv {

/// Whether the game finds it where it lies, so that it need not be copied.
bool IsInItsPlace(const DroppedThing& thing, const PlaceInGame& place);

/// Asks, and picks. `others` is what the question says of what else was dropped.
void OfferToPick(Launcher& launcher, const DroppedThing& thing, const PlaceInGame& place, TextView others);

/// Picks and ticks the modification of that directory, which gets a row if it has none; an empty one is the base game.
/// False if the program has none, or its list no room: the user was told.
bool PickAndTickModification(Launcher& launcher, TextView directory);

/// Picks and ticks the map; the user is told where that can't be.
void PickAndTickMap(Launcher& launcher, TextView name);

/// Picks the script, which gets a row if it has none, and opens it in Setup Foundry.
void OpenScript(Launcher& launcher, TextView path);

/// Tells something, titled "Dropped File".
void TellOfDropped(Launcher& launcher, TextView text);

/// A path in a line of its own, fit to be shown.
Text PathLine(TextView path);

constexpr const char* kDroppedTitle = "Dropped File";

}  // namespace lv
