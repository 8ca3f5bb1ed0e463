#include "foundry/forms/sf_splash_form.h"

#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include "foundation/forms/pictures.h"
#include "foundation/forms/wx_text.h"

namespace lv {

namespace {

constexpr int kPictureHeight = 96;
constexpr int kBorder = 12;
constexpr int kLetters = 44;

}  // namespace

SFSplashForm::SFSplashForm(wxWindow* owner, SetupFoundry& foundry)
    : wxFrame(owner, wxID_ANY, "Setup Foundry", wxDefaultPosition, wxDefaultSize,
              wxFRAME_NO_TASKBAR | wxBORDER_SIMPLE | wxFRAME_FLOAT_ON_PARENT),
      foundry_(foundry),
      dots_(this),
      unload_(this) {
    SetName("SFSplash_Frm");
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(new wxStaticBitmap(this, wxID_ANY, PictureOf("icons/foundry", kPictureHeight)),
              wxSizerFlags().Center().Border(wxALL, kBorder));
    auto* title = new wxStaticText(this, wxID_ANY, "Setup Foundry");
    title->SetFont(title->GetFont().Bold().Larger().Larger());
    rows->Add(title, wxSizerFlags().Center().Border(wxLEFT | wxRIGHT, kBorder));
    progress_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxSize(kLetters * GetTextExtent("n").x, -1),
                                 wxST_NO_AUTORESIZE);
    progress_->SetName("Progress_Lbl");
    rows->Add(progress_, wxSizerFlags().Border(wxALL, kBorder));
    SetSizerAndFit(rows);
    if (owner != nullptr && owner->IsShownOnScreen()) {
        CentreOnParent();
    } else {
        CentreOnScreen();
    }
    Bind(
        wxEVT_TIMER,
        [this](wxTimerEvent&) {
            SFSplash_Timer1_Timer(foundry_.Splash);
            ShowState();
        },
        dots_.GetId());
    Bind(
        wxEVT_TIMER, [this](wxTimerEvent&) { SFSplash_Unload_Tmr_Timer(foundry_); }, unload_.GetId());
    dots_.Start(kSplashDotMilliseconds);
    unload_.StartOnce(kSplashUnloadMilliseconds);
}

void SFSplashForm::ShowState() {
    const wxString dots = ToWx(foundry_.Splash.Progress_Lbl.Caption);
    if (progress_->GetLabel() != dots) {
        progress_->SetLabel(dots);
    }
    if (!IsShown()) {
        Show();
    }
    Update();
}

SFSplashWindow::SFSplashWindow(SetupFoundry& foundry, WxUser& user) : foundry_(foundry), user_(user) {
    user_.OnRefresh(this, [this] { ShowState(); });
}

SFSplashWindow::~SFSplashWindow() {
    user_.OnRefresh(this, {});
    if (form_) {
        form_->Destroy();
    }
}

void SFSplashWindow::ShowState() {
    if (foundry_.Splash.Visible) {
        if (!form_) {
            form_ = new SFSplashForm(user_.ActiveForm(), foundry_);
            Enable(false);
        }
        form_->ShowState();
    } else if (form_) {
        SFSplashForm* const gone = form_;
        form_ = nullptr;
        Enable(true);
        gone->Destroy();
    }
}

// What is opened belongs to the game that was picked: nobody picks another one meanwhile.
void SFSplashWindow::Enable(bool enabled) {
    if (wxWindow* const main = user_.ActiveForm()) {
        main->Enable(enabled);
    }
}

}  // namespace lv
