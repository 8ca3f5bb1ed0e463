// wizard/engine_advice.h
//
// What to install for a game that nothing here plays: told once of each game, and then only where it is asked for.

#pragma once

#include "wizard/found_games.h"

namespace lv {

/// A tree that the setup was shown.
struct SetUpTree {
    std::size_t Row = 0;
    Text Path;                // lower case
    bool IsPlayed = false;    // there is a program for it
    bool IsAskedFor = false;  // the user has named it, and no look around
};

/// Of each tree without a program: of those that it was not told of yet, and of those that were asked for. `all`: of
/// every one. A tree that has a program now counts as one that was never told of.
void AdviseOnce(Run& run, const EngineTable& engines, const std::vector<SetUpTree>& trees, bool all);

/// Tells what to install for a game without any program to play it, and offers that to be copied. Of a game that no
/// engine plays it asks for the game's own program.
void AdviseEngine(Run& run, const EngineTable& engines, std::size_t row, TextView path);

}  // namespace lv
