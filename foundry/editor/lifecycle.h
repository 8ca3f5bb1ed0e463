// foundry/editor/lifecycle.h
//
// The window's life: load, auto save, save, exit.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// Behind the reader, before the window is seen.
void Fig_Frm_Load(Fig_Frm& form);

/// The window is to close: asks about unsaved changes; true if it closes. What closes it besides calls this too.
bool Fig_Frm_Unload(Fig_Frm& form);

void View_Cmd_Click(Fig_Frm& form, int index);  // 6 "&Save", 7 "Save &As..."
void UnloadSF_Cmd_Click(Fig_Frm& form);
void Save_Tmr_Timer(Fig_Frm& form);
void AutoSaveEnable_Chk_Click(Fig_Frm& form);
void Minutes_Cbo_Click(Fig_Frm& form);
void AutoSaveWarning_Chk_Click(Fig_Frm& form);
void ExitOnSave_Chk_Click(Fig_Frm& form);

// Free Form Additions
void Section_Cbo_Click(Fig_Frm& form);
/// The text of the section that is shown.
void FreeForm_Txt_Change(Fig_Frm& form, TextView text);

}  // namespace lv
