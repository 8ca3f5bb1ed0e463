// games/fitting/command_tearing.h
//
// Commands that an engine would not read out of its command line as they stand there.

#pragma once

#include <optional>

#include "games/engines/engine_table.h"
#include "games/fitting/command_parts.h"

namespace lv {

/// Whether it is a "+set name value" that the engine reads as arguments, ahead of all other commands.
bool SetsEarly(const Engine& engine, const CommandPart& command);

/// Why the engine would read the command otherwise; nothing if it takes it as it is.
std::optional<Text> WhyTorn(const Engine& engine, const CommandPart& command);

/// Whether the engine would find a command in an option's arguments.
bool HoldsCommand(const Engine& engine, const CommandPart& option);

/// The command as a line of a script, without its sign and without a line end; what the user has typed stays as typed.
/// Nothing if no script can say it: a given word holds a double quote or a control character.
std::optional<Text> AsScriptLine(const CommandPart& command);

}  // namespace lv
