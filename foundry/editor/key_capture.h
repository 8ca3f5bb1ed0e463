// foundry/editor/key_capture.h
//
// Binding a key to a function without a mouse, and what assistive tools read of keys and functions.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// Why the row takes no key, in words for Hint_Lbl; empty for one that does.
TextView RefusalOf(const Fig_Frm& form, SlotNumber slot);

/// Enter on a row: it takes the key that was picked up, or waits for one. A row that takes no key says so in Hint_Lbl.
void StartCapture(Fig_Frm& form, SlotNumber slot);
/// The key that was pressed while a row waits, a mouse button or a turn of the wheel too, by its label: one of the
/// keypad is the main key where the game knows no other. kNoKey for one that can't be bound, which Hint_Lbl tells.
void CaptureKey(Fig_Frm& form, Index label);
/// Escape: no row waits, and no key is picked up.
void GiveUpCapture(Fig_Frm& form);
/// Enter on a key picks it up, or lays it down again.
void PickUpKey(Fig_Frm& form, Index label);
/// Delete on a row, which asks as the double click does. On a key it is Key_Lbl_DblClick.
void ClearRow(Fig_Frm& form, SlotNumber slot);

/// What Hint_Lbl says of what to do next, when there is nothing to be refused.
Text UsualHint(const Fig_Frm& form);
void RestoreHint(Fig_Frm& form);

/// What assistive tools read: "W, Forward" and "Forward: W : Up".
Text SpokenKey(const Fig_Frm& form, Index label);
Text SpokenRow(const Fig_Frm& form, SlotNumber slot);

}  // namespace lv
