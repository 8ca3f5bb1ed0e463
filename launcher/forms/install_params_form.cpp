#include "launcher/forms/install_params_form.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/statbox.h>

#include "foundation/field_strings.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/wx_text.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kGap = 12;
constexpr int kTextWidth = 380;  // at 100 %

}  // namespace

InstallParamsForm::InstallParamsForm(Run& run, InstallParams_Frm& form)
    : wxDialog(nullptr, wxID_ANY, ToWx(form.Caption)), run_(run), form_(form), binder_([this] {
          binder_.Show();
          if (form_.Closed && IsModal()) {
              EndModal(wxID_OK);
          }
      }) {
    SetName("InstallParams_Frm");
    SetIcons(ProgramIcon());
    auto* rows = new wxBoxSizer(wxVERTICAL);
    auto* frame = new wxStaticBoxSizer(wxHORIZONTAL, this, ToWx(Trim(form_.Hardware_Fra.Caption)));
    wxWindow* box = frame->GetStaticBox();
    binder_.Bind("Hardware_Fra", form_.Hardware_Fra, box);
    frame->Add(new wxStaticBitmap(box, wxID_ANY, PictureOf("icons/question/11", 48)),
               wxSizerFlags().Top().Border(wxALL, kGap));
    auto* right = new wxBoxSizer(wxVERTICAL);
    auto* text = new wxStaticText(box, wxID_ANY, ToWx(form_.Label6.Caption));
    text->SetName("Label6");
    text->Wrap(FromDIP(kTextWidth));
    right->Add(text, wxSizerFlags().Border(wxBOTTOM, kGap));
    auto* cards = new wxChoice(box, wxID_ANY);
    SetSpokenName(cards->GetHandle(), "3D card");
    binder_.Bind("VidCard_Cbo", form_.VidCard_Cbo, cards, [this] { InstallParams_VidCard_Cbo_Click(run_, form_); });
    // Enter accepts from the list too; the toolkit would open it. The space bar does that.
    cards->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER) {
            binder_.Run([this] { InstallParams_OK_Cmd_Click(run_, form_, 0); });
            return;
        }
        event.Skip();
    });
    right->Add(cards, wxSizerFlags().Expand());
    frame->Add(right, wxSizerFlags(1).Border(wxTOP | wxRIGHT | wxBOTTOM, kGap));
    rows->Add(frame, wxSizerFlags().Expand().Border(wxALL, kGap));

    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    for (int i = 0; i < 2; ++i) {
        CommandButton& model = form_.OK_Cmd[static_cast<std::size_t>(i)];
        auto* button = new wxButton(this, wxID_ANY, ToWx(model.Caption));
        binder_.Bind(wxString::Format("OK_Cmd(%d)", i).utf8_str(), model, button,
                     [this, i] { InstallParams_OK_Cmd_Click(run_, form_, i); });
        buttons->Add(button, wxSizerFlags().Border(wxLEFT, i == 0 ? 0 : kGap));
        if (i == 0) {
            button->SetDefault();
        } else {
            SetEscapeId(button->GetId());
        }
    }
    rows->Add(buttons, wxSizerFlags().Center().Border(wxLEFT | wxRIGHT | wxBOTTOM, kGap));
    binder_.Show();
    FitOnScreen(*this, rows);
    CentreOnScreen();
    StayOnScreen(*this);
    FindWindow("OK_Cmd(0)")->SetFocus();  // Enter accepts; on the list it would only open that
}

}  // namespace lv
