// foundry/look/file_order_frm.h
//
// The window that says which scripts a game executes when it starts, in their order, and which of them has the last
// word on each key, alias and setting.

#pragma once

#include "console/files/start_run.h"
#include "foundation/modal_window.h"

namespace lv {

struct FileOrder_Frm : ModalWindow {
    /// `note` says what is otherwise than in a launch; empty: nothing.
    FileOrder_Frm(Run& owner, const StartRequest& request, TextView note = {});

    Label Note_Lbl;  // seen only where there is something to note
    Label Files_Lbl;
    ListBox Files_Lst;  // a row each of Start.Scripts
    Label Wanted_Lbl;
    TextBox Wanted_Txt;
    ListBox Set_Lst;  // what is set, and by whom last
    Label Setters_Lbl;
    ListBox Setters_Lst;  // all who set the selected one, the one that wins last
    CommandButton Show_Cmd;
    CommandButton Close_Cmd;

    StartRequest Request;
    StartRun Start;
    std::vector<std::size_t> Things;  // a row each of Set_Lst: its place in Start.Set.All()
};

/// Lists what has the typed text in its name, in any letter case.
void FileOrder_Wanted_Txt_Change(FileOrder_Frm& form);
void FileOrder_Files_Lst_Click(FileOrder_Frm& form);
void FileOrder_Set_Lst_Click(FileOrder_Frm& form);
void FileOrder_Setters_Lst_Click(FileOrder_Frm& form);
/// Shows the text of the script that was clicked on last, at its line.
void FileOrder_Show_Cmd_Click(FileOrder_Frm& form);
void FileOrder_Close_Cmd_Click(FileOrder_Frm& form);

/// What becomes of a script that does not just run; empty for one that does.
TextView FateText(const RunScript& script);

}  // namespace lv
