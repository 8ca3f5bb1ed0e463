#include "gamespy/forms/game_spy_form.h"

#include <wx/button.h>
#include <wx/radiobut.h>
#include <wx/statbox.h>

#include "foundation/forms/whats_this.h"
#include "foundation/forms/wx_text.h"
#include "gamespy/game_spy_config.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kGap = 8;
constexpr int kListWidth = 210;  // at 100 %
constexpr int kPathWidth = 420;

class GameSpyForm : public ModalForm {
  public:
    GameSpyForm(wxWindow* owner, GameSpyConfig_Frm& form)
        : ModalForm(owner, form, [&form] { GameSpyConfig_Cancel_Cmd_Click(form); }), form_(form) {
        MakeGames();
        MakeProgram();
        MakeAfterwards();
        wxButton* ok = MakeButton("DoIt_Cmd", form_.DoIt_Cmd, [this] { GameSpyConfig_DoIt_Cmd_Click(form_); });
        Finish(ok, MakeButton("Cancel_Cmd", form_.Cancel_Cmd, [this] { GameSpyConfig_Cancel_Cmd_Click(form_); }));
        GiveWhatsThis(this);
    }

  private:
    void MakeGames() {
        auto* frame = new wxStaticBoxSizer(wxVERTICAL, this, "Games");
        auto* grid = new wxFlexGridSizer(3, kGap, kGap * 2);
        grid->AddGrowableCol(1);
        grid->AddGrowableCol(2);
        for (const char* title : {"", "Executable", "Player script"}) {
            grid->Add(new wxStaticText(frame->GetStaticBox(), wxID_ANY, title));
        }
        for (std::size_t slot = 0; slot < kSpySlots; ++slot) {
            MakeGame(frame->GetStaticBox(), *grid, slot);
        }
        frame->Add(grid, wxSizerFlags().Expand().Border(wxALL, kGap));
        auto* directory = new wxBoxSizer(wxHORIZONTAL);
        directory->Add(new wxStaticText(frame->GetStaticBox(), wxID_ANY, "Quake's working directory: "));
        directory->Add(MakePath(frame->GetStaticBox(), "QuakeWorkingDir_Lbl", form_.QuakeWorkingDir_Lbl),
                       wxSizerFlags(1));
        frame->Add(directory, wxSizerFlags().Expand().Border(wxALL, kGap));
        AddWide(frame);
    }

    void MakeGame(wxWindow* parent, wxFlexGridSizer& grid, std::size_t slot) {
        const SpySlot& facts = SpySlots()[slot];
        grid.Add(MakeTitle(parent, slot), wxSizerFlags().CenterVertical());
        grid.Add(MakeList(parent, "ExeSpy_Cbo", slot, form_.ExeSpy_Cbo[slot],
                          [this, slot] { GameSpyConfig_ExeSpy_Cbo_Click(form_, slot); }),
                 wxSizerFlags(1).Expand());
        if (facts.Scripts == SpyScripts::None) {
            grid.Add(new wxStaticText(parent, wxID_ANY, "as for Quake"), wxSizerFlags().CenterVertical());
            return;
        }
        grid.Add(MakeList(
                     parent, "ScriptSpy_Cbo", slot, form_.ScriptSpy_Cbo[slot],
                     [this, slot] { GameSpyConfig_ScriptSpy_Cbo_Click(form_, slot); },
                     facts.Scripts == SpyScripts::InisOf ? "No ini file" : "No script"),
                 wxSizerFlags(1).Expand());
    }

    wxWindow* MakeTitle(wxWindow* parent, std::size_t slot) {
        CheckBox* const model = InstalledBox(form_, slot);
        if (model == nullptr) {
            return new wxStaticText(parent, wxID_ANY, ToWx(SpySlots()[slot].Game));
        }
        auto* box = new wxCheckBox(parent, wxID_ANY, ToWx(model->Caption));
        Controls.Bind(SpySlots()[slot].CheckBox, *model, box, [] {});
        return box;
    }

    wxChoice* MakeList(wxWindow* parent, const char* name, std::size_t slot, ListBox& model, Binder::Handler click,
                       const wxString& none = "") {
        auto* list = new wxChoice(parent, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(kListWidth, -1)));
        Controls.Bind(wxString::Format("%s(%d)", name, static_cast<int>(slot)).utf8_str(), model, list,
                      std::move(click), none);
        return list;
    }

    /// A path that is cut in its middle where it is too long.
    wxStaticText* MakePath(wxWindow* parent, const char* name, Label& model) {
        auto* path = new wxStaticText(parent, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(kPathWidth, -1)),
                                      wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_MIDDLE);
        Controls.Bind(name, model, path);
        return path;
    }

    void MakeProgram() {
        auto* frame = new wxStaticBoxSizer(wxVERTICAL, this, "GameSpy 3D");
        auto* place = new wxBoxSizer(wxHORIZONTAL);
        place->Add(MakePath(frame->GetStaticBox(), "GameSpyLocation_Lbl", form_.GameSpyLocation_Lbl),
                   wxSizerFlags(1).CenterVertical());
        auto* browse = new wxButton(frame->GetStaticBox(), wxID_ANY, ToWx(form_.Browse_Cmd.Caption));
        Controls.Bind("Browse_Cmd", form_.Browse_Cmd, browse, [this] { GameSpyConfig_Browse_Cmd_Click(form_); });
        place->Add(browse, wxSizerFlags().CenterVertical().Border(wxLEFT, kGap));
        frame->Add(place, wxSizerFlags().Expand().Border(wxALL, kGap));
        auto* now = new wxCheckBox(frame->GetStaticBox(), wxID_ANY, ToWx(form_.LaunchSpyNow_Chk.Caption));
        Controls.Bind("LaunchSpyNow_Chk", form_.LaunchSpyNow_Chk, now, [] {});
        frame->Add(now, wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, kGap));
        AddWide(frame);
    }

    void MakeAfterwards() {
        auto* frame = new wxStaticBoxSizer(wxHORIZONTAL, this, "Then");
        for (std::size_t i = 0; i < form_.MinimizeLorvane_Opt.size(); ++i) {
            const int index = static_cast<int>(i);
            auto* option = new wxRadioButton(frame->GetStaticBox(), wxID_ANY, ToWx(form_.MinimizeLorvane_Opt[i]),
                                             wxDefaultPosition, wxDefaultSize, i == 0 ? wxRB_GROUP : 0);
            option->SetName(wxString::Format("MinimizeLorvane_Opt(%d)", index));
            option->SetValue(index == static_cast<int>(form_.Minimize));
            option->Bind(wxEVT_RADIOBUTTON, [this, index](wxCommandEvent&) {
                Controls.Run([this, index] { GameSpyConfig_MinimizeLorvane_Opt_Click(form_, index); });
            });
            frame->Add(option, wxSizerFlags().Border(wxALL, kGap));
        }
        AddWide(frame);
    }

    GameSpyConfig_Frm& form_;
};

}  // namespace

std::unique_ptr<wxDialog> MakeGameSpyForm(wxWindow* owner, ModalWindow& window) {
    auto* form = dynamic_cast<GameSpyConfig_Frm*>(&window);
    return form == nullptr ? nullptr : std::make_unique<GameSpyForm>(owner, *form);
}

}  // namespace lv
