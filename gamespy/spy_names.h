// gamespy/spy_names.h
//
// What the batches for GameSpy 3D take out of lists and directories, beside what every launch takes.

#pragma once

#include <vector>

#include "gamespy/game_spy_config.h"
#include "launch/launch_names.h"

namespace lv {

/// Executable, directory and script of each slot in use. As its batch says them: the directory always in double
/// quotes, the ini of Unreal in none.
std::vector<LaunchName> SpyNames(GameSpyConfig_Frm& form);

/// False if one of these, or of what the launch itself takes, would be more than text for the command processor that
/// GameSpy 3D starts its batches with, on every system; the user was told.
bool SpyNamesAreText(GameSpyConfig_Frm& form, const LaunchSelection& selection, const LaunchGame& game);

}  // namespace lv
