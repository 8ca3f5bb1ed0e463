// foundry/half_life/key_code_names.h
//
// Half-Life's registry names a key by a code from 0 to 255; a script names it by a word.

#pragma once

#include "foundry/tables/keys.h"

namespace lv {

constexpr int kHalfLifeKeyCodes = 256;
constexpr int kNoHalfLifeKey = -1;

/// The word for a key code, as the registry spells it: "ctl" is no slip here. Codes without a word are the character
/// of that code.
Text HalfLifeKeyName(int code);

/// The code of an editor's key; kNoHalfLifeKey for those that the game has none for: the keypad, joysticks beyond 4.
int HalfLifeKeyCode(KeyIndex key);

}  // namespace lv
