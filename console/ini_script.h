// console/ini_script.h
//
// Unreal's ini: keys and aliases in "[Engine.Input]", settings everywhere else.

#pragma once

#include "console/script_effects.h"

namespace lv {

/// A section's key that occurs more than once may be a list: its last value is the setting's, and each of its lines is
/// an action as well. The weapons' priorities are one setting, their names from the least wanted one on.
ScriptEffects IniEffects(TextView ini);

}  // namespace lv
