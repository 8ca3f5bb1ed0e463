// launcher/start/splash.h
//
// The window that the user looks at while the program starts.

#pragma once

#include "foundation/controls.h"
#include "foundation/run.h"

namespace lv {

constexpr int kProgressMilliseconds = 50;
constexpr int kUnloadMilliseconds = 15000;

struct Splash_Frm {
    Picture logo_pic;
    Label InformUser_Lbl;
    bool Visible = false;
    bool Topmost = false;  // above all other windows
};

void ShowSplash(Run& run, Splash_Frm& splash);

/// Tells what is going on. A splash that is gone stays so.
void InformUser(Run& run, Splash_Frm& splash, TextView what);

/// Takes the splash below dialogs, or puts it back above all windows.
void SetSplashTopmost(Run& run, Splash_Frm& splash, bool topmost);

void UnloadSplash(Run& run, Splash_Frm& splash);

/// One more "."; once the text is as wide as the label (pixels), it is cut back to what stood before the first ".".
void Progress_Tmr_Timer(Splash_Frm& splash, UserInterface& user, int labelWidth);

/// The start took too long: the splash goes by itself.
void Unload_Tmr_Timer(Run& run, Splash_Frm& splash);

}  // namespace lv
