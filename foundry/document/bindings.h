// foundry/document/bindings.h
//
// The operations on the key, slot and alias tables. Each key holds one command at most, and a slot's key list always
// tells what the key table holds.

#pragma once

#include "foundry/document/script_document.h"
#include "foundry/document/script_view.h"

namespace lv {

/// Moves the key to the slot. Clears ScriptClean. Nothing happens for an index that is no key. A message is said to
/// those that its box tells, also where the box was changed while no key was bound to it.
void BindKey(ScriptDocument& document, ScriptView& view, KeyIndex key, SlotNumber slot);

/// Frees the key: all slots with its command lose it. Nothing happens for an index that is no key; a free key
/// only loses its tool tip. A key that was bound clears ScriptClean.
void UnbindKey(ScriptDocument& document, ScriptView& view, KeyIndex key);

/// Unbinds all keys that the slot's key list names. What is no key's caption is passed over.
void ClearSlotKeys(ScriptDocument& document, ScriptView& view, SlotNumber slot);

/// Gives the slot another command, and the keys that its key list names with it, one for one. Clears ScriptClean.
void RenameSlotCommand(ScriptDocument& document, ScriptView& view, SlotNumber slot, TextView command);

/// The command of a message: "say_team " for the own team, else "say ", and the text.
Text SayCommand(TextView message, bool toTeam);

/// The place of an alias, case-blind.
AliasPlace FindAlias(const ScriptDocument& document, TextView name);

/// Adds an alias, not bound, if there is none of that name yet; true if it was added. In Unreal `body` is the right
/// part of an ini's line, (Command="Fire | Jump",Alias=both), which says both, and `name` is not looked at; the name
/// "None" marks a place that is not in use. Neither name nor body may be empty.
bool AddAlias(ScriptDocument& document, TextView name, TextView body);

}  // namespace lv
