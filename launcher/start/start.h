// launcher/start/start.h
//
// The start of a run, from the splash to the shown main window.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// Repairs stored values, fixes the run's globals, looks for another instance, loads the main window behind the splash
/// and shows it. False if the program ended on the way.
bool Start(Launcher& launcher);

}  // namespace lv
