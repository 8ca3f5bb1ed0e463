#include "wizard/forms/install_form.h"

#include <wx/button.h>
#include <wx/panel.h>
#include <wx/statbmp.h>

#include <algorithm>
#include <vector>

#include "foundation/field_strings.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/wrapped_label.h"
#include "foundation/forms/wx_text.h"
#include "platform/toolkit/spoken_name.h"
#include "wizard/game_search.h"
#include "wizard/setup_completion.h"

namespace lv {

namespace {

constexpr int kGap = 6;
constexpr int kRowGap = 2;
constexpr int kTextWidth = 560;  // at 100 %
constexpr int kFoundLines = 2;

class InstallForm : public ModalForm {
  public:
    InstallForm(wxWindow* owner, Install_Frm& form)
        : ModalForm(owner, form,
                    [&form] {
                        if (Install_QueryUnload(form)) {
                            Install_Cancel_Cmd_Click(form);
                        }
                    }),
          form_(form) {
        MakeTexts();
        MakeRows();
        MakeSearch();
        Finish(MakeButton("OK_Cmd", form_.OK_Cmd, [this] { Install_OK_Cmd_Click(form_); }),
               MakeButton("Cancel_Cmd", form_.Cancel_Cmd, [this] { Install_Cancel_Cmd_Click(form_); }));
        FindWindow("Game_Chk(0)")->SetFocus();  // ticking comes first
    }

    void ShowState() override {
        ModalForm::ShowState();
        SetCursor(form_.Hourglass ? wxCursor(wxCURSOR_ARROWWAIT) : wxNullCursor);
    }

  private:
    void MakeTexts() {
        auto* texts = new wxBoxSizer(wxVERTICAL);
        for (std::size_t i = 0; i < form_.Label2.size(); ++i) {
            wxStaticText* text =
                MakeLabel(this, wxString::Format("Label2(%d)", static_cast<int>(i)).utf8_str(), form_.Label2[i]);
            text->Wrap(FromDIP(kTextWidth));
            texts->Add(text, wxSizerFlags().Border(wxBOTTOM, kGap / 2));
        }
        AddWide(texts);
    }

    void MakeRows() {
        auto* rows = new wxBoxSizer(wxVERTICAL);
        std::vector<wxWindow*> ticks;
        int widest = 0;
        for (std::size_t i = 0; i < kWizardRows; ++i) {
            ticks.push_back(MakeRow(*rows, i));
            widest = std::max(widest, ticks.back()->GetBestSize().x);
        }
        for (wxWindow* tick : ticks) {
            tick->SetMinSize(wxSize(widest, -1));  // what stands behind them stands below each other
        }
        AddWide(rows);
    }

    /// The row's check box.
    wxWindow* MakeRow(wxSizer& rows, std::size_t at) {
        const int row = static_cast<int>(at);
        const auto named = [row](const char* name) { return wxString::Format("%s(%d)", name, row); };
        const InstallRow& facts = InstallRows()[at];
        auto* frame = new wxPanel(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxBORDER_THEME);
        Controls.Bind(named("GameSetup_Fra").utf8_str(), form_.GameSetup_Fra[at], frame);
        auto* picture = new wxStaticBitmap(frame, wxID_ANY, PictureOf(Join("icons/games/", facts.Picture), 24));
        picture->SetName(named("GameIcon_Pic"));
        auto* tick =
            new wxCheckBox(frame, wxID_ANY, ToWx(facts.Caption), wxDefaultPosition, wxDefaultSize, wxCHK_3STATE);
        Controls.Bind(named("Game_Chk").utf8_str(), form_.Game_Chk[at], tick, [] {});
        wxStaticText* arrow = MakeLabel(frame, named("Label1").utf8_str(), form_.Label1[at]);
        auto* path = new wxTextCtrl(frame, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(300, -1)));
        Controls.Bind(named("GamePath_Txt").utf8_str(), form_.GamePath_Txt[at], path, [] {});
        SetSpokenName(path->GetHandle(), Join("Directory of ", facts.Name));
        auto* browse = new wxButton(frame, wxID_ANY, ToWx(form_.Browse_Cmd[at].Caption));
        Controls.Bind(named("Browse_Cmd").utf8_str(), form_.Browse_Cmd[at], browse,
                      [this, row] { Install_Browse_Cmd_Click(form_, row); });
        SetSpokenName(browse->GetHandle(), Join("Browse for the directory of ", facts.Name));
        auto* line = new wxBoxSizer(wxHORIZONTAL);
        line->Add(picture, wxSizerFlags().CenterVertical().Border(wxLEFT, kGap));
        for (wxWindow* window : {static_cast<wxWindow*>(tick), static_cast<wxWindow*>(arrow)}) {
            line->Add(window, wxSizerFlags().CenterVertical().Border(wxLEFT, kGap));
        }
        line->Add(path, wxSizerFlags(1).CenterVertical().Border(wxLEFT, kGap));
        line->AddSpacer(kGap - kRowGap);
        line->Add(browse, wxSizerFlags().CenterVertical().Border(wxALL, kRowGap));
        frame->SetSizer(line);
        rows.Add(frame, wxSizerFlags().Expand().Border(wxBOTTOM, kRowGap));
        return tick;
    }

    void MakeSearch() {
        auto* row = new wxBoxSizer(wxHORIZONTAL);
        wxButton* search =
            MakeButton("AutoSearch_Cmd", form_.AutoSearch_Cmd, [this] { Install_AutoSearch_Cmd_Click(form_); });
        search->SetMinSize(wxSize(search->GetBestSize().x * 5 / 4, -1));
        row->Add(search);
        auto* zip = new wxCheckBox(this, wxID_ANY, ToWx(form_.ZipMagic_Chk.Caption));
        Controls.Bind("ZipMagic_Chk", form_.ZipMagic_Chk, zip, [] {});
        row->Add(zip, wxSizerFlags().CenterVertical().Border(wxLEFT, kGap * 2));
        AddWide(row);
        auto* status = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                        wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_MIDDLE);
        Controls.Bind("Status_Lbl", form_.Status_Lbl, status);
        AddWide(status);
        auto* found = new WrappedLabel(this, kFoundLines);
        Controls.Bind("Found_Lbl", form_.Found_Lbl, found);
        AddWide(found);
    }

    Install_Frm& form_;
};

}  // namespace

std::unique_ptr<wxDialog> MakeInstallForm(wxWindow* owner, ModalWindow& window) {
    auto* form = dynamic_cast<Install_Frm*>(&window);
    return form == nullptr ? nullptr : std::make_unique<InstallForm>(owner, *form);
}

}  // namespace lv
