// commands/rehearse_launch.h
//
// A launch on stand-ins for the disk, for the registry and for the starting of programs: of a command, or of what the
// main window holds.

#pragma once

#include "commands/command_place.h"
#include "commands/launch_choice.h"

namespace lv {

/// Picks what is to be launched; its notes are for the user.
using Choice = std::function<std::vector<Missing>(Launcher&, Text& notes)>;

/// Out is the report. kFinds if something is missing, kNothingCalledSo if there is nothing to rehearse.
CommandResult RehearseLaunch(const CommandPlace& place, const Choice& choose);

/// Gives the main window its dry run.
void ConnectDryRun(Launcher& window, std::function<CommandPlace()> place);

}  // namespace lv
