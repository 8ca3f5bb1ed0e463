// catalogs/editors/add_exe.h
//
// The dialog that adds or edits an executable.

#pragma once

#include <functional>

#include "catalogs/editors/entry_window.h"

namespace lv {

struct AddExe_Frm : EntryWindow {
    /// In edit mode the fields hold the selected row.
    AddExe_Frm(Run& owner, CatalogLists& lists, EntryMode mode);

    CatalogLists& Lists;
    Label ExeTitle_Lbl;
    Label ExePath_Lbl;
    TextBox ExeTitle_Txt;
    TextBox ExePath_Txt;
    CommandButton Browse_Cmd;

    /// The change of game to the row that was added or edited.
    std::function<void()> ChangeGame;
};

void AddExe_Browse_Cmd_Click(AddExe_Frm& form);
void AddExe_OK_Cmd_Click(AddExe_Frm& form);

}  // namespace lv
