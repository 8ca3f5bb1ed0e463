// commands/run_command.h
//
// A command of the command line, done.

#pragma once

#include "commands/command_place.h"
#include "commands/command_words.h"

namespace lv {

/// What the words come to; Out and Err are fit to be printed. Not for OpenWindow, which is the window's.
CommandResult RunCommand(const Command& command, const CommandPlace& place);

/// Of words that ReadCommand refuses.
CommandResult NotUnderstood(const Error& fault);

/// Whether a command needs nothing of the system: no settings, no drives.
bool NeedsNothing(const Command& command);

/// Whether a command only looks at the settings and the drives: it is to work where neither may be written, and to make
/// nothing there. An export writes the one file that it names.
bool OnlyReads(const Command& command);

CommandResult AnswerAtOnce(const Command& command);

}  // namespace lv
