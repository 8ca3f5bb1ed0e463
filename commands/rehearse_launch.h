// commands/rehearse_launch.h
//
// A launch on stand-ins for the disk, for the registry and for the starting of programs: of a command, or of what the
// main window holds.

#pragma once

#include "commands/command_place.h"
#include "launcher/launcher.h"

namespace lv {

/// What there was nothing for, a sentence each.
struct Lacking {
    std::vector<Text> Refused{};  // with one of these the launch itself would not begin
    std::vector<Text> Told{};     // the rest goes on
};

/// Picks what is to be launched; its notes are for the user.
using Choice = std::function<Lacking(Launcher&, Text& notes)>;

/// Out is the report, and kFinds if something is missing. What refuses the launch refuses this, with the same words.
CommandResult RehearseLaunch(const CommandPlace& place, const Choice& choose);

/// Gives the main window its dry run.
void ConnectDryRun(Launcher& window, std::function<CommandPlace()> place);

}  // namespace lv
