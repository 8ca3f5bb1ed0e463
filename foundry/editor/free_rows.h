// foundry/editor/free_rows.h
//
// The rows that the user fills himself: messages, extra bindings, scripts to run.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

void AddMessage_Cmd_Click(Fig_Frm& form);
void AddExtraBinding_Cmd_Click(Fig_Frm& form);
void AddBoundScript_Cmd_Click(Fig_Frm& form);

// They only tell how it is done.
void EditMessage_Cmd_Click(Fig_Frm& form);
void DeleteMessage_Cmd_Click(Fig_Frm& form);
void EditExtraBinding_Cmd_Click(Fig_Frm& form);
void DeleteExtraBinding_Cmd_Click(Fig_Frm& form);
void EditoundScript_Cmd_Click(Fig_Frm& form);
void DeleteBoundScript_Cmd_Click(Fig_Frm& form);

void Say_Team_Chk_Click(Fig_Frm& form, SlotNumber slot);

/// A click on a row of messages, extras or scripts: the left button fills, edits or opens it, the right one deletes it.
/// Other rows ignore it. Bound_Lbl_MouseUp comes here.
void FreeRow_LeftClick(Fig_Frm& form, SlotNumber slot);
void FreeRow_RightClick(Fig_Frm& form, SlotNumber slot);

}  // namespace lv
