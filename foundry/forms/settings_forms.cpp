#include "foundry/forms/settings_forms.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <iterator>

#include "foundation/field_strings.h"
#include "foundation/forms/wx_text.h"
#include "foundry/editor/player_page.h"
#include "foundry/editor/settings_pages.h"
#include "foundry/forms/unreal_forms.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kValueLetters = 8;
constexpr int kWideValueLetters = 17;
constexpr int kColorLetters = 16;
constexpr int kRateWrap = 520;  // at 100 %
constexpr int kSkinRows = 10;

/// A group panel of one of the pages, from the left to the right.
struct GroupRow {
    int Page;
    int Column;
    const char* Name;
    Panel Fig_Frm::*Group;
};

// clang-format off
constexpr GroupRow kGroups[] = {
    {0, 0, "Checkables_Pic", &Fig_Frm::Checkables_Pic},
    {0, 1, "Screen_Pic",     &Fig_Frm::Screen_Pic},
    {0, 1, "Other_Pic",      &Fig_Frm::Other_Pic},
    {1, 0, "Speeds_Pic",     &Fig_Frm::Speeds_Pic},
    {1, 1, "Mouse_Pic",      &Fig_Frm::Mouse_Pic},
    {2, 0, "Angle_Pic",      &Fig_Frm::Angle_Pic},
    {2, 0, "Sound_Pic",      &Fig_Frm::Sound_Pic},
    {2, 1, "Bob_Pic",        &Fig_Frm::Bob_Pic},
};
// clang-format on

bool IsWide(const ListBox ScriptSettings::*list) {
    return list == &ScriptSettings::vidmode_Cbo || list == &ScriptSettings::Crosshair_Cbo ||
           list == &ScriptSettings::CrossHairColor_Cbo || list == &ScriptSettings::Handed_Cbo;
}

/// Lives while the page is being made; what the page does later must not know it.
class OptionsPageMaker {
  public:
    OptionsPageMaker(FigParts& parts, wxWindow* page) : parts_(parts), form_(parts.Model), page_(page) {}

    void MakeGroups(int which) {
        auto* row = new wxBoxSizer(wxHORIZONTAL);
        wxBoxSizer* columns[] = {new wxBoxSizer(wxVERTICAL), new wxBoxSizer(wxVERTICAL)};
        for (const GroupRow& group : kGroups) {
            if (group.Page == which) {
                columns[group.Column]->Add(MakeGroup(group), wxSizerFlags().Expand().Border(wxBOTTOM, kPageGap));
            }
        }
        if (which == 0) {
            columns[0]->Add(MakeLooks(), wxSizerFlags().Expand());
        }
        for (wxBoxSizer* column : columns) {
            row->Add(column, wxSizerFlags(1).Border(wxALL, kPageGap));
        }
        page_->SetSizer(row);
    }

    void MakeSkins() {
        auto* rows = new wxBoxSizer(wxVERTICAL);
        auto* list = new wxListBox(page_, wxID_ANY, wxDefaultPosition, wxSize(-1, kSkinRows * parts_.RowHeight(page_)),
                                   0, nullptr, wxLB_SINGLE);
        parts_.Controls.Bind("Skin_Fil", form_.Document.Skin_Fil, list, [&form = form_] { Setting_Change(form); });
        SetSpokenName(list->GetHandle(), "Skins");
        rows->Add(list, wxSizerFlags(1).Expand().Border(wxALL, kPageGap));
        auto* below = new wxBoxSizer(wxHORIZONTAL);
        below->Add(parts_.MakeButton(page_, "SelectNoSkin_Cmd", form_.SelectNoSkin_Cmd,
                                     [&form = form_] { SelectNoSkin_Cmd_Click(form); }));
        below->Add(parts_.MakeLabel(page_, "Label8", form_.Label8),
                   wxSizerFlags().CenterVertical().Border(wxLEFT, 2 * kPageGap));
        rows->Add(below, wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, kPageGap));
        page_->SetSizer(rows);
    }

    void MakeRate() {
        auto* rows = new wxBoxSizer(wxVERTICAL);
        auto* tip = new wxStaticText(page_, wxID_ANY, ToWx(form_.Label4.Caption));
        tip->SetName("Label4");
        tip->Wrap(page_->FromDIP(kRateWrap));
        rows->Add(tip, wxSizerFlags().Border(wxALL, kPageGap));
        rows->Add(parts_.MakeText(
                      page_, "Rate_Txt", form_.Document.Rate_Txt, [&form = form_] { Setting_Change(form); }, "Rate"),
                  wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, kPageGap));
        page_->SetSizer(rows);
    }

  private:
    wxSizer* MakeGroup(const GroupRow& group) {
        Panel& model = form_.*group.Group;
        auto* panel = new wxPanel(page_);
        auto* frame = new wxStaticBoxSizer(wxVERTICAL, panel, ToWx(Trim(model.Caption)));
        box_ = frame->GetStaticBox();
        parts_.Controls.Bind(group.Name, model, panel);
        auto* checks = new wxGridSizer(2, kCellGap, 2 * kPageGap);
        for (const CheckRow& row : CheckRows()) {
            if (row.Group == group.Group) {
                checks->Add(parts_.MakeCheck(box_, row.Name, form_.Document.*row.Box,
                                             [&form = form_] { Setting_Change(form); }));
            }
        }
        frame->Add(checks, wxSizerFlags().Expand().Border(wxALL, kCellGap));
        auto* lists = new wxFlexGridSizer(3, kCellGap, kPageGap);
        lists->AddGrowableCol(0);
        for (const SettingRow& row : SettingRows()) {
            if (row.Group == group.Group) {
                AddList(lists, row);
            }
        }
        frame->Add(lists, wxSizerFlags().Expand().Border(wxALL, kCellGap));
        panel->SetSizer(frame);
        auto* whole = new wxBoxSizer(wxVERTICAL);
        whole->Add(panel, wxSizerFlags().Expand());
        return whole;
    }

    std::function<void()> HandlerOf(const SettingRow& row) {
        if (row.List == &ScriptSettings::Crosshair_Cbo) {
            return [&form = form_] { Crosshair_Cbo_Click(form); };
        }
        return [&form = form_] { Setting_Change(form); };
    }

    void AddList(wxSizer* lists, const SettingRow& row) {
        ListBox& model = form_.Document.*row.List;
        auto* caption = new wxStaticText(box_, wxID_ANY, wxControl::EscapeMnemonics(ToWx(Trim(row.Caption))));
        auto* hint = new wxStaticText(box_, wxID_ANY, ToWx(HintOf(form_, row)));
        hint->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
        wxComboBox* combo = parts_.MakeCombo(box_, row.Name, model, HandlerOf(row), row.Caption,
                                             IsWide(row.List) ? kWideValueLetters : kValueLetters);
        lists->Add(caption, wxSizerFlags().CenterVertical());
        lists->Add(combo, wxSizerFlags().CenterVertical().Expand());
        lists->Add(hint, wxSizerFlags().CenterVertical());
        parts_.Controls.OnShow([&model, caption, hint] {
            const bool changed = caption->Show(model.Visible);
            return hint->Show(model.Visible) || changed;
        });
    }

    // The player's colours, or model and skin.
    wxSizer* MakeLooks() {
        auto* rows = new wxFlexGridSizer(2, kCellGap, kPageGap);
        for (int index = 0; index < 2; ++index) {
            rows->Add(MakeColor(index));
            rows->AddSpacer(0);
        }
        ScriptDocument& document = form_.Document;
        wxWindow* model = parts_.MakeLabel(page_, "Sex_Lbl", form_.Sex_Lbl);
        rows->Add(model, wxSizerFlags().CenterVertical());
        rows->Add(parts_.MakeCombo(
            page_, "Sex_Cbo", document.Sex_Cbo, [&form = form_] { Fig_Sex_Cbo_Click(form); }, form_.Sex_Lbl.Caption,
            kWideValueLetters));
        wxWindow* skin = parts_.MakeLabel(page_, "Skin_Lbl", form_.Skin_Lbl);
        rows->Add(skin, wxSizerFlags().CenterVertical());
        rows->Add(parts_.MakeCombo(
            page_, "Skin_Cbo", document.Skin_Cbo, [&form = form_] { Setting_Change(form); }, form_.Skin_Lbl.Caption,
            kWideValueLetters));
        return rows;
    }

    wxWindow* MakeColor(int index) {
        ColorLabel& color = form_.Document.PlayerColor_Lbl[static_cast<std::size_t>(index)];
        CellLabel* label = parts_.MakeCell(
            page_, wxString::Format("PlayerColor_Lbl(%d)", index),
            [&color] {
                return CellLook{.Caption = color.Caption,
                                .Back = color.BackColor,
                                .Centered = true,
                                .Visible = color.Visible,
                                .ToolTip = color.ToolTip};
            },
            &parts_.Colors);
        label->SetMinSize(wxSize(kColorLetters * page_->GetTextExtent("n").x, parts_.RowHeight(page_) * 5 / 4));
        label->SetSpeaker([&color] { return Join(Trim(color.Caption), ", ", std::to_string(color.Tag)); });
        parts_.ColorLabels.push_back(label);
        const auto choose = [&parts = parts_, index] {
            parts.Controls.Run([&] { PlayerColor_Lbl_Click(parts.Model, index); });
        };
        label->Bind(wxEVT_LEFT_UP, [label, choose](wxMouseEvent&) {
            label->SetFocus();
            choose();
        });
        label->Bind(wxEVT_CHAR_HOOK, [choose](wxKeyEvent& event) {
            if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_SPACE) {
                choose();
            } else {
                event.Skip();
            }
        });
        return label;
    }

    FigParts& parts_;
    Fig_Frm& form_;
    wxWindow* page_;
    wxWindow* box_ = nullptr;  // of the group that is being made
};

}  // namespace

void MakeOptionsPage(FigParts& parts, wxWindow* page, int which) {
    constexpr int kSkins = 3;
    constexpr int kRate = 4;
    OptionsPageMaker maker(parts, page);
    if (MakeUnrealPage(parts, page, which)) {
        return;
    }
    if (which == kSkins) {
        maker.MakeSkins();
    } else if (which == kRate) {
        maker.MakeRate();
    } else {
        maker.MakeGroups(which);
    }
}

}  // namespace lv
