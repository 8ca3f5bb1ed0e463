// console/key_names.h
//
// The keys that each console knows by name.

#pragma once

#include "console/console_rules.h"

namespace lv {

/// Whether the console binds a key of this name, in any letter case. A printable character stands for itself. An ini
/// knows every name.
bool IsKeyName(Console console, TextView name);

/// One text for all names of a key: "F1" for "f1", ";" for "semicolon", "KP_HOME" for "kp_7". A letter stays as it is
/// where the console takes a capital for a key of its own.
Text KeyIdentity(Console console, TextView name);

}  // namespace lv
