// foundry/editor/alias_boxes.h
//
// The bindable boxes: the slots 601 to 627, each of which an alias can take so that keys are bound to it.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// The box that the alias has; kNoSlot if it has none.
SlotNumber BoxOfAlias(const ScriptDocument& document, TextView name);

/// Puts the alias into the first free box. False if none is free, which the user was told.
bool PutIntoBox(Fig_Frm& form, TextView name);

/// The box and the keys bound to it follow the alias to a new name.
void RenameBox(Fig_Frm& form, SlotNumber box, TextView name);

/// Frees the box and its keys.
void EmptyBox(Fig_Frm& form, SlotNumber box);

/// EmptyBox, if the user agrees to it or no key is bound. False if he does not.
bool TakeOutOfBox(Fig_Frm& form, SlotNumber box);

}  // namespace lv
