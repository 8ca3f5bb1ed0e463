#include "foundry/editor/confirm_exit.h"

namespace lv {

ConfirmExit_Frm::ConfirmExit_Frm(Run& owner) : ModalWindow(owner, "ConfirmExit_Frm") {
    Caption = "Confirm Exit";
    Label1.Caption = "Changes have not been saved.";
    Label2.Caption = "Exit Anyway?";
    SaveNow_Chk.Caption = "Save Script Now";
    Yes_Cmd.Caption = "&Yes";
    No_Cmd.Caption = "&No";
}

void ConfirmExit_Yes_Cmd_Click(ConfirmExit_Frm& form) {
    form.DialogResult = form.SaveNow_Chk.Value == 1 ? ExitAnswer::SaveAndExit : ExitAnswer::Exit;
    form.Closed = true;
}

void ConfirmExit_No_Cmd_Click(ConfirmExit_Frm& form) {
    form.DialogResult = form.SaveNow_Chk.Value == 1 ? ExitAnswer::SaveAndStay : ExitAnswer::Stay;
    form.Closed = true;
}

ExitAnswer ConfirmExit(Run& run) {
    ConfirmExit_Frm form(run);
    ShowModal(form);
    return form.DialogResult;
}

}  // namespace lv
