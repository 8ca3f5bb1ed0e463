#include "launcher/start/splash.h"

namespace lv {

void ShowSplash(Run& run, Splash_Frm& splash) {
    SuspendTopmost(run);  // counts only once a main window is loaded
    splash.Visible = true;
    splash.Topmost = true;
    run.User.Refresh();
}

void InformUser(Run& run, Splash_Frm& splash, TextView what) {
    splash.InformUser_Lbl.Caption = what;
    run.User.Refresh();
}

void SetSplashTopmost(Run& run, Splash_Frm& splash, bool topmost) {
    splash.Topmost = splash.Visible && topmost;
    run.User.Refresh();
}

void UnloadSplash(Run& run, Splash_Frm& splash) {
    splash.Visible = false;
    splash.Topmost = false;
    run.User.Refresh();
}

void Progress_Tmr_Timer(Splash_Frm& splash, UserInterface& user, int labelWidth) {
    Text& caption = splash.InformUser_Lbl.Caption;
    caption += ".";
    if (user.TextWidth(caption) >= labelWidth) {
        caption.resize(caption.find('.'));
    }
}

void Unload_Tmr_Timer(Run& run, Splash_Frm& splash) {
    UnloadSplash(run, splash);
}

}  // namespace lv
