// foundation/game_numbers.h
//
// The games and script dialects by the numbers under which all of the program knows them.

#pragma once

#include "foundation/text.h"

namespace lv::game_kind {
constexpr Index kQuake = 1;
constexpr Index kHexen2 = 2;
constexpr Index kQuake2 = 3;
constexpr Index kUnreal = 4;
constexpr Index kSin = 5;
constexpr Index kHeretic2 = 6;
constexpr Index kHalfLife = 9;
}  // namespace lv::game_kind

namespace lv::script_family {
constexpr Index kQuake = 1;
constexpr Index kQuake2 = 3;
constexpr Index kUnreal = 4;
}  // namespace lv::script_family
