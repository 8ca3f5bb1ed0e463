// foundry/fonts/name_codes.h
//
// Which letters of a game's console font a name can be made of.

#pragma once

#include "foundation/game.h"

namespace lv {

/// Whether the code, 0 to 255, can be chosen: 0, 10 and 13 can't be written, nor "\" in Quake II, and Unreal's font has
/// holes.
bool NameTakes(Game gameKind, int code);

}  // namespace lv
