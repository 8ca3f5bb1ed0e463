// foundry/fonts/own_font.h
//
// The font that stands in where a game's own is not to be had.

#pragma once

#include "foundation/game.h"
#include "foundry/fonts/font_map.h"

namespace lv {

/// Our own font: plain letters and decorated cells; 128 above them golden ones, or in Unreal and Heretic II, whose
/// upper half has letters of its own, those of code page 1252. Unreal's font has holes, and so has ours then.
FontMap OwnFont(Game gameKind);

}  // namespace lv
