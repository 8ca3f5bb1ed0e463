#include "foundation/about_box.h"

#include "foundation/settings.h"

namespace lv {

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
