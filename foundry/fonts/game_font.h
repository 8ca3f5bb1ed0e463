// foundry/fonts/game_font.h
//
// The font and the player colours out of a game's own data.

#pragma once

#include <array>
#include <optional>

#include "foundation/game.h"
#include "foundry/fonts/font_map.h"
#include "foundry/tables/script_settings.h"
#include "platform/files.h"

namespace lv {

/// The font of the kind of game, searched in `directories` in their order ("C:\QUAKE\ID1"): the loose file, then the
/// archives, the newest first. Nothing if there is none, or none that is whole. Unreal's is not read.
std::optional<FontMap> ReadGameFont(Files& disk, const std::vector<Text>& directories, Game gameKind);

/// The colours 0 to 13 of shirt and pants as the game's scoreboard shows them, in the form of ColorTable. Nothing
/// without the game's palette, and for other games than Quake and Hexen II.
std::optional<std::array<Color, 14>> ReadPlayerColors(Files& disk, const std::vector<Text>& directories, Game gameKind);

}  // namespace lv
