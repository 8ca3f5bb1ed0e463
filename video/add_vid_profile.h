// video/add_vid_profile.h
//
// The dialog that asks for the name of a new video profile.

#pragma once

#include "foundation/modal_window.h"

namespace lv {

struct AddVidProfile_Frm : ModalWindow {
    explicit AddVidProfile_Frm(Run& run);

    Label NewVidProfileName_Lbl;
    TextBox NewVidProfileName_Txt;
    CommandButton OK_Cmd;
    CommandButton Cancel_Cmd;

    bool DialogResult = false;
    Text LastEntry;
};

/// Whether the character may stand in a profile's name, which is the name of a section and an entry of a list
/// separated by ";". Backspace (8) may be typed too.
bool TakesProfileNameCharacter(char typed);

/// Text that comes in another way than by typing is cut down to what may be typed.
void AddVidProfile_NewVidProfileName_Txt_Change(AddVidProfile_Frm& form);
void AddVidProfile_OK_Cmd_Click(AddVidProfile_Frm& form);
void AddVidProfile_Cancel_Cmd_Click(AddVidProfile_Frm& form);

}  // namespace lv
