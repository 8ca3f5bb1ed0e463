// commands/launch_command.h
//
// "--launch" and "--setup": a game started without the window, or rehearsed.

#pragma once

#include "commands/command_place.h"
#include "commands/command_words.h"

namespace lv {

/// Starts the game, with what is ticked and picked in the main window and what the command says in its place. Nothing
/// of that is stored. With DryRun nothing is written and nothing started, and Out is the report of what would be.
CommandResult LaunchOrRehearse(const Command& command, const CommandPlace& place);

}  // namespace lv
