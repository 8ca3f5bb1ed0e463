// foundry/look/launch_looks.h
//
// The start that is looked at: the one of a launch, with a script that it may not execute.

#pragma once

#include "console/files/start_run.h"
#include "launcher/launcher.h"

namespace lv {

struct LookedStart {
    StartRequest Request;
    Text Note;  // what is otherwise than in a launch; empty: nothing
};

/// `request` with the script executed behind all else, if it does not execute it itself. Of Unreal's inis it is the one
/// that is read then.
LookedStart StartWith(Files& disk, StartRequest request, TextView script);

/// The windows of the main window's menu Tools: of the picked game, with the picked script.
void ShowFileOrderOfLaunch(Launcher& launcher);
void ShowCheckOfLaunch(Launcher& launcher);

}  // namespace lv
