// launcher/setups/setup_start.h
//
// A kept setup is picked, or started: applied, and then launched.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// The setup that was picked last; null if there is none.
const KeptSetup* PickedSetup(const Launcher& launcher);

/// Whether the window would start something else than the setup that was picked last.
bool PickedSetupIsChanged(const Launcher& launcher);

/// Applies the setup and tells what is not there any more. False if there is no such setup, its program is not in the
/// list, or the program has ended.
bool PickSetup(Launcher& launcher, int number);

/// The same, then clicks on Launch. If something is not there any more the user is asked first, and may go without.
/// Nothing happens while a launch waits for GameSpy 3D. True if the click was made; the launch tells its own faults.
bool StartSetup(Launcher& launcher, int number);

}  // namespace lv
