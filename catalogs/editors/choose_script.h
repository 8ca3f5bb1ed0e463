// catalogs/editors/choose_script.h
//
// The dialog that asks for a script by its name.

#pragma once

#include "catalogs/editors/entry_window.h"

namespace lv {

struct ChooseScript_Frm : EntryWindow {
    /// Browsing begins in `directory`.
    ChooseScript_Frm(Run& owner, TextView directory);

    Text Directory;
    Label Label2;
    TextBox ScriptPath_Txt;
    CommandButton Browse_Cmd;
    Text LastEntry;
};

void ChooseScript_Browse_Cmd_Click(ChooseScript_Frm& form);
void ChooseScript_OK_Cmd_Click(ChooseScript_Frm& form);

}  // namespace lv
