#include "launcher/forms/splash_form.h"

#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include <utility>

#include "foundation/forms/pictures.h"
#include "foundation/forms/wx_text.h"

namespace lv {

namespace {

constexpr int kLogoHeight = 120;
constexpr int kBorder = 12;
constexpr int kPatienceMilliseconds = 300;

}  // namespace

SplashForm::SplashForm(std::function<void()> drawn)
    : wxFrame(nullptr, wxID_ANY, "Lorvane 3D", wxDefaultPosition, wxDefaultSize, wxFRAME_NO_TASKBAR | wxBORDER_SIMPLE),
      drawn_(std::move(drawn)),
      patience_(this),
      progress_(this),
      unload_(this) {
    SetName("Splash_Frm");
    auto* rows = new wxBoxSizer(wxVERTICAL);
    auto* logo = new wxStaticBitmap(this, wxID_ANY, PictureOf("logo", kLogoHeight));
    logo->SetName("logo_pic");
    rows->Add(logo, wxSizerFlags().Border(wxALL, kBorder));
    label_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE);
    label_->SetName("InformUser_Lbl");
    rows->Add(label_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, kBorder));
    SetSizerAndFit(rows);
    CentreOnScreen();
    Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
        event.Skip();
        TellOnce();
    });
    Bind(
        wxEVT_TIMER, [this](wxTimerEvent&) { TellOnce(); }, patience_.GetId());
    patience_.StartOnce(kPatienceMilliseconds);
    Show();
}

// Behind the event: what is drawn in it has left for the screen then.
void SplashForm::TellOnce() {
    patience_.Stop();
    if (drawn_) {
        CallAfter(std::exchange(drawn_, nullptr));
    }
}

void SplashForm::Follow(Launcher& launcher) {
    launcher_ = &launcher;
    Bind(
        wxEVT_TIMER,
        [this](wxTimerEvent&) {
            Progress_Tmr_Timer(launcher_->Splash, launcher_->run.User, label_->GetSize().x);
            ShowState();
        },
        progress_.GetId());
    Bind(
        wxEVT_TIMER, [this](wxTimerEvent&) { Unload_Tmr_Timer(launcher_->run, launcher_->Splash); }, unload_.GetId());
    progress_.Start(kProgressMilliseconds);
    unload_.StartOnce(kUnloadMilliseconds);
}

void SplashForm::ShowState(Launcher& launcher) {
    if (launcher_ == nullptr) {
        Follow(launcher);
    }
    ShowState();
}

void SplashForm::ShowState() {
    const Splash_Frm& splash = launcher_->Splash;
    const wxString caption = ToWx(splash.InformUser_Lbl.Caption);
    if (label_->GetLabel() != caption) {
        label_->SetLabel(caption);
    }
    const long style = GetWindowStyle();
    const bool topmost = (style & wxSTAY_ON_TOP) != 0;
    if (topmost != splash.Topmost) {
        SetWindowStyle(splash.Topmost ? style | wxSTAY_ON_TOP : style & ~wxSTAY_ON_TOP);
    }
    if (IsShown() != splash.Visible) {
        Show(splash.Visible);
    }
    if (splash.Visible) {
        Update();
    } else {
        progress_.Stop();
        unload_.Stop();
    }
}

}  // namespace lv
