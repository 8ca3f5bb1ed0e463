// launcher/forms/splash_form.h
//
// Shows Splash_Frm: the logo, and what the start is at.

#pragma once

#include <wx/frame.h>
#include <wx/timer.h>

#include <functional>

#include "launcher/launcher.h"

class wxStaticText;

namespace lv {

class SplashForm : public wxFrame {
  public:
    /// On the screen ahead of all else, and not above anything; `drawn` is called once, when it has been seen.
    explicit SplashForm(std::function<void()> drawn);

    /// Brings it in line with its struct, and follows that one from now on.
    void ShowState(Launcher& launcher);

  private:
    void TellOnce();
    void Follow(Launcher& launcher);
    void ShowState();

    std::function<void()> drawn_;
    Launcher* launcher_ = nullptr;
    wxStaticText* label_ = nullptr;
    wxTimer patience_;  // for a screen that never asks it to paint itself
    wxTimer progress_;  // Progress_Tmr
    wxTimer unload_;    // Unload_Tmr
};

}  // namespace lv
