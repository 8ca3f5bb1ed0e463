#include "video/forms/video_profile_form.h"

#include <wx/statbox.h>
#include <wx/stattext.h>

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/whats_this.h"
#include "foundation/forms/wx_text.h"
#include "platform/toolkit/scroll_bars.h"
#include "platform/toolkit/spoken_name.h"
#include "video/forms/leader_line.h"

namespace lv {

namespace {

constexpr int kGap = 6;
constexpr int kRowGap = 2;
constexpr int kWideList = 160;  // at 100 %

Text ShownCaption(TextView caption) {
    return InTwoLines(WithoutLeader(caption));
}

}  // namespace

VideoProfileForm::VideoProfileForm(VideoProfile_Frm& model, WxUser& user)
    : wxFrame(nullptr, wxID_ANY, ToWx(model.Caption), wxDefaultPosition, wxDefaultSize,
              wxDEFAULT_FRAME_STYLE & ~wxMAXIMIZE_BOX),
      model_(model),
      user_(user),
      binder_([&user] { user.Refresh(); }),
      place_(*this, model.Placement) {
    SetName("VideoProfile_Frm");
    SetIcons(ProgramIcon());
    content_ =
        new wxScrolledWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxHSCROLL | wxVSCROLL);
    KeepScrollBarsInSight(content_->GetHandle());
    content_->SetScrollRate(FromDIP(10), FromDIP(10));
    FollowKeyboard(*content_);
    auto* rows = new UnsqueezedRows;
    rows->Add(MakeCardRow(), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, kGap));
    rows->Add(MakeColumns(), wxSizerFlags(1).Expand().Border(wxALL, kGap / 2));
    content_->SetSizer(rows);
    GiveWhatsThis(this);
    BindEvents();
}

void VideoProfileForm::BindEvents() {
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { binder_.Run([this] { VideoProfile_Frm_Unload(model_); }); });
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_ESCAPE) {
            Close();
        } else {
            event.Skip();
        }
    });
    Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
        event.Skip();
        if (event.GetActive()) {
            user_.SetForemost(this);
        }
    });
    const auto keep = [this](wxEvent& event) {
        event.Skip();
        KeepSize();
    };
    Bind(wxEVT_SIZE, keep);
    Bind(wxEVT_ICONIZE, keep);
}

void VideoProfileForm::KeepSize() {
    if (!place_.IsPut() || !IsShown()) {
        return;
    }
    WindowPlacement& placement = model_.Placement;
    placement.WindowState = IsIconized() ? kWindowMinimised : IsMaximized() ? kWindowMaximised : kWindowNormal;
    if (placement.WindowState == kWindowNormal) {
        placement.Width = ToTwips(GetSize().x);
        placement.Height = ToTwips(GetSize().y);
    }
}

wxSizer* VideoProfileForm::MakeCardRow() {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    auto* label = new wxStaticText(content_, wxID_ANY, ToWx(model_.VidCard_Lbl.Caption));
    binder_.Bind("VidCard_Lbl", model_.VidCard_Lbl, label);
    panel_ = nullptr;
    wxChoice* cards =
        MakeList("VidCard_Cbo", model_.VidCard_Cbo, model_.VidCard_Lbl.Caption, [this] { VidCard_Cbo_Click(model_); });
    row->Add(label, wxSizerFlags().CenterVertical().Border(wxRIGHT, kGap));
    row->Add(cards, wxSizerFlags().CenterVertical());
    auto* hint = new wxStaticText(content_, wxID_ANY, ToWx(model_.Hint_Lbl.Caption));
    binder_.Bind("Hint_Lbl", model_.Hint_Lbl, hint);
    row->Add(hint, wxSizerFlags().CenterVertical().Border(wxLEFT, 3 * kGap));
    return row;
}

wxSizer* VideoProfileForm::MakeColumns() {
    const std::vector<ProfilePanel> columns[] = {
        {ProfilePanel::Resolution, ProfilePanel::No3DHardware, ProfilePanel::UnrealVideo},
        {ProfilePanel::VoodooScreenColor, ProfilePanel::Voodoo1, ProfilePanel::Voodoo2},
        {ProfilePanel::Effects, ProfilePanel::NoEffects},
    };
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    for (const auto& column : columns) {
        auto* panels = new wxBoxSizer(wxVERTICAL);
        for (const ProfilePanel panel : column) {
            StartPanel(panel);
            if (panel == ProfilePanel::Resolution) {
                MakeResolutionRows();
            }
            if (panel == ProfilePanel::No3DHardware) {
                MakeNo3DHardwareRow();
            }
            MakeBoxes(panel);
            EndPanel(panels);
        }
        row->Add(panels, wxSizerFlags().Expand());
    }
    return row;
}

wxWindow* VideoProfileForm::StartPanel(ProfilePanel panel) {
    Panel& model = model_.PanelOf(panel);
    panel_ = new wxPanel(content_);
    rows_ = new wxStaticBoxSizer(wxVERTICAL, panel_, ToWx(Trim(model.Caption)));
    lists_.clear();
    binder_.Bind(ProfilePanelRows()[static_cast<std::size_t>(panel)].Name, model, panel_);
    return panel_;
}

// A panel's lists are all as wide as the widest, so that they stand below each other; but for one of long names.
void VideoProfileForm::EndPanel(wxSizer* column) {
    int width = 0;
    for (const wxChoice* list : lists_) {
        const int own = list->GetBestSize().x;
        width = own < FromDIP(kWideList) ? std::max(width, own) : width;
    }
    for (wxChoice* list : lists_) {
        list->SetMinSize(wxSize(std::max(width, list->GetBestSize().x), -1));
    }
    panel_->SetSizer(rows_);
    column->Add(panel_, wxSizerFlags().Expand().Border(wxALL, kGap / 2));
}

wxCheckBox* VideoProfileForm::MakeCheck(const std::string& name, CheckBox& model, Binder::Handler click) {
    auto* check = new wxCheckBox(rows_->GetStaticBox(), wxID_ANY, ToWx(ShownCaption(model.Caption)), wxDefaultPosition,
                                 wxDefaultSize, wxCHK_3STATE);
    binder_.Bind(name.c_str(), model, check, std::move(click), ShownCaption);
    return check;
}

// The list is called by the control before it.
wxChoice* VideoProfileForm::MakeList(const std::string& name, ListBox& model, const Text& caption,
                                     Binder::Handler click) {
    wxWindow* const parent = panel_ != nullptr ? rows_->GetStaticBox() : static_cast<wxWindow*>(content_);
    auto* list = new wxChoice(parent, wxID_ANY);
    SetSpokenName(list->GetHandle(), ToUtf8(WithoutLeader(caption)));
    binder_.Bind(name.c_str(), model, list, std::move(click));
    binder_.Show();  // with its rows it knows how wide it has to be
    lists_.push_back(list);
    return list;
}

void VideoProfileForm::AddRow(const CheckBox& model, wxCheckBox* check, const std::vector<wxChoice*>& lists) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(check, wxSizerFlags().CenterVertical());
    if (lists.empty()) {
        row->AddStretchSpacer();
    } else {
        auto* line = new LeaderLine(rows_->GetStaticBox());
        followers_.push_back({&model, {line}});
        row->Add(line, wxSizerFlags(1).Expand());
    }
    for (wxChoice* list : lists) {
        row->Add(list, wxSizerFlags().CenterVertical());
    }
    rows_->Add(row, wxSizerFlags().Expand().Border(wxALL, kRowGap));
}

void VideoProfileForm::MakeResolutionRows() {
    CheckBox& windowed = model_.Windowed_Chk;
    AddRow(windowed, MakeCheck("Windowed_Chk", windowed, [this] { Windowed_Chk_Click(model_); }), {});
    CheckBox& useRez = model_.GL_Chk[0];
    wxCheckBox* check = MakeCheck("GL_Chk(0)", useRez, [this] { GL_Chk_Click(model_, 0); });
    AddRow(useRez, check,
           {MakeList("Rez_Cbo", model_.Rez_Cbo, useRez.Caption, [this] { Rez_Cbo_Click(model_); }),
            MakeList("Q2_Rez_Cbo", model_.Q2_Rez_Cbo, useRez.Caption, [this] { Q2_Rez_Cbo_Click(model_); })});
    CheckBox& useBits = model_.GL_Chk[1];
    check = MakeCheck("GL_Chk(1)", useBits, [this] { GL_Chk_Click(model_, 1); });
    AddRow(useBits, check,
           {MakeList("Bits_Cbo", model_.Bits_Cbo, useBits.Caption, [this] { Bits_Cbo_Click(model_); })});
    CheckBox& useDriver = model_.GraphicsDriver_Chk;
    check = MakeCheck("GraphicsDriver_Chk", useDriver, [this] { GraphicsDriver_Chk_Click(model_); });
    AddRow(useDriver, check, {MakeList("GraphicsDriver_Cbo", model_.GraphicsDriver_Cbo, useDriver.Caption, [this] {
               GraphicsDriver_Cbo_Click(model_);
           })});
}

void VideoProfileForm::MakeNo3DHardwareRow() {
    auto* label = new wxStaticText(rows_->GetStaticBox(), wxID_ANY, ToWx(model_.No3DHardware_Lbl.Caption));
    binder_.Bind("No3DHardware_Lbl", model_.No3DHardware_Lbl, label);
    rows_->Add(label, wxSizerFlags().Border(wxALL, kGap));
}

void VideoProfileForm::MakeBoxes(ProfilePanel panel) {
    for (ProfileBox& box : model_.Boxes) {
        if (box.Row->Panel == panel) {
            MakeBox(box);
        }
    }
}

void VideoProfileForm::MakeBox(ProfileBox& box) {
    const std::string name = box.Row->Name;
    wxCheckBox* check = MakeCheck(name + "_Chk", box.Chk, [this, &box] { Profile_Chk_Click(model_, box); });
    if (box.Tunable == nullptr) {
        AddRow(box.Chk, check, {});
        return;
    }
    AddRow(box.Chk, check,
           {MakeList(name + "_Cbo", box.Cbo, box.Chk.Caption, [this, &box] { Profile_Cbo_Click(model_, box); })});
}

void VideoProfileForm::ShowState() {
    if (GetTitle() != ToWx(model_.Caption)) {
        SetTitle(ToWx(model_.Caption));
    }
    bool changed = binder_.Show();
    for (const Row& row : followers_) {
        for (wxWindow* window : row.Follows) {
            changed = window->Show(row.Model->Visible) || changed;
        }
    }
    if (changed || !place_.IsPut()) {
        FitToContent();
    }
}

void VideoProfileForm::FitToContent() {
    for (wxWindow* panel : content_->GetChildren()) {
        if (panel->GetSizer() != nullptr) {
            panel->GetSizer()->Layout();
        }
    }
    const wxSize client = ScrollInRoom(*content_, content_->GetSizer()->CalcMin(), RoomInside(*this));
    if (!IsMaximized()) {
        SetClientSize(client);
    }
    content_->Layout();
    if (IsShown() && !IsMaximized()) {
        StayOnScreen(*this);  // what comes beside a window at the screen's edge is to be seen too
    }
}

void VideoProfileForm::Open() {
    place_.Put();
    if (!IsShown()) {
        Show();
    }
    if (model_.Raise) {
        model_.Raise = false;
        Iconize(false);
        Raise();
        user_.SetForemost(this);
    }
}

void VideoProfileForm::CloseUp() {
    place_.Forget();
    Hide();
}

VideoProfileWindow::VideoProfileWindow(VideoProfile_Frm& model, WxUser& user) : model_(model), user_(user) {
    model_.Measure = [this] {
        TheForm().ShowState();
        const wxSize size = TheForm().GetSize();
        return TwipsSize{ToTwips(size.x), ToTwips(size.y)};
    };
    user_.OnRefresh(this, [this] { ShowState(); });
}

VideoProfileWindow::~VideoProfileWindow() {
    model_.Measure = nullptr;
    user_.OnRefresh(this, {});
    if (form_) {
        form_->Destroy();
    }
}

VideoProfileForm& VideoProfileWindow::TheForm() {
    if (!form_) {
        form_ = new VideoProfileForm(model_, user_);
    }
    return *form_;
}

void VideoProfileWindow::ShowState() {
    if (model_.VideoProfileWindowOpen) {
        TheForm().ShowState();
        TheForm().Open();
        return;
    }
    if (form_ && form_->IsShown()) {
        user_.SetForemost(nullptr);
        form_->CloseUp();
    }
}

}  // namespace lv
