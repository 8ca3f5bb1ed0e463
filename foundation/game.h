// foundation/game.h
//
// The games and the dialects of their scripts. What is stored of them is a number; everything else says their names.

#pragma once

#include "foundation/text.h"

namespace lv {

enum class Game : Index {
    None = 0,
    Quake = 1,
    Hexen2 = 2,
    Quake2 = 3,
    Unreal = 4,
    Sin = 5,
    Heretic2 = 6,
    HalfLife = 9
};

enum class Dialect : Index { None = 0, Quake = 1, Quake2 = 3, Unreal = 4 };

/// As it is stored.
constexpr Index NumberOf(Game game) {
    return static_cast<Index>(game);
}

}  // namespace lv
