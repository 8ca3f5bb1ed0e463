// launcher/start/start.h
//
// The start of a run, from the splash to the shown main window.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// Repairs stored values, fixes the run's globals, looks for another instance, loads the main window behind the splash
/// and shows it. False if the program ended on the way.
bool Start(Launcher& launcher);

/// The same without a window, another instance's or a question about it: the launcher as the stored settings have it,
/// ready to launch. False if they cannot be used; the user was told why.
bool LoadUnseen(Launcher& launcher);

}  // namespace lv
