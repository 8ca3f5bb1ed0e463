// launcher/window/engine_launch.h
//
// What a launch does otherwise when an engine of today is to be started.

#pragma once

#include "foundation/run.h"
#include "launch/engine_fit.h"

namespace lv {

struct EngineLaunch {
    const Engine* Its = nullptr;  // null: one of the games' own programs
    FittedCommand Fitted;
    bool Stopped = false;  // nothing is to be started; the user was told why, or there was an error
};

/// False if the program is an engine of today that lies in no game's directory: a launch would write beside it. The
/// user was told what to do.
bool PlaysAGame(Run& run, const EngineTable& engines, const LaunchSelection& selection, const LaunchGame& game);

/// Fits command and script to this engine. Nothing is asked, and nothing written.
FittedCommand FitTexts(const Engine& engine, Files& disk, const LaunchSelection& selection, const LaunchGame& game,
                       LaunchTexts& texts, Text& script);

/// Where an engine gets the lines that it must not have in its command line.
Text AutoexecPathOf(const Run& run, TextView directory);

/// Fits command and script to the engine, if the executable is one, and writes what must go into the engine's own
/// autoexec.cfg: into a tree of links at once, into the user's own only if the user agrees. The error is that file's.
Error FitToEngine(Run& run, const EngineTable& engines, const LaunchSelection& selection, const LaunchGame& game,
                  LaunchTexts& texts, Text& script, EngineLaunch& launch);

/// What the engine gets in another way, for the view box. Empty where there is nothing to tell.
Text AboutEngine(const EngineLaunch& launch);

}  // namespace lv
