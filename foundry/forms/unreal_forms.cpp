#include "foundry/forms/unreal_forms.h"

#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/panel.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <span>

#include "foundation/field_strings.h"
#include "foundation/forms/wx_text.h"
#include "foundation/game.h"
#include "foundry/editor/player_page.h"
#include "foundry/editor/settings_pages.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kValueLetters = 13;
constexpr int kTextLetters = 24;
constexpr int kListLetters = 28;

/// Lives while the page is being made; what the page does later must not know it.
class UnrealPageMaker {
  public:
    UnrealPageMaker(FigParts& parts, wxWindow* page) : parts_(parts), form_(parts.Model), page_(page) {}

    void MakePlayer() {
        Start("PlayerPawn_Pic", form_.PlayerPawn_Pic);
        const auto captions = PlayerPawnCaptions();
        wxFlexGridSizer* left = AddColumn();
        wxFlexGridSizer* right = AddColumn();
        for (std::size_t i = 0; i < captions.size(); ++i) {
            AddList(i < captions.size() / 2 + 1 ? left : right, "PlayerPawn_Cbo", i, form_.Document.PlayerPawn_Cbo[i],
                    captions[i]);
        }
        for (std::size_t i = 0; i < MouseBindCaptions().size(); ++i) {
            AddList(right, "MouseBind_Cbo", i, form_.Document.MouseBind_Cbo[i], MouseBindCaptions()[i]);
        }
        AddText(left, "UnrealTeamName_Txt", kTeamNameCaption, form_.Document.UnrealTeamName_Txt, 0);
        AddText(right, "UnrealPassword_Txt", kPasswordCaption, form_.Document.UnrealPassword_Txt, 0);
        End();
    }

    void MakeAudio() {
        Start("UnrealAudio_Pic", form_.UnrealAudio_Pic);
        const auto captions = UnrealAudioCaptions();
        wxFlexGridSizer* left = AddColumn();
        wxFlexGridSizer* right = AddColumn();
        for (std::size_t i = 0; i < captions.size(); ++i) {
            AddList(i < captions.size() / 2 ? left : right, "UnrealAudio_Cbo", i, form_.Document.UnrealAudio_Cbo[i],
                    captions[i]);
        }
        End();
    }

    void MakeWeapons() {
        Start("WeaponPriority_Pic", form_.WeaponPriority_Pic);
        ScriptDocument& document = form_.Document;
        wxListBox* priority = MakeOpenList("WeaponsPriority_Lst", document.WeaponsPriority_Lst);
        priority->Bind(wxEVT_KEY_DOWN, [&parts = parts_](wxKeyEvent& event) {
            constexpr int kUp = 38;
            constexpr int kDown = 40;
            if (event.GetKeyCode() != WXK_UP && event.GetKeyCode() != WXK_DOWN) {
                event.Skip();
                return;
            }
            const int code = event.GetKeyCode() == WXK_UP ? kUp : kDown;
            parts.Controls.Run([&] { WeaponsPriority_Lst_KeyDown(parts.Model, code); });
        });
        AddTitled(kWeaponsAvailableCaption, MakeOpenList("WeaponsAvailable_Lst", document.WeaponsAvailable_Lst));
        AddButtons("SelectWeapon_Cmd", form_.SelectWeapon_Cmd, SelectWeapon_Cmd_Click);
        AddTitled(kWeaponsPriorityCaption, priority);
        AddButtons("WeaponMove_Cmd", form_.WeaponMove_Cmd, WeaponMove_Cmd_Click);
        End();
    }

  private:
    void Start(const char* name, Panel& model) {
        panel_ = new wxPanel(page_);
        parts_.Controls.Bind(name, model, panel_);
        frame_ = new wxStaticBoxSizer(wxHORIZONTAL, panel_, ToWx(Trim(model.Caption)));
        box_ = frame_->GetStaticBox();
    }

    void End() {
        panel_->SetSizer(frame_);
        auto* whole = new wxBoxSizer(wxVERTICAL);
        whole->Add(panel_, wxSizerFlags().Expand().Border(wxALL, kPageGap));
        page_->SetSizer(whole);
    }

    wxFlexGridSizer* AddColumn() {
        auto* column = new wxFlexGridSizer(2, kCellGap, kPageGap);
        frame_->Add(column, wxSizerFlags(1).Border(wxALL, kPageGap));
        return column;
    }

    void AddList(wxSizer* column, const char* name, std::size_t index, ListBox& model, TextView caption) {
        column->Add(new wxStaticText(box_, wxID_ANY, ToWx(Trim(caption))), wxSizerFlags().CenterVertical());
        column->Add(parts_.MakeCombo(
            box_, wxString::Format("%s(%d)", name, static_cast<int>(index)).utf8_str(), model,
            [&form = form_] { Setting_Change(form); }, caption, kValueLetters));
    }

    void AddText(wxSizer* column, const char* name, const char* caption, TextBox& model, long style) {
        column->Add(new wxStaticText(box_, wxID_ANY, ToWx(Trim(caption))), wxSizerFlags().CenterVertical());
        wxTextCtrl* text = parts_.MakeText(
            box_, name, model, [&form = form_] { Setting_Change(form); }, Trim(caption).c_str(), style);
        text->SetMinSize(wxSize(kTextLetters * box_->GetTextExtent("n").x, -1));
        column->Add(text);
    }

    wxListBox* MakeOpenList(const char* name, ListBox& model) {
        auto* list = new wxListBox(box_, wxID_ANY, wxDefaultPosition,
                                   wxSize(kListLetters * box_->GetTextExtent("n").x, 14 * parts_.RowHeight(box_)), 0,
                                   nullptr, wxLB_SINGLE);
        parts_.Controls.Bind(name, model, list, [] {});
        return list;
    }

    void AddTitled(const char* title, wxListBox* list) {
        auto* column = new wxBoxSizer(wxVERTICAL);
        column->Add(new wxStaticText(box_, wxID_ANY, title), wxSizerFlags().Border(wxBOTTOM, kCellGap));
        column->Add(list, wxSizerFlags(1).Expand());
        SetSpokenName(list->GetHandle(), title);
        frame_->Add(column, wxSizerFlags().Border(wxALL, kPageGap));
    }

    void AddButtons(const char* name, std::span<CommandButton> models, void (*click)(Fig_Frm&, int)) {
        auto* column = new wxBoxSizer(wxVERTICAL);
        for (int i = 0; i < static_cast<int>(models.size()); ++i) {
            column->Add(
                parts_.MakeButton(box_, wxString::Format("%s(%d)", name, i).utf8_str(),
                                  models[static_cast<std::size_t>(i)], [&form = form_, i, click] { click(form, i); }),
                wxSizerFlags().Expand().Border(wxBOTTOM, kPageGap));
        }
        frame_->Add(column, wxSizerFlags().CenterVertical().Border(wxALL, kPageGap));
    }

    FigParts& parts_;
    Fig_Frm& form_;
    wxWindow* page_;
    wxPanel* panel_ = nullptr;
    wxStaticBoxSizer* frame_ = nullptr;
    wxWindow* box_ = nullptr;
};

}  // namespace

bool MakeUnrealPage(FigParts& parts, wxWindow* page, int which) {
    if (parts.Model.GameKind() != Game::Unreal) {
        return false;
    }
    UnrealPageMaker maker(parts, page);
    switch (which) {
        case 1:
            maker.MakePlayer();
            return true;
        case 2:
            maker.MakeAudio();
            return true;
        case 3:
            maker.MakeWeapons();
            return true;
        default:
            return false;
    }
}

}  // namespace lv
