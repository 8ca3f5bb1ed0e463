// launcher/forms/splash_form.h
//
// Shows Splash_Frm: the logo, and what the start is at.

#pragma once

#include <wx/frame.h>
#include <wx/timer.h>

#include "launcher/launcher.h"

class wxStaticText;

namespace lv {

class SplashForm : public wxFrame {
  public:
    explicit SplashForm(Launcher& launcher);

    void ShowState();

  private:
    Launcher& launcher_;
    wxStaticText* label_ = nullptr;
    wxTimer progress_;  // Progress_Tmr
    wxTimer unload_;    // Unload_Tmr
};

}  // namespace lv
