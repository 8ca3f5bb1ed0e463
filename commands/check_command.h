// commands/check_command.h
//
// "--check": what the game takes otherwise than it is meant in a script.

#pragma once

#include "commands/command_place.h"
#include "commands/command_words.h"

namespace lv {

/// A line a finding, "my.cfg:12: ...", and Err says whose console it was checked for: that of the program which the
/// command names; of the game in whose directory the script lies; else by its ending, Quake's for the plain one. A
/// script that the game finds is checked as it runs there, with what its other scripts define. kFinds if something sure
/// was found, kNothingCalledSo if the file is none, or no text.
CommandResult CheckOneScript(const Command& command, const CommandPlace& place);

}  // namespace lv
