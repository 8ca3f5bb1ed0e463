// foundry/tables/setting_lists.h
//
// The values that the drop-downs of the settings offer.

#pragma once

#include "foundry/tables/script_settings.h"

namespace lv {

/// Empties the lists of the numeric settings and fills them by their rules, with nothing selected, whatever a script
/// read before has added. `decimalSeparator` is the locale's, "." or ",".
void FillSettingLists(ScriptSettings& settings, char decimalSeparator);

}  // namespace lv
