// foundry/editor/bindings_page.h
//
// The rows of functions and the keys: dragging, dropping, clearing, the panels of the pages.

#pragma once

#include "foundry/editor/fig_frm.h"
#include "foundry/editor/key_capture.h"

namespace lv {

void Main_Tab_Click(Fig_Frm& form, int page);
void Bindings_Tab_Click(Fig_Frm& form, int page);
void JoyToggle_Cmd_Click(Fig_Frm& form, int index);

// A drag, from press to drop. The form holds the mouse meanwhile and shows Drag.Icon as the pointer.
void Key_Lbl_MouseMove(Fig_Frm& form, Index label);
void Key_Lbl_MouseDown(Fig_Frm& form, Index label);
void Setting_Lbl_DragEnter(Fig_Frm& form, SlotNumber slot);
void Setting_Lbl_DragLeave(Fig_Frm& form, SlotNumber slot);
void Setting_Lbl_DragDrop(Fig_Frm& form, SlotNumber slot);
/// Escape, or a release where nothing takes a key: the pointer and the row's colours are as before.
void GiveUpDrag(Fig_Frm& form);

void Key_Lbl_DblClick(Fig_Frm& form, Index label);
void Setting_Lbl_DblClick(Fig_Frm& form, SlotNumber slot);

/// A click on the name of a row; `right` is the right mouse button.
void Bound_Lbl_MouseUp(Fig_Frm& form, SlotNumber slot, bool right);

}  // namespace lv
