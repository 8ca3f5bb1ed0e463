// tests/foundry/kinds.h
//
// Kinds of games as the tests go through them.

#pragma once

#include <initializer_list>

#include "foundation/game.h"

namespace lv {

using Kinds = std::initializer_list<Game>;
using KeyList = std::initializer_list<Index>;  // and labels
using Slots = std::initializer_list<Index>;

constexpr Game kKinds[] = {Game::Quake, Game::Hexen2,   Game::Quake2,  Game::Unreal,
                           Game::Sin,   Game::Heretic2, Game::HalfLife};

}  // namespace lv
