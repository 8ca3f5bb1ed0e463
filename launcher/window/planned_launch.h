// launcher/window/planned_launch.h
//
// What a launch would give to the game as the window stands, without a question and without a change on disk.

#pragma once

#include <optional>

#include "console/files/start_run.h"
#include "launcher/launcher.h"

namespace lv {

struct PlannedLaunch {
    Text Command;     // of the game, as its program gets it
    Text ScriptPath;  // empty: none is written
    Text Script;
    Text AutoexecPath;  // of an engine that may get lines there; empty: the file stays as it is
    Text AutoexecTail;  // those lines; without any the last launch's go
};

/// Neither a server of GameSpy 3D is fetched, nor Half-Life's registry or Unreal's ini written.
PlannedLaunch PlanLaunch(Launcher& launcher);

/// The start that would come of it, with the files as the launch would write them. `edited` stands in the place of its
/// file.
StartRequest StartOfLaunch(Launcher& launcher, const std::optional<GivenScript>& edited = std::nullopt);

}  // namespace lv
