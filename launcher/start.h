// launcher/start.h
//
// The start of a run, up to the loaded main window.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// Fixes the run's globals, loads the main window and makes it visible. False if the program ended on the way.
bool Start(Launcher& launcher);

}  // namespace lv
