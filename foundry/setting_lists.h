// foundry/setting_lists.h
//
// The values that the drop-downs of the settings offer.

#pragma once

#include "foundry/script_settings.h"

namespace lv {

/// Empties the lists of the numeric settings and fills them by their rules, with nothing selected, whatever a script
/// read before has added. `decimalSeparator` is the locale's, "." or ",".
void FillSettingLists(ScriptSettings& settings, char decimalSeparator);

/// The same for the other lists of the pages: crosshair, hand, player class, the Unreal lists and weapons. An Unreal
/// ini's numbers have a point in every locale.
void FillPageLists(ScriptSettings& settings, Index gameKind, Index scriptFamily, bool isMissionPack);

}  // namespace lv
