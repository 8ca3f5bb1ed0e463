#include "foundry/forms/row_pages.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/stattext.h>

#include <iterator>
#include <string>
#include <vector>

#include "foundation/field_strings.h"
#include "foundation/forms/wx_text.h"
#include "foundation/game.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/editor/free_rows.h"
#include "foundry/editor/player_page.h"
#include "foundry/editor/settings_pages.h"

namespace lv {

namespace {

constexpr int kLeastKeyLetters = 9;          // that a row's keys have room for
constexpr SlotNumber kActionsHeading = 900;  // the player's class stands under its column
constexpr int kNameMargin = 8;               // at 100 %, around the text of a name

/// A run of rows under a heading; no heading: the column continues the one before it.
struct ColumnRow {
    BindingsPage Page;
    SlotNumber Heading;
    SlotBlock Slots;
    Game OnlyKind = Game::None;  // none: all kinds that have no row of their own
};

// clang-format off
constexpr ColumnRow kColumns[] = {
    {BindingsPage::Standard, 100,  {101, 116}},
    {BindingsPage::Standard, 200,  {201, 212}},
    {BindingsPage::System,   300,  {301, 308}},
    {BindingsPage::System,   400,  {401, 413}},
    {BindingsPage::Extended, 500,  {501, 512}},
    {BindingsPage::Extended, 0,    {513, 524}},
    {BindingsPage::Extended, 800,  {701, 712}},
    {BindingsPage::Talking,  67,   {801, 813}},
    {BindingsPage::Hexen2,   900,  {901, 908}},
    {BindingsPage::Hexen2,   950,  {909, 923}},
    {BindingsPage::Hexen2,   900,  {901, 912}, Game::Heretic2},
    {BindingsPage::Hexen2,   950,  {913, 923}, Game::Heretic2},
    {BindingsPage::Quake2,   1100, {1101, 1105}},
    {BindingsPage::Quake2,   1198, {1110, 1116}},
    {BindingsPage::Quake2,   1199, {1120, 1124}},
    {BindingsPage::Ctf,      1000, {1001, 1005}},
};

constexpr SlotBlock kAliasColumns[] = {{601, 607}, {608, 614}, {615, 621}, {622, 627}};
// clang-format on

wxString Indexed(const char* name, int index) {
    return wxString::Format("%s(%d)", name, index);
}

CellLook LookOfName(const Fig_Frm& form, SlotNumber slot) {
    const Label& label = form.Document.Bound_Lbl[slot];
    return {.Caption = label.Caption,
            .Back = SlotColor(slot, form.GameKind()),
            .Visible = label.Visible,
            .ToolTip = label.ToolTip};
}

CellLook LookOfHeading(const Fig_Frm& form, SlotNumber number) {
    CellLook look = LookOfName(form, number);
    look.Bold = true;
    return look;
}

CellLook LookOfKeys(const Fig_Frm& form, SlotNumber slot) {
    const Label& label = form.Document.Setting_Lbl[slot];
    return {.Caption = Join(Blank, label.Caption),
            .Highlighted = form.Drag.Marked == slot || form.CaptureRow == slot,
            .Inactive = !label.Enabled,
            .Visible = label.Visible,
            .ToolTip = label.ToolTip.empty() ? label.Caption : label.ToolTip};
}

/// Makes the columns of one page: the labels of a page share where the arrow keys lead.
class RowMaker {
  public:
    RowMaker(FigParts& parts, wxWindow* page) : parts_(parts), page_(page), group_(std::make_shared<CellGroup>()) {
        // Lives as long as the page, which is longer than its labels.
        page->Bind(wxEVT_DESTROY, [group = group_](wxWindowDestroyEvent& event) { event.Skip(); });
    }

    wxSizer* MakeColumn(SlotNumber heading, SlotBlock slots) {
        auto* column = new wxBoxSizer(wxVERTICAL);
        column->Add(MakeHeading(heading), wxSizerFlags().Expand().Border(wxBOTTOM, kCellGap));
        for (SlotNumber slot = slots.First; slot <= slots.Last; ++slot) {
            // A box is higher than a label, and keeps its row apart from the next by itself.
            const int gap = kMessages.Holds(slot) ? 0 : kCellGap;
            column->Add(MakeRow(slot), wxSizerFlags().Expand().Border(wxBOTTOM, gap));
        }
        return column;
    }

    /// Tab walks over the boxes behind all rows, which are one stop.
    void PutBoxesBehindRows() {
        for (wxCheckBox* box : boxes_) {
            box->MoveAfterInTabOrder(page_->GetChildren().back());
        }
    }

  private:
    wxWindow* MakeHeading(SlotNumber number) {
        if (number == 0) {
            auto* room = new wxStaticText(page_, wxID_ANY, "");
            room->SetMinSize(wxSize(1, parts_.RowHeight(page_)));
            return room;
        }
        Fig_Frm& form = parts_.Model;
        CellLabel* label = parts_.MakeCell(page_, Indexed("Bound_Lbl", number),
                                           [&form, number] { return LookOfHeading(form, number); });
        label->SetMinSize(wxSize(-1, parts_.RowHeight(page_)));
        return label;
    }

    wxSizer* MakeRow(SlotNumber slot) {
        Fig_Frm& form = parts_.Model;
        auto* row = new wxBoxSizer(wxHORIZONTAL);
        CellLabel* name =
            parts_.MakeCell(page_, Indexed("Bound_Lbl", slot), [&form, slot] { return LookOfName(form, slot); });
        name->SetMinSize(wxSize(form.BoundLabelWidth(slot) + page_->FromDIP(kNameMargin), parts_.RowHeight(page_)));
        CellLabel* keys = parts_.MakeCell(
            page_, Indexed("Setting_Lbl", slot), [&form, slot] { return LookOfKeys(form, slot); }, group_.get());
        keys->SetMinSize(wxSize(kLeastKeyLetters * parts_.LetterWidth(page_), parts_.RowHeight(page_)));
        keys->SetSpeaker([&form, slot] { return SpokenRow(form, slot); });
        row->Add(name);
        row->Add(keys, wxSizerFlags(1).Border(wxLEFT, kCellGap));
        if (kMessages.Holds(slot)) {
            AddTeamBox(row, slot);
        }
        parts_.BoundLabels[slot] = name;
        parts_.SettingLabels[slot] = keys;
        parts_.WatchName(name, slot);
        parts_.WatchRow(keys, slot);
        return row;
    }

    void AddTeamBox(wxSizer* row, SlotNumber slot) {
        Fig_Frm& form = parts_.Model;
        wxCheckBox* team =
            parts_.MakeCheck(page_, Indexed("Say_Team_Chk", slot).utf8_str(), form.Document.Say_Team_Chk[slot],
                             [&form, slot] { Say_Team_Chk_Click(form, slot); });
        boxes_.push_back(team);
        row->Add(team, wxSizerFlags().CenterVertical().Border(wxLEFT, kPageGap));
    }

    FigParts& parts_;
    wxWindow* page_;
    std::shared_ptr<CellGroup> group_;
    std::vector<wxCheckBox*> boxes_;
};

bool Belongs(const ColumnRow& column, BindingsPage page, Game kind) {
    if (column.Page != page) {
        return false;
    }
    bool own = false;
    for (const ColumnRow& other : kColumns) {
        own = own || (other.Page == page && other.OnlyKind == kind);
    }
    return column.OnlyKind == (own ? kind : Game::None);
}

using Click = void (*)(Fig_Frm&);

struct ButtonRow {
    BindingsPage Page;
    const char* Name;
    CommandButton Fig_Frm::*Button;
    Click Handler;
};

// clang-format off
constexpr ButtonRow kButtons[] = {
    {BindingsPage::Extended, "AddExtraBinding_Cmd",    &Fig_Frm::AddExtraBinding_Cmd,    AddExtraBinding_Cmd_Click},
    {BindingsPage::Extended, "EditExtraBinding_Cmd",   &Fig_Frm::EditExtraBinding_Cmd,   EditExtraBinding_Cmd_Click},
    {BindingsPage::Extended, "DeleteExtraBinding_Cmd", &Fig_Frm::DeleteExtraBinding_Cmd, DeleteExtraBinding_Cmd_Click},
    {BindingsPage::Extended, nullptr,                  nullptr,                          nullptr},
    {BindingsPage::Extended, "AddBoundScript_Cmd",     &Fig_Frm::AddBoundScript_Cmd,     AddBoundScript_Cmd_Click},
    {BindingsPage::Extended, "EditoundScript_Cmd",     &Fig_Frm::EditoundScript_Cmd,     EditoundScript_Cmd_Click},
    {BindingsPage::Extended, "DeleteBoundScript_Cmd",  &Fig_Frm::DeleteBoundScript_Cmd,  DeleteBoundScript_Cmd_Click},
    {BindingsPage::Talking,  "AddMessage_Cmd",         &Fig_Frm::AddMessage_Cmd,         AddMessage_Cmd_Click},
    {BindingsPage::Talking,  "EditMessage_Cmd",        &Fig_Frm::EditMessage_Cmd,        EditMessage_Cmd_Click},
    {BindingsPage::Talking,  "DeleteMessage_Cmd",      &Fig_Frm::DeleteMessage_Cmd,      DeleteMessage_Cmd_Click},
};
// clang-format on

wxSizer* MakeButtons(FigParts& parts, wxWindow* page, BindingsPage which) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    Fig_Frm& form = parts.Model;
    for (const ButtonRow& button : kButtons) {
        if (button.Page != which) {
            continue;
        }
        if (button.Name == nullptr) {
            row->AddStretchSpacer();
            continue;
        }
        const Click click = button.Handler;
        row->Add(parts.MakeButton(page, button.Name, form.*button.Button, [&form, click] { click(form); }),
                 wxSizerFlags().Border(wxRIGHT, kPageGap));
    }
    if (which == BindingsPage::Talking) {
        row->AddStretchSpacer();
        row->Add(parts.MakeLabel(page, "Label7", form.Label7), wxSizerFlags().CenterVertical());
    }
    return row;
}

wxSizer* MakePlayerClass(FigParts& parts, wxWindow* page) {
    Fig_Frm& form = parts.Model;
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(parts.MakeLabel(page, "Some_Lbl", form.Some_Lbl),
             wxSizerFlags().CenterVertical().Border(wxRIGHT, kPageGap));
    row->Add(parts.MakeList(
        page, "PlayerClass_Cbo", form.Document.PlayerClass_Cbo, [&form] { PlayerClass_Cbo_Click(form); },
        "Player class"));
    return row;
}

}  // namespace

void MakeBindingsPage(FigParts& parts, wxWindow* page, BindingsPage which) {
    Fig_Frm& form = parts.Model;
    auto* rows = new wxBoxSizer(wxVERTICAL);
    auto* columns = new wxBoxSizer(wxHORIZONTAL);
    RowMaker maker(parts, page);
    for (const ColumnRow& column : kColumns) {
        if (Belongs(column, which, form.GameKind())) {
            wxSizer* made = maker.MakeColumn(column.Heading, column.Slots);
            if (column.Heading == kActionsHeading) {
                made->Add(MakePlayerClass(parts, page), wxSizerFlags().Border(wxTOP, kPageGap));
            }
            columns->Add(made, wxSizerFlags(1).Border(wxRIGHT, kPageGap));
        }
    }
    maker.PutBoxesBehindRows();
    rows->Add(columns, wxSizerFlags(1).Expand().Border(wxALL, kPageGap));
    const auto below = wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, kPageGap);
    if (which == BindingsPage::System) {
        rows->Add(
            parts.MakeCheck(page, "Unbindall_Chk", form.Document.Unbindall_Chk, [&form] { Setting_Change(form); }),
            below);
    }
    if (which == BindingsPage::Extended || which == BindingsPage::Talking) {
        rows->Add(MakeButtons(parts, page, which), below);
    }
    page->SetSizer(rows);
}

wxSizer* MakeAliasRows(FigParts& parts, wxWindow* page) {
    auto* rows = new wxBoxSizer(wxVERTICAL);
    auto* columns = new wxBoxSizer(wxHORIZONTAL);
    RowMaker maker(parts, page);
    bool first = true;
    for (const SlotBlock& block : kAliasColumns) {
        columns->Add(maker.MakeColumn(first ? 700 : 0, block), wxSizerFlags(1).Border(wxRIGHT, kPageGap));
        first = false;
    }
    rows->Add(columns, wxSizerFlags().Expand());
    return rows;
}

}  // namespace lv
