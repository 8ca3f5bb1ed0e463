// foundry/tables/kind_set.h
//
// Sets of games, as the rows of the editor's tables name them.

#pragma once

#include "foundation/game.h"

namespace lv {

/// A bit a game.
using KindSet = unsigned;

/// Only(Game::Quake, Game::Sin)
template <class... Games>
constexpr KindSet Only(Games... games) {
    return (0U | ... | (1U << static_cast<unsigned>(games)));
}

template <class... Games>
constexpr KindSet Not(Games... games) {
    return ~Only(games...);
}

constexpr bool Has(KindSet set, Game game) {
    return game > Game::None && game <= Game::HalfLife && (set & Only(game)) != 0;
}

constexpr KindSet kEveryGame =
    Only(Game::Quake, Game::Hexen2, Game::Quake2, Game::Unreal, Game::Sin, Game::Heretic2, Game::HalfLife);

}  // namespace lv
