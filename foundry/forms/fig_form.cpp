#include "foundry/forms/fig_form.h"

#include <wx/button.h>
#include <wx/cshelp.h>
#include <wx/display.h>
#include <wx/settings.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>

#include "foundation/forms/help_key.h"
#include "foundation/forms/pictures.h"
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
constexpr int kUsualHeight = 706;
constexpr int kTabHeight = 39;
constexpr int kPageRows = 17;  // of labels, that a page has room for

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
    content_->SetScrollRate(FromDIP(10), FromDIP(10));
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(MakeFindRow(), wxSizerFlags().Expand().Border(wxALL, kPageGap / 2));
    rows->Add(MakeMainTab(), wxSizerFlags(1).Expand());
    keys_ = new KeyPanels(content_, parts_);
    rows->Add(keys_, wxSizerFlags().Expand().Border(wxTOP, kPageGap / 2));
    rows->Add(parts_.MakeLabel(content_, "Hint_Lbl", model_.Hint_Lbl),
              wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, kPageGap / 2));
    content_->SetSizer(rows);
    BindEvents();
    ShowState();
    GiveWhatsThis(this);
    WarmUp(GetHandle());
    WarmUp(keys_->GetHandle());
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
    row->Add(new wxStaticText(content_, wxID_ANY, "Find"),
             wxSizerFlags().CenterVertical().Border(wxLEFT | wxRIGHT, kPageGap));
    wxTextCtrl* find = parts_.MakeText(
        content_, "Find_Txt", model_.Find_Txt, [this] { Find_Txt_Change(model_); },
        "Find a function, command, key or alias", wxTE_PROCESS_ENTER);
    find->SetMinSize(wxSize(kFindLetters * GetTextExtent("n").x, -1));
    find->Bind(wxEVT_TEXT_ENTER,
               [this](wxCommandEvent&) { parts_.Controls.Run([this] { FindNext_Cmd_Click(model_); }); });
    row->Add(find, right);
    row->Add(parts_.MakeButton(content_, "FindNext_Cmd", model_.FindNext_Cmd, [this] { FindNext_Cmd_Click(model_); }),
             right);
    row->Add(parts_.MakeLabel(content_, "Find_Lbl", model_.Find_Lbl), wxSizerFlags(1).CenterVertical());
    row->Add(parts_.MakeButton(content_, "Undo_Cmd", model_.Undo_Cmd, [this] { Undo_Cmd_Click(model_); }), right);
    row->Add(parts_.MakeButton(content_, "Redo_Cmd", model_.Redo_Cmd, [this] { Redo_Cmd_Click(model_); }),
             wxSizerFlags().CenterVertical());
    return row;
}

wxPanel* FigForm::AddLate(wxWindow* parent, std::function<void(wxPanel*)> make) {
    return AddLate(new wxPanel(parent), std::move(make));
}

wxPanel* FigForm::AddLate(wxPanel* page, std::function<void(wxPanel*)> make) {
    pages_.push_back(page);
    late_.emplace_back(page, [page, make = std::move(make)] { make(page); });
    return page;
}

wxWindow* FigForm::MakePlayerPage(wxNotebook* tabs) {
    auto* page = new wxPanel(tabs);
    pages_.push_back(page);
    auto* rows = new wxBoxSizer(wxVERTICAL);
    MakeNameRow(parts_, page, rows);
    auto* options = new wxNotebook(page, wxID_ANY);
    std::vector<wxWindow*> pages;
    for (int which = 0; which < static_cast<int>(model_.Document.Options_Tab.Pages.size()); ++which) {
        pages.push_back(
            AddLate(MakeScrolledPage(options), [this, which](wxPanel* made) { MakeOptionsPage(parts_, made, which); }));
    }
    parts_.Controls.Bind("Options_Tab", model_.Document.Options_Tab, options, pages,
                         [this](int which) { Options_Tab_Click(model_, which); });
    rows->Add(options, wxSizerFlags(1).Expand().Border(wxALL, kPageGap / 2));
    page->SetSizer(rows);
    return page;
}

wxWindow* FigForm::MakeBindingsTabs(wxNotebook* tabs) {
    auto* page = new wxPanel(tabs);
    auto* bindings = new wxNotebook(page, wxID_ANY);
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
    auto* tabs = new wxNotebook(content_, wxID_ANY);
    std::vector<wxWindow*> pages = {MakePlayerPage(tabs), MakeBindingsTabs(tabs),
                                    AddLate(tabs, [this](wxPanel* made) { MakeAliasPage(parts_, made); }),
                                    AddLate(tabs, [this](wxPanel* made) { MakeFreeFormPage(parts_, made); }),
                                    AddLate(tabs, [this](wxPanel* made) { MakeSavePage(parts_, made); })};
    for (std::size_t i = 0; i < pages.size(); ++i) {
        pages[i]->SetName(kMainPages.Names[i]);
    }
    tabs->SetMinSize(
        wxSize(-1, kPageRows * (parts_.RowHeight(this) + kCellGap) + 2 * FromDIP(kTabHeight) + 3 * kPageGap));
    parts_.Controls.Bind("Main_Tab", model_.Main_Tab, tabs, pages, [this](int page) { Main_Tab_Click(model_, page); });
    return tabs;
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
        } else if (painted_ && (parts_.Controls.FillOne() || MakeOnePage())) {
            event.RequestMore();
        }
    });
    content_->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
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
        if (wxWindow* focus = FindFocus()) {
            wxHelpProvider::Get()->ShowHelp(focus);
        }
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
    LayOutPage(page->Page());
    GiveWhatsThis(page->Page());
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
            LayOutPage(late.Page());
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
        content_->Layout();
    }
    if (changed) {
        for (wxWindow* page : pages_) {
            LayOutPage(page);
        }
    }
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

void FigForm::FitToScreen() {
    wxSize wanted = content_->GetSizer()->CalcMin();
    if (!keys_->IsShown()) {
        const wxSize keys = keys_->GetBestSize();
        wanted = wxSize(std::max(wanted.x, keys.x), wanted.y + keys.y);
    }
    wanted.IncTo(FromDIP(wxSize(kUsualWidth, kUsualHeight)));
    wxSize room =
        wxDisplay(GetParent() != nullptr ? GetParent() : static_cast<wxWindow*>(this)).GetClientArea().GetSize();
    room.y -= FromDIP(kFrameRoom);
    content_->SetVirtualSize(wanted);
    const int bar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, content_);
    const ShownContent shown = ShowInRoom(wanted.x, wanted.y, room.x, room.y, bar);
    SetClientSize(shown.Width, shown.Height);
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
