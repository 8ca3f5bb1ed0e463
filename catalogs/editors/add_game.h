// catalogs/editors/add_game.h
//
// The dialog that adds or edits a modification subdirectory.

#pragma once

#include "catalogs/editors/entry_window.h"

namespace lv {

struct AddGame_Frm : EntryWindow {
    AddGame_Frm(Run& owner, CatalogLists& lists, EntryMode mode);

    CatalogLists& Lists;
    Label GameTitle_Lbl;
    Label GamePath_Lbl;
    TextBox GameTitle_Txt;
    TextBox GamePath_Txt;  // the directory's name below the game's
    CommandButton Browse_Cmd;
};

void AddGame_Browse_Cmd_Click(AddGame_Frm& form);
void AddGame_OK_Cmd_Click(AddGame_Frm& form);

}  // namespace lv
