// gamespy/configure.h
//
// The branch of a launch that makes GameSpy 3D start the games this program's way: files, registry, and GameSpy
// itself.

#pragma once

#include <functional>

#include "gamespy/game_spy_config.h"
#include "launch/launch_composition.h"

namespace lv {

struct SpyLaunch {
    Run& run;
    GameSpyConfig_Frm& Form;  // answered with OK
    const LaunchSelection& Selection;
    LaunchTexts& Texts;     // composed, the additions with them; LaunchStep follows what is done
    Text EnvironmentLines;  // each ended by NewLine
    std::function<Error(const Text& ini)> SetUnrealVideoOptions;
    std::function<void(MinimizeLorvane)> LeaveMainWindow;
};

/// What is left to tell, in the error report.
struct SpyFailure {
    Error Fault;
    Text FailureFile;
};

/// From step GameSpyGames to GameSpyStarted. A stop that is no failure was told to the user; what was written stays.
SpyFailure ConfigureGameSpy(SpyLaunch& launch);

}  // namespace lv
