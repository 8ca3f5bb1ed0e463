// foundry/forms/sf_splash_form.h
//
// Shows SFSplash_Frm: what the user looks at while a script is being opened.

#pragma once

#include <wx/frame.h>
#include <wx/timer.h>
#include <wx/weakref.h>

#include "foundation/forms/wx_user.h"
#include "foundry/editor/setup_foundry.h"

class wxStaticText;

namespace lv {

class SFSplashForm : public wxFrame {
  public:
    SFSplashForm(wxWindow* owner, SetupFoundry& foundry);

    void ShowState();

  private:
    SetupFoundry& foundry_;
    wxStaticText* progress_ = nullptr;
    wxTimer dots_;    // Timer1
    wxTimer unload_;  // Unload_Tmr
};

/// The splash as the program has it: made while it is to be seen.
class SFSplashWindow {
  public:
    SFSplashWindow(SetupFoundry& foundry, WxUser& user);
    ~SFSplashWindow();
    SFSplashWindow(const SFSplashWindow&) = delete;
    SFSplashWindow& operator=(const SFSplashWindow&) = delete;

  private:
    void ShowState();
    void Enable(bool enabled);

    SetupFoundry& foundry_;
    WxUser& user_;
    wxWeakRef<SFSplashForm> form_;
};

}  // namespace lv
