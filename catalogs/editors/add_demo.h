// catalogs/editors/add_demo.h
//
// The dialog that adds or edits a demo.

#pragma once

#include "catalogs/editors/entry_window.h"

namespace lv {

struct AddDemo_Frm : EntryWindow {
    AddDemo_Frm(Run& owner, CatalogLists& lists, EntryMode mode);

    CatalogLists& Lists;
    Label DemoTitle_Lbl;
    Label DemoPath_Lbl;
    TextBox DemoTitle_Txt;
    TextBox DemoPath_Txt;  // the file's name, without the command before it
    CommandButton Browse_Cmd;
};

void AddDemo_Browse_Cmd_Click(AddDemo_Frm& form);

/// In edit mode the command is "playdemo" in every game: kept on purpose.
void AddDemo_OK_Cmd_Click(AddDemo_Frm& form);

}  // namespace lv
