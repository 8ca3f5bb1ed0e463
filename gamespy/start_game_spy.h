// gamespy/start_game_spy.h
//
// GameSpy 3D brought to the front: its window if it runs, else the program started.

#pragma once

#include "foundation/run.h"

namespace lv {

/// False if it could not be started, which the user was told, or if the program ended meanwhile.
bool StartGameSpy(Run& run);

}  // namespace lv
