// foundry/fonts/player_colors.h
//
// What the colours of shirt and pants look like, as the scoreboards of the games show them.

#pragma once

#include <array>
#include <optional>

#include "foundry/fonts/palette.h"
#include "foundry/tables/script_settings.h"

namespace lv {

using PlayerColorList = std::array<Color, 14>;  // in the form of ColorTable

/// Quake: a colour is a row of the palette, shown by its entry 8.
PlayerColorList QuakeColors(const Palette& palette);

/// Hexen II: `table` is gfx/player.lmp, which has colours of its own for each class; these are the shirts of the
/// Paladin, the Assassin and those after them. 0, and what is above 10, leaves the class's own colour. Nothing if the
/// table is too short, or recolours nothing.
std::optional<PlayerColorList> Hexen2Colors(const Palette& palette, TextView table);

}  // namespace lv
