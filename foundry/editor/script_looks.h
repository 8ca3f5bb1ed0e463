// foundry/editor/script_looks.h
//
// The buttons that open the windows of look/, and what those leave to the editor.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// What a save would change now. "Keep these" is an edit like any other.
void ShowChanges_Cmd_Click(Fig_Frm& form);

/// Ahead of a save: asks where the game would lose something by it that the user has not changed themselves, and keeps
/// that where they want it. False if nothing is to be saved.
bool MaySaveChanges(Fig_Frm& form);

/// Which scripts the game executes with this one, as it is edited now, and which of them wins.
void FileOrder_Cmd_Click(Fig_Frm& form);
void AliasGraph_Cmd_Click(Fig_Frm& form);
void ScriptCheck_Cmd_Click(Fig_Frm& form);

/// The older versions of the script. One that was brought back is edited then; that is one change, which can be undone.
void Versions_Cmd_Click(Fig_Frm& form);

}  // namespace lv
