// commands/check_command.h
//
// "--check": what the game takes otherwise than it is meant in a script.

#pragma once

#include "commands/command_place.h"

namespace lv {

/// A line a finding, "my.cfg:12: ...". A script that lies in a game's directory is checked as that game runs it, with
/// what its other scripts define; another by its ending, alone. kFinds if something sure was found.
CommandResult CheckOneScript(TextView word, const CommandPlace& place);

}  // namespace lv
