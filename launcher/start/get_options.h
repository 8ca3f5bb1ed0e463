// launcher/start/get_options.h
//
// The first half of the main window's load: the first run's wizard, what a run notes about itself, the profiles.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// False if the program ended on the way.
bool GetOptions(Launcher& launcher);

/// "November 21, 1999".
Text LongDate(Clock& clock);

}  // namespace lv
