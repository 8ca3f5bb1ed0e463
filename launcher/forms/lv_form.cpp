#include "launcher/forms/lv_form.h"

#include <wx/accel.h>
#include <wx/button.h>
#include <wx/display.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/wx_text.h"
#include "launcher/launch_flow.h"
#include "launcher/lv_events.h"

namespace lv {

namespace {

constexpr int kGap = 6;
constexpr int kColumnWidth = 330;  // at 100 %

wxSizerFlags Row() {
    return wxSizerFlags().Expand().Border(wxALL, kGap / 2);
}

}  // namespace

LvForm::LvForm(Launcher& launcher, WxUser& user)
    : wxFrame(nullptr, wxID_ANY, ToWx(launcher.Window.Caption), wxDefaultPosition, wxDefaultSize,
              wxDEFAULT_FRAME_STYLE & ~(wxRESIZE_BORDER | wxMAXIMIZE_BOX)),
      launcher_(launcher),
      user_(user),
      binder_([&user] { user.Refresh(); }) {
    SetName("LV_Frm");
    SetIcons(ProgramIcon());
    content_ =
        new wxScrolledWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxHSCROLL | wxVSCROLL);
    content_->ShowScrollbars(wxSHOW_SB_NEVER, wxSHOW_SB_NEVER);
    MakePanels(content_);
    MakeKeys();
    user_.SetActiveForm(this);
    user_.OnRefresh([this] { ShowState(); });
    ShowState();
    FitToScreen();
    CentreOnScreen();
    Bind(wxEVT_ICONIZE, [this](wxIconizeEvent& event) {
        if (!event.IsIconized() && !launcher_.Window.Visible) {
            launcher_.Window.Visible = true;
            user_.Refresh();
        }
        event.Skip();
    });
}

LvForm::~LvForm() {
    user_.SetActiveForm(nullptr);
    user_.OnRefresh({});
}

void LvForm::ShowState() {
    const LV_Frm& window = launcher_.Window;
    if (GetTitle() != ToWx(window.Caption)) {
        SetTitle(ToWx(window.Caption));
    }
    const bool changed = binder_.Show();
    PlaceRightColumn();
    if (changed) {
        content_->Layout();
    }
    if (window.Visible && (!IsShown() || IsIconized())) {
        Iconize(false);
        Show();
    } else if (!window.Visible && IsShown() && !IsIconized()) {
        Iconize();  // the task bar is the way back
    }
}

void LvForm::MakePanels(wxWindow* parent) {
    auto* columns = new wxBoxSizer(wxHORIZONTAL);
    auto* left = new wxBoxSizer(wxVERTICAL);
    for (wxSizer* panel :
         {MakeExePanel(parent), MakeModPanel(parent), MakeScriptPanel(parent), MakeVideoPanel(parent)}) {
        left->Add(panel, Row());
    }
    left->AddStretchSpacer();
    left->Add(MakeCommandPanel(parent), Row());

    // Taken in this order for the keyboard; PlaceRightColumn sorts them by their places.
    MakeMemoryPanel(parent);
    MakeDemoPanel(parent);
    MakeServerPanel(parent);
    MakeQSpyPanel(parent);
    MakeOtherPanel(parent);
    rightColumn_ = new wxBoxSizer(wxVERTICAL);
    for (const PlacedPanel& panel : rightPanels_) {
        rightColumn_->Add(panel.Sizer, Row());
    }
    left->SetMinSize(FromDIP(wxSize(kColumnWidth, -1)));
    rightColumn_->SetMinSize(FromDIP(wxSize(kColumnWidth, -1)));
    columns->Add(left, wxSizerFlags(1).Expand().Border(wxALL, kGap));
    columns->Add(rightColumn_, wxSizerFlags(1).Expand().Border(wxTOP | wxRIGHT | wxBOTTOM, kGap));
    parent->SetSizer(columns);
}

wxStaticBoxSizer* LvForm::MakePanel(wxWindow* parent, const char* name, Panel LV_Frm::*model) {
    auto* sizer = new wxStaticBoxSizer(wxVERTICAL, parent, ToWx(Trim((launcher_.Window.*model).Caption)));
    binder_.Bind(name, launcher_.Window.*model, sizer->GetStaticBox());
    return sizer;
}

// `label` is for a box that has no caption of its own.
wxCheckBox* LvForm::MakeOption(wxWindow* parent, CheckBox LV_Frm::*box, const wxString& label) {
    const OptionBox& option = OptionBoxOf(box);
    auto* view = new wxCheckBox(parent, wxID_ANY, *option.Caption != '\0' ? ToWx(Trim(option.Caption)) : label,
                                wxDefaultPosition, wxDefaultSize, wxCHK_3STATE);
    binder_.Bind(option.Name, launcher_.Window.*box, view, [this, box] { Option_Chk_Click(launcher_, box); });
    return view;
}

wxChoice* LvForm::MakeList(wxWindow* parent, const char* name, ListBox LV_Frm::*list, const wxString& spoken,
                           void (*click)(Launcher&)) {
    auto* view = new wxChoice(parent, wxID_ANY);
    view->SetMinSize(FromDIP(wxSize(200, -1)));
    view->SetHelpText(spoken);
    binder_.Bind(name, launcher_.Window.*list, view, [this, click] { click(launcher_); });
    return view;
}

wxSizer* LvForm::MakeTickedList(wxWindow* parent, CheckBox LV_Frm::*box, wxWindow* list) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    wxCheckBox* tick = MakeOption(parent, box);
    tick->MoveBeforeInTabOrder(list);
    row->Add(tick, wxSizerFlags().CenterVertical().Border(wxRIGHT, kGap));
    row->Add(list, wxSizerFlags(1).CenterVertical());
    return row;
}

wxSizer* LvForm::MakeExePanel(wxWindow* parent) {
    wxStaticBoxSizer* panel = MakePanel(parent, "Exe_Pan", &LV_Frm::Exe_Pan);
    auto* list = new wxBitmapComboBox(panel->GetStaticBox(), wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, nullptr,
                                      wxCB_READONLY);
    list->SetHelpText("Game executable");
    list->SetMinSize(FromDIP(wxSize(200, 36)));
    binder_.Bind("Exe_Cbo", launcher_.Window.Exe_Cbo, list, [this] { Exe_Cbo_Click(launcher_); });
    panel->Add(list, Row());
    return panel;
}

wxSizer* LvForm::MakeModPanel(wxWindow* parent) {
    wxStaticBoxSizer* panel = MakePanel(parent, "Mod_Pan", &LV_Frm::Mod_Pan);
    wxWindow* box = panel->GetStaticBox();
    panel->Add(MakeTickedList(box, &LV_Frm::Game_Chk,
                              MakeList(box, "Game_Cbo", &LV_Frm::Game_Cbo, "Modification", Game_Cbo_Click)),
               Row());
    return panel;
}

wxSizer* LvForm::MakeScriptPanel(wxWindow* parent) {
    wxStaticBoxSizer* panel = MakePanel(parent, "PlayerScript_Pan", &LV_Frm::PlayerScript_Pan);
    wxWindow* box = panel->GetStaticBox();
    panel->Add(MakeTickedList(box, &LV_Frm::Script_Chk,
                              MakeList(box, "Script_Cbo", &LV_Frm::Script_Cbo, "Player script", Script_Cbo_Click)),
               Row());
    return panel;
}

wxSizer* LvForm::MakeVideoPanel(wxWindow* parent) {
    wxStaticBoxSizer* panel = MakePanel(parent, "VideoProfile_Pan", &LV_Frm::VideoProfile_Pan);
    panel->Add(MakeList(panel->GetStaticBox(), "VideoProfiles_Cbo", &LV_Frm::VideoProfiles_Cbo, "Video profile",
                        VideoProfiles_Cbo_Click),
               Row());
    return panel;
}

wxSizer* LvForm::MakeMemoryPanel(wxWindow* parent) {
    wxStaticBoxSizer* panel = MakePanel(parent, "Memory_Pan", &LV_Frm::Memory_Pan);
    wxWindow* box = panel->GetStaticBox();
    panel->Add(
        MakeTickedList(box, &LV_Frm::Memory_Chk, MakeList(box, "Mem_Cbo", &LV_Frm::Mem_Cbo, "Memory", Mem_Cbo_Click)),
        Row());
    rightPanels_.push_back({&launcher_.Window.Memory_Pan, panel, box});
    return panel;
}

wxSizer* LvForm::MakeDemoPanel(wxWindow* parent) {
    wxStaticBoxSizer* panel = MakePanel(parent, "Demo_Pan", &LV_Frm::Demo_Pan);
    wxWindow* box = panel->GetStaticBox();
    panel->Add(
        MakeTickedList(box, &LV_Frm::Demo_Chk, MakeList(box, "Demo_Cbo", &LV_Frm::Demo_Cbo, "Demo", Demo_Cbo_Click)),
        Row());
    rightPanels_.push_back({&launcher_.Window.Demo_Pan, panel, box});
    return panel;
}

wxSizer* LvForm::MakeServerPanel(wxWindow* parent) {
    wxStaticBoxSizer* panel = MakePanel(parent, "Server_Pan", &LV_Frm::Server_Pan);
    wxWindow* box = panel->GetStaticBox();
    panel->Add(MakeTickedList(box, &LV_Frm::Server_Chk,
                              MakeList(box, "Server_Cbo", &LV_Frm::Server_Cbo, "Server", Server_Cbo_Click)),
               Row());
    auto* roles = new wxBoxSizer(wxHORIZONTAL);
    roles->Add(MakeOption(box, &LV_Frm::Dedicated_Chk), wxSizerFlags(1).CenterVertical());
    roles->Add(MakeOption(box, &LV_Frm::Listen_Chk), wxSizerFlags(1).CenterVertical());
    panel->Add(roles, Row());
    panel->Add(MakeTickedList(box, &LV_Frm::Map_Chk,
                              MakeList(box, "Map_Cbo", &LV_Frm::Map_Cbo, "Start map", [](Launcher&) {})),
               Row());
    auto* additions = new wxTextCtrl(box, wxID_ANY);
    additions->SetHint("more for the command line");
    additions->SetHelpText("More for the command line");
    binder_.Bind("CommandLineAdditions_Txt", launcher_.Window.CommandLineAdditions_Txt, additions,
                 [this] { CommandLineAdditions_Txt_Change(launcher_); });
    panel->Add(MakeTickedList(box, &LV_Frm::CommandLineAdditions_Chk, additions), Row());
    rightPanels_.push_back({&launcher_.Window.Server_Pan, panel, box});
    return panel;
}

wxSizer* LvForm::MakeQSpyPanel(wxWindow* parent) {
    wxStaticBoxSizer* panel = MakePanel(parent, "QSpy_Pan", &LV_Frm::QSpy_Pan);
    wxWindow* box = panel->GetStaticBox();
    panel->Add(MakeOption(box, &LV_Frm::LaunchQspy_Chk), Row());
    panel->Add(MakeOption(box, &LV_Frm::QSpy_Chk), Row());
    rightPanels_.push_back({&launcher_.Window.QSpy_Pan, panel, box});
    return panel;
}

wxSizer* LvForm::MakeOtherPanel(wxWindow* parent) {
    wxStaticBoxSizer* panel = MakePanel(parent, "OtherOpts_Pan", &LV_Frm::OtherOpts_Pan);
    wxWindow* box = panel->GetStaticBox();
    // Two columns, in each of which what the game does not know closes up.
    auto* columns = new wxBoxSizer(wxHORIZONTAL);
    auto* left = new wxBoxSizer(wxVERTICAL);
    auto* right = new wxBoxSizer(wxVERTICAL);
    for (CheckBox LV_Frm::*const option :
         {&LV_Frm::Bench_Chk, &LV_Frm::NOLAN_Chk, &LV_Frm::NOUDP_Chk, &LV_Frm::UnrealSimulateFirstRun_Chk,
          &LV_Frm::UnrealDisableLogWindow_Chk, &LV_Frm::UnrealDisableK6Support_Chk}) {
        left->Add(MakeOption(box, option), Row());
    }
    for (CheckBox LV_Frm::*const option : {&LV_Frm::nosound_chk, &LV_Frm::NOCDAUDIO_Chk,
                                           &LV_Frm::UnrealNoDirectSound_Chk, &LV_Frm::UnrealDisableMMXSupport_Chk}) {
        right->Add(MakeOption(box, option), Row());
    }
    right->Add(MakeOption(box, &LV_Frm::ShowSet_Chk, "Show environment, then wait"), Row());
    columns->Add(left, wxSizerFlags(1));
    columns->Add(right, wxSizerFlags(1));
    panel->Add(columns, Row());
    rightPanels_.push_back({&launcher_.Window.OtherOpts_Pan, panel, box});
    return panel;
}

wxSizer* LvForm::MakeCommandPanel(wxWindow* parent) {
    wxStaticBoxSizer* panel = MakePanel(parent, "Command_Pan", &LV_Frm::Command_Pan);
    wxWindow* box = panel->GetStaticBox();
    auto* launch = new wxButton(box, wxID_ANY, ToWx(launcher_.Window.DoIt_Cmd[0].Caption));
    launch->SetBitmap(PictureOf("icons/buttons/launch", 32));
    launch->SetFont(launch->GetFont().Bold().Larger());
    launch->SetMinSize(FromDIP(wxSize(-1, 52)));
    panel->Add(launch, Row());
    auto* files = new wxBoxSizer(wxHORIZONTAL);
    auto* view = new wxButton(box, wxID_ANY, ToWx(launcher_.Window.DoIt_Cmd[1].Caption));
    auto* create = new wxButton(box, wxID_ANY, ToWx(launcher_.Window.DoIt_Cmd[2].Caption));
    files->Add(view, wxSizerFlags(1).Expand().Border(wxRIGHT, kGap));
    files->Add(create, wxSizerFlags(1).Expand());
    panel->Add(files, Row());
    panel->Add(MakeOption(box, &LV_Frm::EndOnLaunch_Chk), Row());
    int index = 0;
    for (wxButton* button : {launch, view, create}) {
        binder_.Bind(wxString::Format("DoIt_Cmd(%d)", index).utf8_str(),
                     launcher_.Window.DoIt_Cmd[static_cast<std::size_t>(index)], button,
                     [this, index] { DoIt_Cmd_Click(launcher_, index); });
        ++index;
    }
    return panel;
}

void LvForm::MakeKeys() {
    const int launchId = wxWindow::NewControlId();
    wxAcceleratorEntry entry(wxACCEL_NORMAL, WXK_F2, launchId);
    SetAcceleratorTable(wxAcceleratorTable(1, &entry));
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { PressLaunch(0); }, launchId);
}

void LvForm::PressLaunch(int index) {
    binder_.Run([this, index] { DoIt_Cmd_Click(launcher_, index); });
}

void LvForm::PlaceRightColumn() {
    std::vector<int> tops;
    for (const PlacedPanel& panel : rightPanels_) {
        tops.push_back(panel.Model->Visible ? panel.Model->Top : -1);
    }
    if (tops == rightTops_) {
        return;
    }
    rightTops_ = tops;
    std::vector<PlacedPanel> sorted = rightPanels_;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const PlacedPanel& a, const PlacedPanel& b) { return a.Model->Top < b.Model->Top; });
    for (const PlacedPanel& panel : sorted) {
        rightColumn_->Detach(panel.Sizer);
        rightColumn_->Add(panel.Sizer, Row());
        rightColumn_->Show(panel.Sizer, panel.Model->Visible);
    }
    binder_.Show();  // showing a panel shows all of it; what the game hides goes again
    content_->Layout();
}

// As large as the content asks for, or as the screen has room; then the content scrolls.
void LvForm::FitToScreen() {
    content_->FitInside();
    const wxSize best = content_->GetSizer()->ComputeFittingClientSize(content_);
    const wxSize room = wxDisplay(this).GetClientArea().GetSize() - (GetSize() - GetClientSize());
    if (best.x > room.x || best.y > room.y) {
        content_->ShowScrollbars(wxSHOW_SB_DEFAULT, wxSHOW_SB_DEFAULT);
        content_->SetScrollRate(10, 10);
    }
    SetClientSize(std::min(best.x, room.x), std::min(best.y, room.y));
}

}  // namespace lv
