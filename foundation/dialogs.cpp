#include "foundation/dialogs.h"

#include "foundation/settings.h"

namespace lv {

ConfirmExit_Frm::ConfirmExit_Frm() {
    Label1.Caption = "Changes have not been saved.";
    Label2.Caption = "Exit Anyway?";
    SaveNow_Chk.Caption = "Save Script Now";
    Yes_Cmd.Caption = "&Yes";
    No_Cmd.Caption = "&No";
}

void ConfirmExit_Yes_Cmd_Click(ConfirmExit_Frm& form) {
    form.DialogResult = form.SaveNow_Chk.Value == 1 ? 2 : 0;
    form.Closed = true;
}

void ConfirmExit_No_Cmd_Click(ConfirmExit_Frm& form) {
    form.DialogResult = form.SaveNow_Chk.Value == 1 ? 3 : 1;
    form.Closed = true;
}

int ConfirmExit(Run& run) {
    ConfirmExit_Frm form;
    const TopmostSuspension dialog(run);
    run.User.ShowConfirmExit(form);
    return form.DialogResult;
}

About_Frm MakeAbout(Run& run) {
    About_Frm form;
    form.Caption = Join("About ", run.AppName);
    form.Name_Lbl.Caption = Join(run.AppName, " ", run.VersionText);
    form.TimesRun_Lbl.Caption = Join(" Times Run: ", GetSetting(run, run.AppName, kStuff, "RunCount", "0"));
    form.Launches_Lbl.Caption = Join("   Total Launches: ", GetSetting(run, run.AppName, kStuff, "LaunchCount", "0"));
    form.ButtonBar_Cmd.Caption = "&OK";
    form.ButtonBar_Cmd.Default = true;
    return form;
}

void About_ButtonBar_Cmd_Click(About_Frm& form) {
    form.Closed = true;
}

void ShowAboutBox(Run& run) {
    About_Frm form = MakeAbout(run);
    const TopmostSuspension dialog(run);
    run.User.ShowAbout(form);
}

}  // namespace lv
