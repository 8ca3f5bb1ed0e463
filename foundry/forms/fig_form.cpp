#include "foundry/forms/fig_form.h"

#include <wx/button.h>
#include <wx/display.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "foundation/forms/help_key.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/whats_this.h"
#include "foundation/forms/wx_text.h"
#include "foundation/screen_fit.h"
#include "foundation/settings.h"
#include "foundry/editor/find_text.h"
#include "foundry/editor/lifecycle.h"
#include "foundry/forms/editor_room.h"
#include "foundry/forms/editor_tabs.h"
#include "platform/toolkit/scroll_bars.h"
#include "platform/toolkit/warm_up.h"

namespace lv {

namespace {

constexpr int kFindLetters = 30;
constexpr int kScrollStep = 10;
constexpr int kSpokenAtOnce = 32;

}  // namespace

FigForm::FigForm(wxWindow* owner, Fig_Frm& model, WxUser& user)
    : wxDialog(owner, wxID_ANY, ToWx(model.Document.Caption), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX),
      model_(model),
      user_(user),
      parts_(model,
             [this] {
                 NoteEdit(model_);
                 user_.Refresh();
                 Finished();
             }),
      hand_(parts_),
      pages_(parts_),
      place_(*this, model.Placement),
      saveTimer_(this) {
    SetName("Fig_Frm");
    SetExtraStyle(GetExtraStyle() | wxWS_EX_PROCESS_IDLE);
    UsesHelpKey(this);  // while it waits for a key to bind, F1 is one
    parts_.Controls.FillLater();
    SetIcons(ProgramIcon());
    parts_.WatchKey = [this](CellLabel* label, Index index) { hand_.WatchKey(label, index); };
    parts_.WatchRow = [this](CellLabel* label, SlotNumber slot) { hand_.WatchRow(label, slot); };
    parts_.WatchName = [this](CellLabel* label, SlotNumber slot) { hand_.WatchName(label, slot); };
    content_ =
        new wxScrolledWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxHSCROLL | wxVSCROLL);
    KeepScrollBarsInSight(content_->GetHandle());
    content_->SetScrollRate(FromDIP(kScrollStep), FromDIP(kScrollStep));
    FollowKeyboard(*content_);
    // GTK complains of what is hidden when it has to scroll it, but not of what is hidden inside.
    inside_ = new wxPanel(content_);
    auto* scrolled = new wxBoxSizer(wxVERTICAL);
    scrolled->Add(inside_, wxSizerFlags(1).Expand());
    content_->SetSizer(scrolled);
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(MakeFindRow(), wxSizerFlags().Expand().Border(wxALL, kPageGap / 2));
    tabs_ = MakeEditorTabs(inside_, parts_, pages_);
    rows->Add(tabs_, wxSizerFlags(1).Expand());
    keys_ = new KeyPanels(inside_, parts_);
    rows->Add(keys_, wxSizerFlags().Expand().Border(wxTOP, kPageGap / 2));
    inside_->SetSizer(rows);
    press_ = std::make_unique<EditorKeys>(*this, parts_, hand_, *keys_);
    hint_ = parts_.MakeLabel(this, "Hint_Lbl", model_.Hint_Lbl);
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(content_, wxSizerFlags(1).Expand());
    all->Add(hint_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, kPageGap / 2));
    SetSizer(all);
    BindEvents();
    ShowState();
    GiveWhatsThis(this);
    Fit();  // in the few pixels of a new window there is no room for what is warmed up
    WarmUp(GetHandle());
    WarmUp(keys_->GetHandle());
    pages_.WarmUpLater(keys_->GetChildren());
}

int FigForm::ShowModal() {
    ShowState();
    Fit();
    PlaceOnScreen();
    user_.OnRefresh(this, [this] { ShowState(); });
    return wxDialog::ShowModal();
}

FigForm::~FigForm() {
    user_.OnRefresh(this, {});
    DestroyChildren();  // the labels know the groups that go with this
}

wxSizer* FigForm::MakeFindRow() {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const auto right = wxSizerFlags().CenterVertical().Border(wxRIGHT, kPageGap);
    row->Add(new wxStaticText(inside_, wxID_ANY, "Find"),
             wxSizerFlags().CenterVertical().Border(wxLEFT | wxRIGHT, kPageGap));
    wxTextCtrl* find = parts_.MakeText(
        inside_, "Find_Txt", model_.Find_Txt, [this] { Find_Txt_Change(model_); },
        "Find a function, command, key or alias", wxTE_PROCESS_ENTER);
    find->SetMinSize(wxSize(kFindLetters * GetTextExtent("n").x, -1));
    find->Bind(wxEVT_TEXT_ENTER,
               [this](wxCommandEvent&) { parts_.Controls.Run([this] { FindNext_Cmd_Click(model_); }); });
    row->Add(find, right);
    row->Add(parts_.MakeButton(inside_, "FindNext_Cmd", model_.FindNext_Cmd, [this] { FindNext_Cmd_Click(model_); }),
             right);
    row->Add(parts_.MakeLabel(inside_, "Find_Lbl", model_.Find_Lbl), wxSizerFlags(1).CenterVertical());
    row->Add(parts_.MakeButton(inside_, "Undo_Cmd", model_.Undo_Cmd, [this] { Undo_Cmd_Click(model_); }), right);
    row->Add(parts_.MakeButton(inside_, "Redo_Cmd", model_.Redo_Cmd, [this] { Redo_Cmd_Click(model_); }),
             wxSizerFlags().CenterVertical());
    return row;
}

void FigForm::BindEvents() {
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { parts_.Controls.Run([this] { Fig_Frm_Unload(model_); }); });
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) { press_->Press(event); });
    Bind(
        wxEVT_TIMER, [this](wxTimerEvent&) { parts_.Controls.Run([this] { Save_Tmr_Timer(model_); }); },
        saveTimer_.GetId());
    Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        if (!place_.IsPut()) {
            Make([this] { return pages_.PrepareOne(); });
        } else if (painted_ && (MakeSome() || pages_.WarmUpOne() || SpeakSome())) {
            event.RequestMore();
        }
    });
    inside_->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
        event.Skip();
        painted_ = place_.IsPut();
    });
    const auto keep = [this](wxEvent& event) {
        event.Skip();
        KeepSize();
    };
    Bind(wxEVT_SIZE, keep);
    Bind(wxEVT_MAXIMIZE, keep);
}

void FigForm::KeepSize() {
    if (!place_.IsPut() || !IsShown()) {
        return;
    }
    WindowPlacement& placement = model_.Placement;
    placement.WindowState = IsMaximized() ? kWindowMaximised : kWindowNormal;
    if (!IsMaximized()) {
        placement.Width = ToTwips(GetSize().x);
        placement.Height = ToTwips(GetSize().y);
    }
}

bool FigForm::Make(const std::function<bool()>& make) {
    showing_ = true;
    const bool made = make();
    showing_ = false;
    if (made) {
        SpeakAnew();
    }
    return made;
}

bool FigForm::MakeSome() {
    return parts_.Controls.FillOne() || Make([this] { return pages_.MakeOne(); });
}

void FigForm::SpeakAnew() {
    unspoken_.clear();
    for (const auto& [slot, label] : parts_.SettingLabels) {
        unspoken_.push_back(label);
    }
    for (const auto& [index, label] : parts_.KeyLabels) {
        unspoken_.push_back(label);
    }
    for (CellLabel* label : parts_.ColorLabels) {
        unspoken_.push_back(label);
    }
}

// In idle moments: some systems take their time to keep a name.
bool FigForm::SpeakSome() {
    for (int i = 0; i < kSpokenAtOnce && !unspoken_.empty(); ++i) {
        unspoken_.back()->Speak();
        unspoken_.back()->Measure();
        unspoken_.pop_back();
    }
    return !unspoken_.empty();
}

void FigForm::ShowState() {
    if (showing_) {
        return;
    }
    showing_ = true;
    if (GetTitle() != ToWx(model_.Document.Caption)) {
        SetTitle(ToWx(model_.Document.Caption));
    }
    wxWindow* const before = FindFocus();
    const bool finding = before != nullptr && before->GetName() == "Find_Txt";
    const bool changed = parts_.Controls.Show();
    pages_.MakeShown(place_.IsPut());
    const bool moved = keys_->ShowState();
    hand_.ShowState();
    if (changed || moved) {
        Layout();
        content_->Layout();
        inside_->Layout();
    }
    SpeakAnew();
    if (changed) {
        pages_.LayOutLater();
    }
    pages_.LayOutShown();
    if (model_.Save_Tmr_Enabled && !saveTimer_.IsRunning()) {
        saveTimer_.Start(kSaveTimerMilliseconds);
    } else if (!model_.Save_Tmr_Enabled && saveTimer_.IsRunning()) {
        saveTimer_.Stop();
    }
    showing_ = false;
    // A page that is turned takes the keyboard, which whoever is typing would miss.
    if (finding && FindFocus() != before) {
        before->SetFocus();
        dynamic_cast<wxTextCtrl&>(*before).SetInsertionPointEnd();
    }
    LeadToFound();
}

void FigForm::LeadToFound() {
    if (model_.FoundControl.empty()) {
        return;
    }
    wxWindow* const found = FindWindow(ToWx(model_.FoundControl));
    model_.FoundControl.clear();
    if (found != nullptr) {
        found->SetFocus();
    }
}

void FigForm::Finished() {
    if (model_.Closed && IsModal()) {
        EndModal(wxID_OK);
    }
}

// Where it was left; the first time in the middle of the screen. What would lie beyond the screen is drawn in.
void FigForm::PlaceOnScreen() {
    const wxRect screen = wxDisplay(static_cast<unsigned>(0)).GetClientArea();
    WindowPlacement& placement = model_.Placement;
    if (GetSetting(model_.run, model_.run.AppName, model_.Name, "Left").empty()) {
        placement.Width = ToTwips(GetSize().x);
        placement.Height = ToTwips(GetSize().y);
        lv::CenterOnScreen(placement, ScreenInTwips(model_.run));
    }
    const ScreenRect inside = WithinArea({ToPixels(placement.Left), ToPixels(placement.Top), GetSize().x, GetSize().y},
                                         {screen.x, screen.y, screen.width, screen.height});
    placement.Left = ToTwips(inside.Left);
    placement.Top = ToTwips(inside.Top);
    place_.Put();
    if (placement.WindowState == kWindowMaximised) {
        Maximize();
    }
}

void FigForm::Fit() {
    FitToScreen({*this, *content_, *inside_, *tabs_, *keys_, *hint_, parts_, pages_});
}

}  // namespace lv
