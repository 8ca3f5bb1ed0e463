#include "wizard/forms/install_form.h"

#include <wx/button.h>
#include <wx/statbmp.h>

#include "foundation/field_strings.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/wx_text.h"
#include "platform/spoken_name.h"

namespace lv {

namespace {

constexpr int kGap = 6;
constexpr int kTextWidth = 560;  // at 100 %

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
        auto* grid = new wxFlexGridSizer(4, kGap, kGap);
        grid->AddGrowableCol(2);
        for (std::size_t i = 0; i < kInstallRows; ++i) {
            MakeRow(*grid, i);
        }
        AddWide(grid);
    }

    void MakeRow(wxFlexGridSizer& grid, std::size_t at) {
        const int row = static_cast<int>(at);
        const auto named = [row](const char* name) { return wxString::Format("%s(%d)", name, row); };
        const InstallRow& facts = InstallRows()[at];
        auto* picture = new wxStaticBitmap(this, wxID_ANY, PictureOf(Join("icons/games/", facts.Picture), 24));
        picture->SetName(named("GameIcon_Pic"));
        auto* tick =
            new wxCheckBox(this, wxID_ANY, ToWx(facts.Caption), wxDefaultPosition, wxDefaultSize, wxCHK_3STATE);
        Controls.Bind(named("Game_Chk").utf8_str(), form_.Game_Chk[at], tick, [] {});
        auto* path = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(300, -1)));
        Controls.Bind(named("GamePath_Txt").utf8_str(), form_.GamePath_Txt[at], path, [] {});
        SetSpokenName(path->GetHandle(), Join("Directory of ", facts.Name));
        wxButton* browse = MakeButton(named("Browse_Cmd").utf8_str(), form_.Browse_Cmd[at],
                                      [this, row] { Install_Browse_Cmd_Click(form_, row); });
        grid.Add(picture, wxSizerFlags().CenterVertical());
        grid.Add(tick, wxSizerFlags().CenterVertical());
        grid.Add(path, wxSizerFlags(1).Expand().CenterVertical());
        grid.Add(browse, wxSizerFlags().CenterVertical());
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
    }

    Install_Frm& form_;
};

}  // namespace

std::unique_ptr<wxDialog> MakeInstallForm(wxWindow* owner, ModalWindow& window) {
    auto* form = dynamic_cast<Install_Frm*>(&window);
    return form == nullptr ? nullptr : std::make_unique<InstallForm>(owner, *form);
}

}  // namespace lv
