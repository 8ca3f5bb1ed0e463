// games/fitting/command_moving.h
//
// Commands that go out of the command line into a script: the launch's own, or the engine's autoexec.cfg.

#pragma once

#include "games/fitting/switch_fitting.h"

namespace lv {

/// Whether the part runs the launch's script.
bool ExecutesScript(const Fitting& fitting, const CommandPart& part);

/// A command that could as well stand in the script.
bool IsMovable(const Fitting& fitting, const CommandPart& part);

/// For an engine that, with shareware data, runs no command of its command line.
void FitShareware(Fitting& fitting);

/// What the engine would tear apart, and what follows it.
void MoveTorn(Fitting& fitting);

/// Every command that can.
void MoveAllCommands(Fitting& fitting, TextView why);
void MoveToAutoexec(Fitting& fitting, const CommandPart& part, TextView why);

/// Lines that have come to the script are for nothing if it is not run.
void ExecuteScript(Fitting& fitting);

}  // namespace lv
