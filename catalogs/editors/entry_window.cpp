#include "catalogs/editors/entry_window.h"

#include "foundation/question_box.h"

namespace lv {

EntryWindow::EntryWindow(Run& owner, TextView name, EntryMode mode) : ModalWindow(owner, name), Mode(mode) {
    OK_Cmd.Caption = "&OK";
    OK_Cmd.Default = true;
    Cancel_Cmd.Caption = "&Cancel";
}

void Entry_Cancel_Cmd_Click(EntryWindow& form) {
    form.DialogResult = false;
    form.Closed = true;
}

void TellFault(EntryWindow& form, TextView focus, TextView text, const char* title) {
    AskUser(form.run, title, text);
    form.Focus = focus;
}

void ConfirmEntry(EntryWindow& form, TextView title, TextView value) {
    AskUser(form.run, "", Join(title, " now references ", value), "&Cool");
    form.DialogResult = true;
    form.Closed = true;
}

}  // namespace lv
