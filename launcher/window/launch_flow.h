// launcher/window/launch_flow.h
//
// From the click on Launch to the started game.

#pragma once

#include "launch/launch_selection.h"
#include "launcher/launcher.h"

namespace lv {

enum class LaunchMode { Launch = 0, View = 1, CreateOnly = 2 };

/// The press of a launch button: 0 launches, 1 shows the launch files, 2 only creates them. One sequence from the
/// profile to the started batch; every stop leaves the files written so far.
void DoIt_Cmd_Click(Launcher& launcher, int index);

/// What the window and the run hold at this moment.
LaunchSelection SelectionOf(const LV_Frm& window);
LaunchGame GameOf(Run& run);

}  // namespace lv
