// launcher/forms/lv_form.h
//
// Shows LV_Frm, the main window: its menu, its content, its sizes, its icon in the tray.

#pragma once

#include <wx/frame.h>
#include <wx/timer.h>
#include <wx/weakref.h>

#include <memory>

#include "foundation/forms/binder.h"
#include "foundation/forms/kept_place.h"
#include "foundation/forms/wx_user.h"
#include "launcher/forms/lv_panels.h"
#include "launcher/forms/splash_form.h"
#include "launcher/forms/tray_icon.h"
#include "launcher/launcher.h"

namespace lv {

class LvForm : public wxFrame {
  public:
    /// `splash` is the one that is on the screen already, if one is.
    LvForm(Launcher& launcher, WxUser& user, SplashForm* splash = nullptr);
    ~LvForm() override;

    /// Brings the windows in line with their structs.
    void ShowState();

    void PopUp(TextView menu);

  private:
    void BindEvents();
    void BindResize();
    void MeasureInNewFrame();
    [[nodiscard]] PixelSize OuterSize() const;
    [[nodiscard]] int State() const;
    void ShowSplash();
    void ShowPlace();
    void ShowSize();
    void TakeSize();
    void ShowPresence();
    void ShowTray();
    WindowMeasures MeasureWindow();

    Launcher& launcher_;
    WxUser& user_;
    Binder binder_;
    KeptPlace place_;
    LvPanels* panels_ = nullptr;
    wxWeakRef<SplashForm> splash_;
    std::unique_ptr<TrayIcon> tray_;
    wxTimer sizeTimer_;  // Size_Tmr
    PixelSize shownSize_;
    wxSize measuredFrame_;
    int putBacks_ = 0;
    bool topmost_ = false;
    bool showing_ = false;
};

}  // namespace lv
