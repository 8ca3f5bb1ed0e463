#include "foundry/forms/fig_form.h"

#include <wx/button.h>
#include <wx/display.h>
#include <wx/settings.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>

#include "foundation/forms/help_bubble.h"
#include "foundation/forms/help_key.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/whats_this.h"
#include "foundation/forms/wx_text.h"
#include "foundation/screen_fit.h"
#include "foundation/settings.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/editor/find_text.h"
#include "foundry/editor/lifecycle.h"
#include "foundry/editor/settings_pages.h"
#include "foundry/forms/editor_dialogs.h"
#include "foundry/forms/main_pages.h"
#include "foundry/forms/phun_names_form.h"
#include "foundry/forms/row_pages.h"
#include "foundry/forms/scrolled_page.h"
#include "foundry/forms/settings_forms.h"
#include "platform/scroll_bars.h"
#include "platform/warm_up.h"

namespace lv {

namespace {

constexpr int kFindLetters = 30;
constexpr int kFrameRoom = 40;     // of the screen's height, left for the frame
constexpr int kUsualWidth = 1000;  // at 100 %: what a screen of 1024 by 768 has room for
constexpr int kUsualHeight = 686;
constexpr int kTabHeight = 39;
constexpr int kScrollStep = 10;
constexpr int kPageFrames = 4;     // gaps beside a page: those of two notebooks
constexpr int kPageRows = 17;      // of labels, that a page has room for
constexpr int kLeastPageRows = 7;  // that it shows of them on a small screen, and scrolls
constexpr int kSpokenAtOnce = 32;

// The letter behind the "&" of a caption; 0 without one.
char AccessKeyOf(TextView caption) {
    const std::size_t mark = caption.find('&');
    const bool has = mark != TextView::npos && mark + 1 < caption.size() && caption[mark + 1] != '&';
    return has ? UpperCase(caption[mark + 1]) : '\0';
}

/// The page that the access key leads to; -1 if none does.
int PageOfAccessKey(const TabSet& tabs, int code) {
    for (std::size_t page = 0; page < tabs.Pages.size(); ++page) {
        const TabPage& tab = tabs[page];
        if (tab.Visible && tab.Enabled && AccessKeyOf(tab.Caption) == code) {
            return static_cast<int>(page);
        }
    }
    return -1;
}

// All pages count as shown, those behind the others too.
bool IsOnTop(const wxWindow* window) {
    for (const wxWindow* parent = window->GetParent(); parent != nullptr;
         window = parent, parent = window->GetParent()) {
        const auto* tabs = dynamic_cast<const wxNotebook*>(parent);
        if (tabs != nullptr && tabs->GetCurrentPage() != window) {
            return false;
        }
    }
    return true;
}

/// A page that is not among the tabs belongs to the window all the same, but hangs in nothing.
bool IsInTabs(const wxWindow* window) {
    for (const wxWindow* parent = window->GetParent(); parent != nullptr;
         window = parent, parent = window->GetParent()) {
        const auto* tabs = dynamic_cast<const wxNotebook*>(parent);
        if (tabs != nullptr && tabs->FindPage(window) == wxNOT_FOUND) {
            return false;
        }
    }
    return true;
}

/// What comes or goes in the page moves the rest of it, and the end of what can be scrolled.
void LayOut(wxWindow* page) {
    if (auto* scrolled = dynamic_cast<ScrolledPage*>(page->GetParent())) {
        page->InvalidateBestSize();
        if (scrolled->Fill()) {
            return;
        }
    }
    page->Layout();
}

bool HasFocusInside(const wxWindow* window) {
    wxWindow* const focus = wxWindow::FindFocus();
    return focus != nullptr && (focus == window || window->IsDescendant(focus));
}

template <std::size_t Count>
struct Named {
    const char* Names[Count];
};

constexpr Named<5> kMainPages = {{"Player_Page", "Bindings_Page", "Aliases_Page", "FreeForm_Page", "Save_Page"}};

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
    rows->Add(MakeMainTab(), wxSizerFlags(1).Expand());
    keys_ = new KeyPanels(inside_, parts_);
    rows->Add(keys_, wxSizerFlags().Expand().Border(wxTOP, kPageGap / 2));
    inside_->SetSizer(rows);
    hint_ = parts_.MakeLabel(this, "Hint_Lbl", model_.Hint_Lbl);
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(content_, wxSizerFlags(1).Expand());
    all->Add(hint_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, kPageGap / 2));
    SetSizer(all);
    BindEvents();
    ShowState();
    GiveWhatsThis(this);
    FitToScreen();  // in the few pixels of a new window there is no room for what is warmed up
    WarmUp(GetHandle());
    WarmUp(keys_->GetHandle());
    cold_ = pages_;
    cold_.insert(cold_.end(), keys_->GetChildren().begin(), keys_->GetChildren().end());
}

int FigForm::ShowModal() {
    ShowState();
    FitToScreen();
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

wxWindow* FigForm::AddLate(wxWindow* parent, std::function<void(wxPanel*)> make) {
    auto* page = new ScrolledPage(parent);
    page->Bind(wxEVT_SIZE, [this, page](wxSizeEvent& event) {
        event.Skip();
        if (IsOnTop(page)) {
            page->Fill();
        } else {
            stale_.insert(page->Content());
        }
    });
    pages_.push_back(page->Content());
    late_.emplace_back(page, [page, make = std::move(make)] { make(page->Content()); });
    return page;
}

wxPanel* FigForm::AddPage(wxWindow* parent) {
    auto* page = new wxPanel(parent);
    page->SetSize(RoomToBegin());
    pages_.push_back(page);
    return page;
}

wxNotebook* FigForm::MakeTab(wxWindow* parent) {
    auto* tab = new wxNotebook(parent, wxID_ANY);
    tab->SetSize(RoomToBegin());
    return tab;
}

// GTK complains of tabs without room for their captions, though they are to get it the next moment.
wxSize FigForm::RoomToBegin() const {
    return FromDIP(wxSize(kUsualWidth, kUsualHeight));
}

wxWindow* FigForm::MakePlayerPage(wxNotebook* tabs) {
    wxPanel* const page = AddPage(tabs);
    auto* rows = new wxBoxSizer(wxVERTICAL);
    MakeNameRow(parts_, page, rows);
    wxNotebook* const options = MakeTab(page);
    std::vector<wxWindow*> pages;
    for (int which = 0; which < static_cast<int>(model_.Document.Options_Tab.Pages.size()); ++which) {
        pages.push_back(AddLate(options, [this, which](wxPanel* made) { MakeOptionsPage(parts_, made, which); }));
    }
    parts_.Controls.Bind("Options_Tab", model_.Document.Options_Tab, options, pages,
                         [this](int which) { Options_Tab_Click(model_, which); });
    rows->Add(options, wxSizerFlags(1).Expand().Border(wxALL, kPageGap / 2));
    page->SetSizer(rows);
    return page;
}

wxWindow* FigForm::MakeBindingsTabs(wxNotebook* tabs) {
    wxPanel* const page = AddPage(tabs);
    wxNotebook* const bindings = MakeTab(page);
    std::vector<wxWindow*> pages;
    for (int which = 0; which < static_cast<int>(model_.Bindings_Tab.Pages.size()); ++which) {
        pages.push_back(AddLate(bindings, [this, which](wxPanel* made) {
            MakeBindingsPage(parts_, made, static_cast<BindingsPage>(which));
        }));
    }
    parts_.Controls.Bind("Bindings_Tab", model_.Bindings_Tab, bindings, pages,
                         [this](int which) { Bindings_Tab_Click(model_, which); });
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(bindings, wxSizerFlags(1).Expand().Border(wxALL, kPageGap / 2));
    page->SetSizer(rows);
    return page;
}

wxNotebook* FigForm::MakeMainTab() {
    tabs_ = MakeTab(inside_);
    wxNotebook* const tabs = tabs_;
    std::vector<wxWindow*> pages = {MakePlayerPage(tabs), MakeBindingsTabs(tabs),
                                    AddLate(tabs, [this](wxPanel* made) { MakeAliasPage(parts_, made); }),
                                    AddLate(tabs, [this](wxPanel* made) { MakeFreeFormPage(parts_, made); }),
                                    AddLate(tabs, [this](wxPanel* made) { MakeSavePage(parts_, made); })};
    for (std::size_t i = 0; i < pages.size(); ++i) {
        pages[i]->SetName(kMainPages.Names[i]);
    }
    tabs->SetMinSize(wxSize(-1, TabsHeight(kPageRows)));
    parts_.Controls.Bind("Main_Tab", model_.Main_Tab, tabs, pages, [this](int page) { Main_Tab_Click(model_, page); });
    return tabs;
}

// With the tabs of two notebooks above the rows.
int FigForm::TabsHeight(int rows) {
    return rows * (parts_.RowHeight(this) + kCellGap) + 2 * FromDIP(kTabHeight) + 3 * kPageGap;
}

void FigForm::BindEvents() {
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { parts_.Controls.Run([this] { Fig_Frm_Unload(model_); }); });
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) { PressKey(event); });
    Bind(
        wxEVT_TIMER, [this](wxTimerEvent&) { parts_.Controls.Run([this] { Save_Tmr_Timer(model_); }); },
        saveTimer_.GetId());
    Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        if (!place_.IsPut()) {
            PrepareOnePage();
        } else if (painted_ && (parts_.Controls.FillOne() || MakeOnePage() || WarmUpOne() || SpeakSome())) {
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

void FigForm::PressKey(wxKeyEvent& event) {
    if (hand_.TakeKey(event) || PressShortcut(event) || PressAccessKey(event) || PressOnLabel(event)) {
        return;
    }
    if (event.GetKeyCode() != WXK_ESCAPE) {
        event.Skip();
    }
}

// The tabs' own: those of the page that is seen come before those of all pages.
bool FigForm::PressAccessKey(const wxKeyEvent& event) {
    if (event.GetModifiers() != wxMOD_ALT) {
        return false;
    }
    const int code = event.GetKeyCode();
    const auto main = static_cast<EditorPage>(model_.Main_Tab.Tab);
    if (const int page = PageOfAccessKey(model_.Bindings_Tab, code); main == EditorPage::Bindings && page >= 0) {
        parts_.Controls.Run([&] { Bindings_Tab_Click(model_, page); });
        return true;
    }
    const int options = PageOfAccessKey(model_.Document.Options_Tab, code);
    if (main == EditorPage::Player && options >= 0) {
        parts_.Controls.Run([&] { Options_Tab_Click(model_, options); });
        return true;
    }
    if (const int page = PageOfAccessKey(model_.Main_Tab, code); page >= 0) {
        parts_.Controls.Run([&] { Main_Tab_Click(model_, page); });
        return true;
    }
    return false;
}

bool FigForm::PressShortcut(const wxKeyEvent& event) {
    const bool control = event.GetModifiers() == wxMOD_CONTROL;
    const bool both = event.GetModifiers() == (wxMOD_CONTROL | wxMOD_SHIFT);
    const int code = event.GetKeyCode();
    const bool undoes = event.ControlDown() && (code == 'Z' || code == 'Y');
    if (undoes && HasFocusInside(FindWindow("Find_Txt"))) {
        return false;  // what is looked for is no edit of the script: the field has its own
    }
    if (control && code == 'Z') {
        parts_.Controls.Run([this] { Undo_Cmd_Click(model_); });
    } else if ((control && code == 'Y') || (both && code == 'Z')) {
        parts_.Controls.Run([this] { Redo_Cmd_Click(model_); });
    } else if (control && code == 'S') {
        parts_.Controls.Run([this] { View_Cmd_Click(model_, 6); });
    } else if (control && code == 'F') {
        FindWindow("Find_Txt")->SetFocus();
    } else if (code == WXK_F3 && !event.HasAnyModifiers()) {
        parts_.Controls.Run([this] { FindNext_Cmd_Click(model_); });
    } else if (code == WXK_F1 && event.GetModifiers() == wxMOD_SHIFT) {
        TellOfFocus(this);
    } else if (code == WXK_F1 && !event.HasAnyModifiers()) {
        parts_.Controls.Run([this] { OpenHelpFile(model_.run); });
    } else {
        return false;
    }
    return true;
}

// What the keyboard does to the row or key that has it.
bool FigForm::PressOnLabel(wxKeyEvent& event) {
    const auto* label = dynamic_cast<CellLabel*>(FindFocus());
    if (label == nullptr) {
        return false;
    }
    const int code = event.GetKeyCode();
    const auto row = std::ranges::find_if(parts_.SettingLabels, [&](const auto& each) { return each.second == label; });
    if (row != parts_.SettingLabels.end()) {
        const SlotNumber slot = row->first;
        if (code == WXK_RETURN || code == WXK_NUMPAD_ENTER) {
            parts_.Controls.Run([&] { StartCapture(model_, slot); });
        } else if (code == WXK_SPACE) {
            parts_.Controls.Run([&] { Bound_Lbl_MouseUp(model_, slot, false); });
        } else if (code == WXK_DELETE && event.ShiftDown()) {
            parts_.Controls.Run([&] { Bound_Lbl_MouseUp(model_, slot, true); });
        } else if (code == WXK_DELETE) {
            parts_.Controls.Run([&] { ClearRow(model_, slot); });
        } else {
            return false;
        }
        return true;
    }
    const auto key = std::ranges::find_if(parts_.KeyLabels, [&](const auto& each) { return each.second == label; });
    if (key == parts_.KeyLabels.end()) {
        return false;
    }
    const Index index = key->first;
    if (code == WXK_RETURN || code == WXK_NUMPAD_ENTER || code == WXK_SPACE) {
        parts_.Controls.Run([&] { PickUpKey(model_, index); });
    } else if (code == WXK_DELETE) {
        parts_.Controls.Run([&] { Key_Lbl_DblClick(model_, index); });
    } else {
        return false;
    }
    return true;
}

bool FigForm::MakeOnePage() {
    const auto page = std::ranges::find_if(late_, [](LatePage& late) { return late.Make(); });
    if (page == late_.end()) {
        return false;
    }
    showing_ = true;
    parts_.Controls.Show();
    showing_ = false;
    LayOut(page->Page()->GetChildren().front());
    GiveWhatsThis(page->Page());
    SpeakAnew();
    return true;
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

// In idle moments, a few milliseconds each: a page that is turned to comes up with all that can be had before.
bool FigForm::WarmUpOne() {
    if (cold_.empty()) {
        return false;
    }
    if (IsInTabs(cold_.back())) {
        WarmUpPart(cold_.back()->GetHandle());
    }
    cold_.pop_back();
    return true;
}

// One at a time, for the splash has dots to draw. There is nothing yet to fill lists with.
void FigForm::PrepareOnePage() {
    const auto page = std::ranges::find_if(late_, [](LatePage& late) { return !late.IsMade(); });
    if (page != late_.end() && MakeOnePage()) {
        WarmUp(page->Page()->GetHandle());
    }
}

void FigForm::MakeAllPages() {
    while (MakeOnePage() || parts_.Controls.FillOne()) {
    }
}

void FigForm::MakeShownPages() {
    for (LatePage& late : late_) {
        if (IsOnTop(late.Page()) && late.Make()) {
            parts_.Controls.Show();
            LayOut(late.Page()->GetChildren().front());
            if (place_.IsPut()) {
                GiveWhatsThis(late.Page());
            }
        }
    }
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
    MakeShownPages();
    const bool moved = keys_->ShowState();
    hand_.ShowState();
    if (changed || moved) {
        Layout();
        content_->Layout();
        inside_->Layout();
    }
    SpeakAnew();
    if (changed) {
        stale_.insert(pages_.begin(), pages_.end());
    }
    LayOutPages();
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

// Those behind the others wait until they are turned to.
void FigForm::LayOutPages() {
    std::erase_if(stale_, [](wxWindow* page) {
        if (IsOnTop(page)) {
            LayOut(page);
            return true;
        }
        return false;
    });
}

wxSize FigForm::WantedSize() {
    wxSize wanted = inside_->GetSizer()->CalcMin();
    if (!keys_->IsShown()) {
        const wxSize keys = keys_->GetBestSize();
        wanted = wxSize(std::max(wanted.x, keys.x), wanted.y + keys.y + kPageGap / 2);
    }
    return wanted;
}

// What scrolls asks for no room of its own.
int FigForm::PagesWidth() {
    int width = 0;
    for (const wxWindow* page : pages_) {
        width = std::max(width, page->GetBestSize().x);
    }
    return width + kPageFrames * kPageGap;
}

// On a small screen the pages give of their height, and scroll, so that rows and keys are seen together. What even that
// leaves too large scrolls as a whole.
void FigForm::FitToScreen() {
    wxSize room =
        wxDisplay(GetParent() != nullptr ? GetParent() : static_cast<wxWindow*>(this)).GetClientArea().GetSize();
    const int below = hint_->GetBestSize().y + kPageGap / 2;
    room.y -= FromDIP(kFrameRoom) + below;
    const int bar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, content_);
    const int height = TabsHeight(kPageRows);
    tabs_->SetMinSize(wxSize(-1, height));
    wxSize wanted = WantedSize();
    const int over = wanted.y + (wanted.x > room.x ? bar : 0) - room.y;
    const int given = std::clamp(over, 0, height - TabsHeight(kLeastPageRows));
    tabs_->SetMinSize(wxSize(-1, height - given));
    wanted.y -= given;
    const wxSize usual = FromDIP(wxSize(kUsualWidth, kUsualHeight));
    wanted.IncTo(wxSize(std::min(std::max(usual.x, PagesWidth()), room.x), std::min(usual.y, room.y)));
    content_->SetVirtualSize(wanted);
    const ShownContent shown = ShowInRoom(wanted.x, wanted.y, room.x, room.y, bar);
    SetClientSize(shown.Width, shown.Height + below);
}

WxUser::FormMaker MakeFoundryForms(WxUser& user) {
    return [&user](wxWindow* owner, ModalWindow& window) -> std::unique_ptr<wxDialog> {
        if (auto* editor = dynamic_cast<Fig_Frm*>(&window)) {
            return std::make_unique<FigForm>(owner, *editor, user);
        }
        auto* names = dynamic_cast<PhunNames_Frm*>(&window);
        auto* over = dynamic_cast<FigForm*>(owner);
        if (names != nullptr && over != nullptr) {
            return std::make_unique<PhunNamesForm>(owner, over->Model(), [over] { over->ShowState(); });
        }
        return MakeEditorDialog(owner, window);
    };
}

}  // namespace lv
