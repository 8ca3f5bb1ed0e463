// launcher/drop/offer_dropped.h
//
// What is done with what was dropped on the window, or stands behind the program's name: always after a question that
// says what will happen. Nothing is started, nothing is written over without having been asked for.

#pragma once

#include "launcher/drop/dropped_thing.h"
#include "launcher/launcher.h"

namespace lv {

/// Keeps it until the window has time. False if another one waits already, or the program is at its end.
bool NoteDropped(Launcher& launcher, WaitingDrop dropped);

/// Whether the window has time now, and something waits.
bool DropIsDue(const Launcher& launcher);

/// Offers what waits, if the window has time for it.
void OfferDropped(Launcher& launcher);

}  // namespace lv
