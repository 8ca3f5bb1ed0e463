// commands/list_command.h
//
// "--list": a line a row, its fields parted by tabs, the name first.

#pragma once

#include "commands/command_place.h"
#include "commands/command_words.h"

namespace lv {

/// Programs: title, game, path, last start ("1999-11-21 12:30", empty: never), time played ("12:05"). Modifications:
/// title, directory. Scripts: title, path. Servers: title, address. Maps and profiles: the name. Those of the picked
/// program's game, or of the one that the command names.
CommandResult ListRows(const Command& command, const CommandPlace& place);

}  // namespace lv
