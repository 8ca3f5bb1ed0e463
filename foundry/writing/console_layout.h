// foundry/writing/console_layout.h
//
// The layout of a console script: what a player's script of every game but Unreal looks like, line by line.

#pragma once

#include "foundry/document/script_document.h"
#include "platform/clock.h"

namespace lv {

/// Whether a binding of the key is written: only the newer games tell the keypad from the main keys.
bool IsWrittenKey(KeyIndex key, Dialect family);

/// A list without a selection has no line.
Text ConsoleScript(const ScriptDocument& document, const LocalTime& date);

}  // namespace lv
