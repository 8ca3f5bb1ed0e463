#include "foundry/forms/phun_names_form.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/display.h>
#include <wx/scrolwin.h>
#include <wx/stattext.h>

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/forms/wx_text.h"
#include "foundry/forms/name_picture.h"

namespace lv {

namespace {

constexpr int kGap = 6;

using Click = void (*)(Fig_Frm&);

struct ButtonRow {
    const char* Name;
    CommandButton PhunNames_Frm::*Button;
    Click Handler;
    int Help;  // what it does: its place in Help_Lbl; -1 without
};

// clang-format off
constexpr ButtonRow kButtons[] = {
    {"ClearCurrent_Cmd", &PhunNames_Frm::ClearCurrent_Cmd, PhunNames_ClearCurrent_Cmd_Click, 2},
    {"ClearAll_Cmd",     &PhunNames_Frm::ClearAll_Cmd,     PhunNames_ClearAll_Cmd_Click,     1},
    {"Restore_Cmd",      &PhunNames_Frm::Restore_Cmd,      PhunNames_Restore_Cmd_Click,      0},
};
// clang-format on

/// What scrolls the window, or null.
wxScrolledWindow* ScrolledAround(const wxWindow& window) {
    for (wxWindow* parent = window.GetParent(); parent != nullptr && !parent->IsTopLevel();
         parent = parent->GetParent()) {
        auto* const scrolled = dynamic_cast<wxScrolledWindow*>(parent);
        int step = 0;
        if (scrolled != nullptr) {
            scrolled->GetScrollPixelsPerUnit(nullptr, &step);
        }
        if (step > 0) {
            return scrolled;
        }
    }
    return nullptr;
}

}  // namespace

PhunNamesForm::PhunNamesForm(wxWindow* owner, Fig_Frm& editor, std::function<void()> below)
    : ModalForm(owner, editor.PhunNames, [&editor] { PhunNames_Cancel_Cmd_Click(editor); }), below_(std::move(below)) {
    PhunNames_Frm& names = editor.PhunNames;
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    auto* map = new FontMapPicture(this, names.Map, [this, &editor](int x, int y) {
        Controls.Run([&] { PhunNames_Picture1_MouseUp(editor, x, y); });
    });
    row->Add(map, wxSizerFlags().Border(wxRIGHT, 2 * kGap));
    row->Add(MakeButtons(editor), wxSizerFlags(1));
    AddWide(MakeLabel(this, "Help_Lbl(5)", names.Help_Lbl[5]));
    AddWide(row);
    Finish(MakeButton("OK_Cmd", names.OK_Cmd, [&editor] { PhunNames_OK_Cmd_Click(editor); }),
           MakeButton("Cancel_Cmd", names.Cancel_Cmd, [&editor] { PhunNames_Cancel_Cmd_Click(editor); }));
    PlaceUnderName(owner);
    map->SetFocus();
}

void PhunNamesForm::ShowState() {
    ModalForm::ShowState();
    below_();
}

wxCheckBox* PhunNamesForm::MakeBox(const char* name, CheckBox& model) {
    auto* box =
        new wxCheckBox(this, wxID_ANY, ToWx(Trim(model.Caption)), wxDefaultPosition, wxDefaultSize, wxCHK_3STATE);
    Controls.Bind(name, model, box, [] {});
    return box;
}

wxSizer* PhunNamesForm::MakeButtons(Fig_Frm& editor) {
    PhunNames_Frm& names = editor.PhunNames;
    auto* grid = new wxFlexGridSizer(2, kGap, kGap);
    const auto add = [&](wxButton* button, int help) {
        grid->Add(button, wxSizerFlags().Expand());
        grid->Add(MakeLabel(this, wxString::Format("Help_Lbl(%d)", help).utf8_str(),
                            names.Help_Lbl[static_cast<std::size_t>(help)]),
                  wxSizerFlags().CenterVertical());
    };
    add(MakeButton("Navigate_Cmd(0)", names.Navigate_Cmd[0], [&editor] { PhunNames_Navigate_Cmd_Click(editor, 0); }),
        4);
    add(MakeButton("Navigate_Cmd(2)", names.Navigate_Cmd[2], [&editor] { PhunNames_Navigate_Cmd_Click(editor, 2); }),
        3);
    for (const ButtonRow& row : kButtons) {
        const Click click = row.Handler;
        add(MakeButton(row.Name, names.*row.Button, [&editor, click] { click(editor); }), row.Help);
    }
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(grid);
    rows->Add(MakeBox("InsertChars_Chk", names.InsertChars_Chk), wxSizerFlags().Border(wxTOP, 2 * kGap));
    rows->Add(MakeBox("AutoAdvance_Chk", names.AutoAdvance_Chk), wxSizerFlags().Border(wxTOP, kGap));
    return rows;
}

// There may be too little below the name to scroll it so far: the room is lent until this goes.
void PhunNamesForm::LiftName(const wxWindow& picture, int pixels) {
    lifted_ = ScrolledAround(picture);
    if (lifted_ == nullptr) {
        return;
    }
    int step = 0;
    lifted_->GetScrollPixelsPerUnit(nullptr, &step);
    const int steps = lifted_->GetViewStart().y + (pixels + step - 1) / step;
    wxSizer* const rows = lifted_->GetSizer();
    rows->AddSpacer(std::max(0, lifted_->GetClientSize().y + steps * step - rows->CalcMin().y));
    lifted_->FitInside();
    lifted_->Scroll(wxDefaultCoord, steps);
}

PhunNamesForm::~PhunNamesForm() {
    if (lifted_ != nullptr) {
        wxSizer* const rows = lifted_->GetSizer();
        rows->Remove(static_cast<int>(rows->GetItemCount()) - 1);
        lifted_->Scroll(wxDefaultCoord, 0);
        lifted_->FitInside();
    }
}

// So that the name and its cursor stay in sight above, scrolled up as far as need be.
void PhunNamesForm::PlaceUnderName(wxWindow* owner) {
    const wxWindow* const picture = owner->FindWindow("Name_Pic");
    if (picture == nullptr) {
        return;
    }
    const wxRect screen = wxDisplay(owner).GetClientArea();
    const wxSize size = GetSize();
    const int missing = picture->GetScreenRect().GetBottom() + FromDIP(4 * kGap) + size.y - screen.GetBottom();
    if (missing > 0) {
        LiftName(*picture, missing);
    }
    const wxRect name = picture->GetScreenRect();
    Move(std::max(screen.x, std::min(name.x, screen.GetRight() - size.x)),
         std::max(screen.y, std::min(name.GetBottom() + FromDIP(4 * kGap), screen.GetBottom() - size.y)));
}

}  // namespace lv
