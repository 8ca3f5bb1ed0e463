// foundry/tables/page_lists.h
//
// The choices of the lists that hold no plain numbers.

#pragma once

#include "foundation/game.h"
#include "foundry/tables/script_settings.h"

namespace lv {

/// Empties and fills the other lists of the pages, with nothing selected: crosshair, hand, player class, the Unreal
/// lists and weapons. An Unreal ini's numbers have a point in every locale.
void FillPageLists(ScriptSettings& settings, Game gameKind, Dialect scriptFamily, bool isMissionPack);

}  // namespace lv
