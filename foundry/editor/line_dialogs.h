// foundry/editor/line_dialogs.h
//
// The two dialogs that ask for one line: something to say, and the commands of an extra binding.

#pragma once

#include "foundation/modal_window.h"

namespace lv {

/// Both are this; the result is empty after Cancel. OK takes an empty text too.
struct LineDialog : ModalWindow {
    LineDialog(Run& owner, TextView name);

    Label Label1;
    TextBox Message_Txt;
    CommandButton OK_Cmd;
    CommandButton Cancel_Cmd;
    Text Result;
    bool Taken = false;  // OK was pressed
};

struct SayStuff_Frm : LineDialog {
    explicit SayStuff_Frm(Run& owner);
};

struct ExtraBinding_Frm : LineDialog {
    explicit ExtraBinding_Frm(Run& owner);
};

void LineDialog_OK_Cmd_Click(LineDialog& form);
void LineDialog_Cancel_Cmd_Click(LineDialog& form);

}  // namespace lv
