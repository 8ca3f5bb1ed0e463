// catalogs/editors/add_script.h
//
// The dialog that adds a script to the list, renames its entry, or makes a new script file.

#pragma once

#include "catalogs/editors/entry_window.h"

namespace lv {

struct AddScript_Frm : EntryWindow {
    AddScript_Frm(Run& owner, CatalogLists& lists, EntryMode mode);

    CatalogLists& Lists;
    Label ScriptTitle_Lbl;
    Label ScriptPath_Lbl;
    TextBox ScriptTitle_Txt;
    TextBox ScriptPath_Txt;
    CommandButton Browse_Cmd;
};

void AddScript_Browse_Cmd_Click(AddScript_Frm& form);

/// Afterwards the list is filled anew and the entry is the selected one.
void AddScript_OK_Cmd_Click(AddScript_Frm& form);

/// The whole path of what was typed: the usual extension, and the game's script directory, where they are missing.
Text WholeScriptPath(const Run& run, TextView typed);

}  // namespace lv
