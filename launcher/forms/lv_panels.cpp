#include "launcher/forms/lv_panels.h"

#include <wx/bmpbuttn.h>
#include <wx/button.h>
#include <wx/panel.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/wx_text.h"
#include "launcher/forms/game_list.h"
#include "launcher/menu/video_profile_menu.h"
#include "launcher/menu/window_menu.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/window_life.h"
#include "platform/toolkit/list_height.h"
#include "platform/toolkit/list_pictures.h"
#include "platform/toolkit/scroll_bars.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kGap = 6;
constexpr int kColumnWidth = 330;  // at 100 %
constexpr int kTickGap = 4;        // stands a box without a caption in line with those that have one
constexpr int kOptionRows = 4;     // Unreal fills four; the window has one size for all games
constexpr int kScrollStep = 10;
constexpr int kBarPicture = 32;
constexpr int kSmallPicture = 16;
constexpr int kGamePicture = 24;
constexpr int kGamePictureRoom = 14;  // above and below

wxSizerFlags Row() {
    return wxSizerFlags().Expand().Border(wxALL, kGap / 2);
}

Text ButtonPicture(TextView name) {
    return Join("icons/buttons/", name);
}

}  // namespace

LvPanels::LvPanels(wxWindow* parent, Launcher& launcher, Binder& binder)
    : wxScrolledWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxHSCROLL | wxVSCROLL),
      launcher_(launcher),
      binder_(binder),
      at_(this) {
    ShowScrollbars(wxSHOW_SB_NEVER, wxSHOW_SB_NEVER);
    KeepScrollBarsInSight(GetHandle());
    SetScrollRate(FromDIP(kScrollStep), FromDIP(kScrollStep));
    FollowKeyboard(*this);
    // Each part has a window of its own, so that a size can take it away whatever the controls in it say.
    rows_ = new wxBoxSizer(wxVERTICAL);
    MakeBarPart();
    MakeTopPart();
    MakeColumnsPart();
    SetSizer(rows_);
    width_ = rows_->CalcMin().x;
}

wxWindow* LvPanels::MakePart(wxSizer* content, const wxSizerFlags& flags) {
    part_->SetSizer(content);
    rows_->Add(part_, flags);
    return part_;
}

void LvPanels::StartPart() {
    part_ = new wxPanel(this);
    at_ = part_;
}

void LvPanels::MakeBarPart() {
    StartPart();
    bar_ = MakePart(MakeButtonBar(), wxSizerFlags().Border(wxLEFT | wxTOP, kGap));
}

void LvPanels::MakeTopPart() {
    StartPart();
    auto* top = new wxBoxSizer(wxHORIZONTAL);
    wxSizer* exe = MakeExePanel();
    wxSizer* command = MakeCommandPanel();
    exe->SetMinSize(FromDIP(wxSize(kColumnWidth, -1)));
    command->SetMinSize(FromDIP(wxSize(kColumnWidth, -1)));
    top->Add(exe, Row().Proportion(1));
    top->Add(command, Row().Proportion(1));
    top_ = MakePart(top, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, kGap / 2));
}

void LvPanels::MakeColumnsPart() {
    StartPart();
    auto* columns = new wxBoxSizer(wxHORIZONTAL);
    auto* left = new wxBoxSizer(wxVERTICAL);
    for (wxSizer* panel : {MakeModPanel(), MakeScriptPanel(), MakeVideoPanel(), MakeMemoryPanel(), MakeDemoPanel()}) {
        left->Add(panel, Row());
    }
    right_ = new wxBoxSizer(wxVERTICAL);
    MakeServerPanel();
    MakeQSpyPanel();
    MakeOtherPanel();
    for (const PlacedPanel& panel : rightPanels_) {
        right_->Add(panel.Sizer, Row());
    }
    left->SetMinSize(FromDIP(wxSize(kColumnWidth, -1)));
    right_->SetMinSize(FromDIP(wxSize(kColumnWidth, -1)));
    columns->Add(left, wxSizerFlags(1).Expand());
    columns->Add(right_, wxSizerFlags(1).Expand());
    columns_ = MakePart(columns, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, kGap / 2));
}

void LvPanels::ShowState(bool changed) {
    SetListHeight(exes_->GetHandle(), exes_->GetMinSize().y);
    const bool parts = ShowParts();
    PlaceRightColumn();
    if (changed || parts) {
        Layout();
        columns_->Layout();
    }
}

bool LvPanels::ShowParts() {
    const int mode = static_cast<int>(launcher_.Window.SizeMode);
    if (mode == shownMode_) {
        return false;
    }
    shownMode_ = mode;
    const ShownParts parts = PartsOf(launcher_.Window.SizeMode);
    bar_->Show(parts.ButtonBar);
    top_->Show(parts.Exe || parts.Command);
    columns_->Show(parts.Others);
    return true;
}

void LvPanels::ScrollIn(wxSize room) {
    const wxSize whole = rows_->CalcMin();
    ScrollInRoom(*this, wxSize(std::min(whole.x, width_), whole.y), room);
    Layout();
}

void LvPanels::Measure(WindowMeasures& measured) {
    ShowParts();
    const wxSize whole = rows_->CalcMin();
    const auto height = [](const wxWindow* part) { return part->IsShown() ? part->GetBestSize().y + kGap : 0; };
    measured.LastButtonRight = bar_->GetBestSize().x + kGap;
    measured.CommandRight = width_;
    measured.ExeBottom = height(bar_) + height(top_);
    measured.OtherOptsBottom = whole.y;
}

wxStaticBoxSizer* LvPanels::MakePanel(const char* name, Panel LV_Frm::*panel) {
    auto* sizer = new wxStaticBoxSizer(wxVERTICAL, part_, ToWx(Trim((launcher_.Window.*panel).Caption)));
    binder_.Bind(name, launcher_.Window.*panel, sizer->GetStaticBox());
    at_ = sizer->GetStaticBox();
    return sizer;
}

// `label` is for a box that has no caption of its own.
wxCheckBox* LvPanels::MakeOption(Option option, const wxString& label) {
    const OptionBox& box = OptionBoxOf(option);
    const wxString caption = *box.Caption != '\0' ? ToWx(Trim(box.Caption)) : label;
    auto* view = new wxCheckBox(at_, wxID_ANY, caption, wxDefaultPosition, wxDefaultSize, wxCHK_3STATE);
    binder_.Bind(box.Name, launcher_.Window.Box(option), view, [this, option] { Option_Chk_Click(launcher_, option); });
    return view;
}

wxChoice* LvPanels::MakeList(const char* name, ListBox LV_Frm::*list, const wxString& spoken,
                             void (*click)(Launcher&)) {
    auto* view = new wxChoice(at_, wxID_ANY);
    view->SetMinSize(FromDIP(wxSize(160, -1)));
    SetSpokenName(view->GetHandle(), spoken.utf8_string());
    binder_.Bind(name, launcher_.Window.*list, view, [this, click] { click(launcher_); });
    return view;
}

wxWindow* LvPanels::MakeMenuPicture(int index) {
    auto* view = new wxBitmapButton(at_, wxID_ANY, PictureOf("icons/buttons/menu", kSmallPicture), wxDefaultPosition,
                                    wxDefaultSize, wxBORDER_NONE);
    view->SetName(wxString::Format("Menu_Pic(%d)", index));
    const wxString spoken = wxString("Menu: ") + ToWx(WithoutAccessKeys(MenuRowOf(MenuOfPicture(index)).Caption));
    view->SetToolTip(spoken);
    SetSpokenName(view->GetHandle(), spoken.utf8_string());
    view->Bind(wxEVT_BUTTON,
               [this, index](wxCommandEvent&) { binder_.Run([this, index] { Menu_Pic_Click(launcher_, index); }); });
    return view;
}

wxWindow* LvPanels::MakeSmallButton(const char* name, CommandButton LV_Frm::*button, const char* picture,
                                    const char* spoken, void (*click)(Launcher&)) {
    auto* view = new wxBitmapButton(at_, wxID_ANY, PictureOf(ButtonPicture(picture), kSmallPicture));
    SetSpokenName(view->GetHandle(), spoken);
    binder_.Bind(name, launcher_.Window.*button, view, [this, click] { click(launcher_); });
    return view;
}

wxSizer* LvPanels::MakeRow(std::optional<Option> option, wxWindow* list, const std::vector<wxWindow*>& behind) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    if (option) {
        wxCheckBox* tick = MakeOption(*option);
        tick->MoveBeforeInTabOrder(list);
        row->Add(tick, wxSizerFlags().CenterVertical().Border(wxLEFT | wxRIGHT, kTickGap));
    }
    row->Add(list, wxSizerFlags(1).CenterVertical());
    for (wxWindow* window : behind) {
        row->Add(window, wxSizerFlags().CenterVertical().Border(wxLEFT, kGap / 2));
    }
    return row;
}

wxSizer* LvPanels::MakeButtonBar() {
    auto* bar = new wxBoxSizer(wxHORIZONTAL);
    const auto rows = BarButtonRows();
    for (int i = 0; i < kBarButtons; ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto* view = new wxBitmapButton(part_, wxID_ANY, PictureOf(ButtonPicture(rows[at].Picture), kBarPicture));
        binder_.Bind(wxString::Format("ButtonBar_Cmd(%d)", i).utf8_str(), launcher_.Window.ButtonBar_Cmd[at], view,
                     [this, i] { ButtonBar_Cmd_Click(launcher_, i); });
        bar->Add(view, wxSizerFlags().Border(wxRIGHT, i + 1 < kBarButtons ? kGap / 2 : 0));
    }
    return bar;
}

wxSizer* LvPanels::MakeExePanel() {
    wxStaticBoxSizer* panel = MakePanel("Exe_Pan", &LV_Frm::Exe_Pan);
    auto* list = new GameList(at_);
    exes_ = list;
    FitListPictures(list->GetHandle(), kGamePicture);
    list->SetMinSize(wxSize(FromDIP(160), FromDIP(kGamePicture) + kGamePictureRoom));
    SetSpokenName(list->GetHandle(), "Game");
    binder_.Bind("Exe_Cbo", launcher_.Window.Exe_Cbo, list, [this] { Exe_Cbo_Click(launcher_); });
    panel->Add(MakeRow(std::nullopt, list, {MakeMenuPicture(0)}), Row());
    auto* hint =
        new wxStaticText(at_, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    hint->SetMinSize(FromDIP(wxSize(80, -1)));  // a long hint is cut, the window does not grow by it
    binder_.Bind("Hint_Lbl", launcher_.Window.Hint_Lbl, hint);
    panel->AddStretchSpacer();
    panel->Add(hint, Row());
    panel->AddStretchSpacer();
    return panel;
}

wxSizer* LvPanels::MakeCommandPanel() {
    wxStaticBoxSizer* panel = MakePanel("Command_Pan", &LV_Frm::Command_Pan);
    auto* launch = new wxButton(at_, wxID_ANY, ToWx(launcher_.Window.DoIt_Cmd[0].Caption));
    launch->SetBitmap(PictureOf(ButtonPicture("launch"), kBarPicture));
    launch->SetFont(launch->GetFont().Bold().Larger());
    auto* view = new wxButton(at_, wxID_ANY, ToWx(launcher_.Window.DoIt_Cmd[1].Caption));
    auto* create = new wxButton(at_, wxID_ANY, ToWx(launcher_.Window.DoIt_Cmd[2].Caption));
    auto* files = new wxBoxSizer(wxVERTICAL);
    files->Add(view, wxSizerFlags(1).Expand().Border(wxBOTTOM, kGap / 2));
    files->Add(create, wxSizerFlags(1).Expand());
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(launch, wxSizerFlags(1).Expand().Border(wxRIGHT, kGap));
    buttons->Add(files, wxSizerFlags().Expand());
    panel->Add(buttons, Row().Proportion(1));
    panel->Add(MakeOption(Option::EndOnLaunch_Chk), Row());
    int index = 0;
    for (wxButton* button : {launch, view, create}) {
        binder_.Bind(wxString::Format("DoIt_Cmd(%d)", index).utf8_str(),
                     launcher_.Window.DoIt_Cmd[static_cast<std::size_t>(index)], button,
                     [this, index] { DoIt_Cmd_Click(launcher_, index); });
        ++index;
    }
    return panel;
}

wxSizer* LvPanels::MakeModPanel() {
    wxStaticBoxSizer* panel = MakePanel("Mod_Pan", &LV_Frm::Mod_Pan);
    wxChoice* list = MakeList("Game_Cbo", &LV_Frm::Game_Cbo, "Modification", Game_Cbo_Click);
    panel->Add(MakeRow(Option::Game_Chk, list, {MakeMenuPicture(1)}), Row());
    return panel;
}

wxSizer* LvPanels::MakeScriptPanel() {
    wxStaticBoxSizer* panel = MakePanel("PlayerScript_Pan", &LV_Frm::PlayerScript_Pan);
    wxChoice* list = MakeList("Script_Cbo", &LV_Frm::Script_Cbo, "Player script", Script_Cbo_Click);
    wxWindow* edit = MakeSmallButton("SetupFoundry_Cmd", &LV_Frm::SetupFoundry_Cmd, "edit_script",
                                     "Edit the player script", SetupFoundry_Bar_Click);
    panel->Add(MakeRow(Option::Script_Chk, list, {edit, MakeMenuPicture(3)}), Row());
    return panel;
}

wxSizer* LvPanels::MakeVideoPanel() {
    wxStaticBoxSizer* panel = MakePanel("VideoProfile_Pan", &LV_Frm::VideoProfile_Pan);
    wxChoice* list =
        MakeList("VideoProfiles_Cbo", &LV_Frm::VideoProfiles_Cbo, "Video profile", VideoProfiles_Cbo_Click);
    wxWindow* edit = MakeSmallButton("VideoProfileEdit_Cmd", &LV_Frm::VideoProfileEdit_Cmd, "beauty",
                                     "Edit the video profile", VideoProfileEdit_Cmd_Click);
    panel->Add(MakeRow(std::nullopt, list, {edit, MakeMenuPicture(6)}), Row());
    return panel;
}

wxSizer* LvPanels::MakeMemoryPanel() {
    wxStaticBoxSizer* panel = MakePanel("Memory_Pan", &LV_Frm::Memory_Pan);
    wxChoice* list = MakeList("Mem_Cbo", &LV_Frm::Mem_Cbo, "Memory", Mem_Cbo_Click);
    panel->Add(MakeRow(Option::Memory_Chk, list, {MakeMenuPicture(2)}), Row());
    return panel;
}

wxSizer* LvPanels::MakeDemoPanel() {
    wxStaticBoxSizer* panel = MakePanel("Demo_Pan", &LV_Frm::Demo_Pan);
    wxChoice* list = MakeList("Demo_Cbo", &LV_Frm::Demo_Cbo, "Demo", Demo_Cbo_Click);
    panel->Add(MakeRow(Option::Demo_Chk, list, {MakeMenuPicture(4)}), Row());
    return panel;
}

wxSizer* LvPanels::MakeServerPanel() {
    wxStaticBoxSizer* panel = MakePanel("Server_Pan", &LV_Frm::Server_Pan);
    wxChoice* servers = MakeList("Server_Cbo", &LV_Frm::Server_Cbo, "Server", Server_Cbo_Click);
    panel->Add(MakeRow(Option::Server_Chk, servers, {MakeMenuPicture(5)}), Row());
    wxChoice* maps = MakeList("Map_Cbo", &LV_Frm::Map_Cbo, "Start map", [](Launcher&) {});
    panel->Add(MakeRow(Option::Map_Chk, maps), Row());
    auto* roles = new wxBoxSizer(wxHORIZONTAL);
    roles->Add(MakeOption(Option::Dedicated_Chk), wxSizerFlags(1).CenterVertical());
    roles->Add(MakeOption(Option::Listen_Chk), wxSizerFlags(1).CenterVertical());
    panel->Add(roles, Row());
    auto* additions = new wxTextCtrl(at_, wxID_ANY);
    additions->SetHint("More for the command line");
    SetSpokenName(additions->GetHandle(), "More for the command line");
    binder_.Bind("CommandLineAdditions_Txt", launcher_.Window.CommandLineAdditions_Txt, additions,
                 [this] { CommandLineAdditions_Txt_Change(launcher_); });
    panel->Add(MakeRow(Option::CommandLineAdditions_Chk, additions), Row());
    rightPanels_.push_back({&launcher_.Window.Server_Pan, panel});
    return panel;
}

wxSizer* LvPanels::MakeQSpyPanel() {
    wxStaticBoxSizer* panel = MakePanel("QSpy_Pan", &LV_Frm::QSpy_Pan);
    panel->Add(MakeOption(Option::LaunchQspy_Chk), Row());
    panel->Add(MakeOption(Option::QSpy_Chk), Row());
    rightPanels_.push_back({&launcher_.Window.QSpy_Pan, panel});
    return panel;
}

wxSizer* LvPanels::MakeOtherPanel() {
    wxStaticBoxSizer* panel = MakePanel("OtherOpts_Pan", &LV_Frm::OtherOpts_Pan);
    // Two columns, in each of which what the game does not know closes up.
    auto* columns = new wxBoxSizer(wxHORIZONTAL);
    auto* left = new wxBoxSizer(wxVERTICAL);
    auto* right = new wxBoxSizer(wxVERTICAL);
    for (const Option option :
         {Option::Bench_Chk, Option::NOLAN_Chk, Option::NOUDP_Chk, Option::UnrealSimulateFirstRun_Chk,
          Option::UnrealDisableLogWindow_Chk, Option::UnrealDisableK6Support_Chk, Option::UnrealNoCDNeeded_Chk}) {
        left->Add(MakeOption(option), Row());
    }
    for (const Option option : {Option::nosound_chk, Option::NOCDAUDIO_Chk, Option::UnrealNoDirectSound_Chk,
                                Option::UnrealDisableMMXSupport_Chk}) {
        right->Add(MakeOption(option), Row());
    }
    right->Add(MakeOption(Option::ShowSet_Chk, "Show environment, then wait"), Row());
    columns->Add(left, wxSizerFlags(1));
    columns->Add(right, wxSizerFlags(1));
    columns->SetMinSize(-1, kOptionRows * (at_->GetChildren().front()->GetBestSize().y + kGap / 2 * 2));
    panel->Add(columns, wxSizerFlags().Expand());
    rightPanels_.push_back({&launcher_.Window.OtherOpts_Pan, panel});
    return panel;
}

void LvPanels::PlaceRightColumn() {
    std::vector<int> tops;
    for (const PlacedPanel& panel : rightPanels_) {
        tops.push_back(panel.Model->Top);
    }
    if (tops == rightTops_) {
        return;
    }
    rightTops_ = tops;
    std::vector<PlacedPanel> sorted = rightPanels_;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const PlacedPanel& a, const PlacedPanel& b) { return a.Model->Top < b.Model->Top; });
    for (const PlacedPanel& panel : sorted) {
        right_->Detach(panel.Sizer);
        right_->Add(panel.Sizer, Row());
    }
    columns_->Layout();
}

}  // namespace lv
