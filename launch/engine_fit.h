// launch/engine_fit.h
//
// The launch of an engine of today: its command line fitted to it, and what goes into the script instead.

#pragma once

#include "games/fitting/engine_rules.h"
#include "launch/launch_composition.h"
#include "platform/files.h"

namespace lv {

/// The engine that the executable is, or null for the games' own programs and what is not known. Unreal's take their
/// command line as it is.
const Engine* EngineOfLaunch(const EngineTable& engines, const LaunchSelection& selection, const LaunchGame& game);

/// `withScript`: the script has text of its own and will be written.
FittedCommand FitLaunch(const Engine& engine, Files& disk, const LaunchSelection& selection, const LaunchGame& game,
                        const LaunchTexts& texts, bool withScript);

/// What was left out or changed and why, each with its reason in a line of its own, under the engine's name. Empty if
/// nothing was.
Text FitReport(const Engine& engine, const FittedCommand& fitted);

/// SET lines for the engine, each ended by NewLine.
Text FitEnvironment(const FittedCommand& fitted);

/// autoexec.cfg with these lines: a block of the program's own at its end, in place of the last launch's. Without lines
/// the block goes.
Text AutoexecWith(TextView autoexec, TextView lines);

}  // namespace lv
