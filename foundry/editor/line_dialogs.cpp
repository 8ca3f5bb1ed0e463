#include "foundry/editor/line_dialogs.h"

namespace lv {

LineDialog::LineDialog(Run& owner, TextView name) : ModalWindow(owner, name) {
    OK_Cmd.Caption = "&OK";
    OK_Cmd.Default = true;
    Cancel_Cmd.Caption = "&Cancel";
}

SayStuff_Frm::SayStuff_Frm(Run& owner) : LineDialog(owner, "SayStuff_Frm") {
    Caption = "You Got Something To Say?";
    Label1.Caption = "Type something that sounds really cool !!";
}

ExtraBinding_Frm::ExtraBinding_Frm(Run& owner) : LineDialog(owner, "ExtraBinding_Frm") {
    Caption = "Extra Binding";
    Label1.Caption = "Keys will be bound to the following commands -->";
}

void LineDialog_OK_Cmd_Click(LineDialog& form) {
    form.Result = form.Message_Txt.Text;
    form.Taken = true;
    form.Closed = true;
}

void LineDialog_Cancel_Cmd_Click(LineDialog& form) {
    form.Result.clear();
    form.Taken = false;
    form.Closed = true;
}

}  // namespace lv
