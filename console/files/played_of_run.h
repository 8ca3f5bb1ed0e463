// console/files/played_of_run.h
//
// The game that is picked, as its console starts it.

#pragma once

#include "console/files/search_path.h"
#include "foundation/run.h"
#include "games/engines/engine_table.h"

namespace lv {

/// Of the run's directories. `engine` is null for the game's own program.
PlayedGame PlayedOfRun(const Run& run, const Engine* engine, TextView program, Game game, bool isQuakeWorld);

}  // namespace lv
