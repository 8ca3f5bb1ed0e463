// foundry/look/script_check_frm.h
//
// The window of what the game takes otherwise than it was meant, in the script and in those that are run with it.

#pragma once

#include "console/checks/run_check.h"
#include "foundation/modal_window.h"

namespace lv {

struct ScriptCheck_Frm : ModalWindow {
    /// `note` says what is otherwise than in a launch; empty: nothing.
    ScriptCheck_Frm(Run& owner, const StartRequest& request, TextView note = {});

    Label Note_Lbl;  // seen only where there is something to note
    Label Findings_Lbl;
    ListBox Findings_Lst;  // "my.cfg:12: ...", a row each of Findings
    CommandButton Show_Cmd;
    CommandButton Close_Cmd;

    StartRequest Request;
    std::vector<Finding> Findings;  // what is sure first
};

void ScriptCheck_Findings_Lst_Click(ScriptCheck_Frm& form);
/// Shows the line that the selected row is about.
void ScriptCheck_Show_Cmd_Click(ScriptCheck_Frm& form);
void ScriptCheck_Close_Cmd_Click(ScriptCheck_Frm& form);

}  // namespace lv
