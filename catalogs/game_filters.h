// catalogs/game_filters.h
//
// What the file dialogs offer for each game, and the extension of its own scripts.

#pragma once

#include "foundation/game.h"

namespace lv {

struct GameFilters {
    Game GameKind;
    TextView Scripts;    // filter of the file dialog
    TextView Demos;      // the same; empty: the game has none
    TextView Extension;  // with its point, ".qs"
};

/// The row of a game; null for none.
const GameFilters* FiltersOf(Game gameKind);

}  // namespace lv
