// commands/launch_choice.h
//
// What a command says about a launch, picked and ticked in the launcher's lists.

#pragma once

#include "commands/command_place.h"
#include "commands/command_words.h"

namespace lv {

/// Picks what the command names, and ticks its box; boxes that ask GameSpy 3D, which a launch without the window
/// cannot, are cleared. `notes` gets what its user should know of that. A sentence each for what there is nothing for:
/// with one of these nothing is launched.
std::vector<Text> Choose(Launcher& launcher, const Command& command, Text& notes);

/// What is said of a command that names what is not there.
CommandResult NotCalledSo(const std::vector<Text>& missing);

}  // namespace lv
