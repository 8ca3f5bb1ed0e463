// foundry/editor/lifecycle.h
//
// The window's life: load, auto save, save, exit.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// Ahead of the reader: what the window shows of any script of this game.
void PrepareEditor(Fig_Frm& form, const ScriptDialect& dialect);

/// Behind the reader, before the window is seen.
void Fig_Frm_Load(Fig_Frm& form);

/// The window is to close: asks about unsaved changes; true if it closes. What closes it besides calls this too. A
/// window that has closed stays so, and nothing is asked again.
bool Fig_Frm_Unload(Fig_Frm& form);

void View_Cmd_Click(Fig_Frm& form, int index);  // 6 "&Save", 7 "Save &As..."
/// Leaves without the question.
void UnloadSF_Cmd_Click(Fig_Frm& form);

/// A minute has gone, which counts whether auto save is on or not. It may come while a box of this window is up.
void Save_Tmr_Timer(Fig_Frm& form);

void AutoSaveEnable_Chk_Click(Fig_Frm& form);
void Minutes_Cbo_Click(Fig_Frm& form);
void AutoSaveWarning_Chk_Click(Fig_Frm& form);
void ExitOnSave_Chk_Click(Fig_Frm& form);

// Free Form Additions

/// What FreeForm_Txt shows: the text of the section that is picked, and of the only one where there is nothing to pick.
TextView FreeForm_Txt(const Fig_Frm& form);
/// Another section was picked: FreeForm_Txt shows it.
void Section_Cbo_Click(Fig_Frm& form);
/// The text of the section that is shown, with CR LF at its line ends. The text that it has is no edit.
void FreeForm_Txt_Change(Fig_Frm& form, TextView text);

}  // namespace lv
