#include "launcher/forms/lv_form.h"

#include <wx/settings.h>

#include "foundation/forms/pictures.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/whats_this.h"
#include "foundation/forms/wx_text.h"
#include "launcher/forms/drop_target.h"
#include "launcher/forms/main_menu.h"
#include "launcher/links/links_menu.h"
#include "launcher/setups/setups_menu.h"
#include "launcher/window/hint.h"
#include "launcher/window/window_life.h"
#include "platform/toolkit/menu_room.h"

namespace lv {

namespace {

constexpr int kPutBacks = 2;  // tries to give the window its size back

}  // namespace

LvForm::LvForm(Launcher& launcher, WxUser& user, SplashForm* splash)
    : wxFrame(nullptr, wxID_ANY, ToWx(launcher.Window.Caption), wxDefaultPosition, wxDefaultSize,
              wxDEFAULT_FRAME_STYLE & ~wxMAXIMIZE_BOX),
      launcher_(launcher),
      user_(user),
      binder_([&user] { user.Refresh(); }),
      place_(*this, launcher.Window.Placement),
      splash_(splash),
      sizeTimer_(this) {
    SetName("LV_Frm");
    SetIcons(ProgramIcon());
    SetMenuBar(MakeMenuBar(launcher_.Window));
    LetMenusScroll(GetMenuBar()->GetHandle(), RoomInside(*this).x);
    panels_ = new LvPanels(this, launcher_, binder_);
    launcher_.Measure = [this] { return MeasureWindow(); };
    GiveWhatsThis(this);
    BindEvents();
    SetDropTarget(new DropTarget(launcher_));
    user_.SetActiveForm(this);
    user_.OnRefresh(this, [this] { ShowState(); });
    user_.OnPopUp([this](TextView menu) { PopUp(menu); });
}

LvForm::~LvForm() {
    if (splash_) {
        splash_->Destroy();
    }
    user_.SetActiveForm(nullptr);
    user_.OnRefresh(this, {});
    user_.OnPopUp({});
    launcher_.Measure = nullptr;
    if (tray_) {
        tray_->RemoveIcon();
    }
}

void LvForm::BindEvents() {
    for (const MenuRow& row : MenuRows()) {
        if (!IsMenu(row.Item)) {
            const MenuItem item = row.Item;
            Bind(
                wxEVT_MENU, [this, item](wxCommandEvent&) { binder_.Run([&] { Menu_Click(launcher_, item); }); },
                MenuIdOf(item));
        }
    }
    Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) {
        event.Skip();
        binder_.Run([&] { Menu_Open(launcher_); });
    });
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
        if (!event.CanVeto()) {
            event.Skip();
            return;
        }
        if (!LV_Frm_QueryUnload(launcher_)) {
            event.Veto();
        }
        user_.Refresh();
    });
    Bind(
        wxEVT_TIMER,
        [this](wxTimerEvent&) {
            // What the window manager or the menu bar does not let be, is as good as it gets.
            if (++putBacks_ > kPutBacks) {
                launcher_.Window.Remembered = OuterSize();
            }
            Size_Tmr_Timer(launcher_.Window, OuterSize());
            shownSize_ = {};
            user_.Refresh();
        },
        sizeTimer_.GetId());
    Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
        event.Skip();
        if (event.GetActive()) {
            user_.SetForemost(nullptr);
        }
    });
    BindResize();
}

void LvForm::BindResize() {
    const auto resized = [this](wxEvent& event) {
        event.Skip();
        if (!showing_ && place_.IsPut()) {
            MeasureInNewFrame();
            LV_Frm_Resize(launcher_, State(), OuterSize());
            user_.Refresh();
        }
    };
    Bind(wxEVT_SIZE, resized);
    Bind(wxEVT_ICONIZE, resized);
}

// The window manager puts its frame around the window only when that is shown: what was measured before lacks it.
void LvForm::MeasureInNewFrame() {
    if (!IsIconized() && GetSize() - GetClientSize() != measuredFrame_) {
        SizeTo(launcher_, launcher_.Window.SizeMode);
    }
}

PixelSize LvForm::OuterSize() const {
    return {GetSize().x, GetSize().y};
}

int LvForm::State() const {
    return IsIconized() ? kWindowMinimised : IsMaximized() ? kWindowMaximised : kWindowNormal;
}

void LvForm::ShowState() {
    if (showing_) {
        return;
    }
    showing_ = true;
    LV_Frm& window = launcher_.Window;
    window.Hint_Lbl.Caption = HintText(launcher_);
    ShowSetupsInMenu(launcher_);
    ShowSplash();
    if (GetTitle() != ToWx(window.Caption)) {
        SetTitle(ToWx(window.Caption));
    }
    ShowMenuState(window, *GetMenuBar());
    panels_->ShowState(binder_.Show());
    ShowSize();
    ShowPlace();
    ShowPresence();
    ShowTray();
    showing_ = false;
}

void LvForm::ShowSplash() {
    if (launcher_.Splash.Visible && !splash_) {
        splash_ = new SplashForm(nullptr);
    }
    if (splash_) {
        splash_->ShowState(launcher_);
    }
    // Not before the start is over: Windows would destroy the dialogs that lie above the splash along with it.
    if (splash_ && !launcher_.Splash.Visible && launcher_.Window.Visible) {
        splash_->Destroy();
        splash_ = nullptr;
    }
}

void LvForm::TakeSize() {
    const LV_Frm& window = launcher_.Window;
    shownSize_ = window.Size;
    const wxSize size(window.Size.Width, window.Size.Height);
    SetSizeHints(size, size);
    SetSize(size);
    panels_->ScrollIn(GetClientSize());
}

void LvForm::ShowSize() {
    const LV_Frm& window = launcher_.Window;
    if (window.Size.Width > 0 && shownSize_ != window.Size) {
        TakeSize();
        // A menu bar that had to break its line in the narrower window has less height now.
        if (GetSize() - GetClientSize() != measuredFrame_) {
            SizeTo(launcher_, window.SizeMode);
            TakeSize();
        }
    }
    if (window.Size_Tmr_Enabled && !sizeTimer_.IsRunning()) {
        sizeTimer_.Start(kSizeTimerMilliseconds);
    } else if (!window.Size_Tmr_Enabled && sizeTimer_.IsRunning()) {
        sizeTimer_.Stop();
        putBacks_ = 0;
    }
}

// The place is the program's once, at the load; from then on it is the user's.
void LvForm::ShowPlace() {
    const LV_Frm& window = launcher_.Window;
    if (launcher_.run.MainFormLoaded && window.Visible) {
        place_.Put();
    }
}

void LvForm::ShowPresence() {
    const LV_Frm& window = launcher_.Window;
    switch (PresenceOf(window)) {
        case Presence::Shown:
            if (IsIconized()) {
                Iconize(false);
            }
            if (!IsShown()) {
                Show();
            }
            break;
        case Presence::Minimised:
            if (!IsIconized()) {
                Iconize();
            }
            break;
        case Presence::Hidden:
            if (IsShown()) {
                Hide();
            }
            break;
    }
    const bool topmost = launcher_.run.Topmost.InBand;
    if (topmost != topmost_) {
        topmost_ = topmost;
        const long style = GetWindowStyle();
        SetWindowStyle(topmost ? style | wxSTAY_ON_TOP : style & ~wxSTAY_ON_TOP);
    }
}

void LvForm::ShowTray() {
    const bool wanted = launcher_.Window.TrayIcon;
    if (wanted && !tray_) {
        tray_ = std::make_unique<TrayIcon>(
            this, [this](int message) { binder_.Run([this, message] { Tray_Click(launcher_, message); }); });
    } else if (!wanted && tray_) {
        tray_->RemoveIcon();
        tray_.reset();
    }
}

void LvForm::PopUp(TextView menu) {
    const MenuItem item = MenuNamed(menu);
    if (item == MenuItem::None) {
        return;
    }
    const std::unique_ptr<wxMenu> popped(MakeMenu(launcher_.Window, item));
    // Windows closes a menu on a click elsewhere only if its window is in the foreground, where a hidden one can't be.
    if (tray_ && !IsShownOnScreen()) {
        tray_->PopupMenu(popped.get());
    } else {
        PopupMenu(popped.get());
    }
}

WindowMeasures LvForm::MeasureWindow() {
    WindowMeasures measured;
    panels_->Measure(measured);
    const wxSize frame = GetSize() - GetClientSize();
    measuredFrame_ = frame;
    measured.FrameWidth = frame.x;
    measured.FrameHeight = frame.y;
    const wxRect area = WorkArea(*this);
    measured.RoomWidth = area.width;
    measured.RoomHeight = area.height;
    measured.BarWidth = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, panels_);
    return measured;
}

}  // namespace lv
