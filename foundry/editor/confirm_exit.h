// foundry/editor/confirm_exit.h
//
// The question before unsaved work is left.

#pragma once

#include "foundation/modal_window.h"

namespace lv {

/// The box adds two to what the button says.
enum class ExitAnswer { Exit, Stay, SaveAndExit, SaveAndStay };

struct ConfirmExit_Frm : ModalWindow {
    explicit ConfirmExit_Frm(Run& owner);

    Label Label1;
    Label Label2;
    CheckBox SaveNow_Chk;
    CommandButton Yes_Cmd;
    CommandButton No_Cmd;

    ExitAnswer DialogResult = ExitAnswer::Stay;  // closing the window by its frame is a "&No"
};

void ConfirmExit_Yes_Cmd_Click(ConfirmExit_Frm& form);
void ConfirmExit_No_Cmd_Click(ConfirmExit_Frm& form);

/// Shows it over the active form.
ExitAnswer ConfirmExit(Run& run);

}  // namespace lv
