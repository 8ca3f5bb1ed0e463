#include "foundation/forms/about_form.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include <functional>

#include "foundation/field_strings.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/wx_text.h"

namespace lv {

namespace {

constexpr int kGap = 12;
constexpr int kLogoHeight = 120;

wxStaticText* AddLine(wxWindow* dialog, wxSizer* rows, const char* name, const Label& line) {
    auto* text = new wxStaticText(dialog, wxID_ANY, ToWx(Trim(line.Caption)));
    text->SetName(name);
    rows->Add(text, wxSizerFlags().Center().Border(wxLEFT | wxRIGHT | wxBOTTOM, kGap));
    return text;
}

wxButton* MakeButton(wxDialog* dialog, const char* name, const CommandButton& model, std::function<void()> click) {
    auto* button = new wxButton(dialog, wxID_ANY, ToWx(model.Caption));
    button->SetName(name);
    button->Bind(wxEVT_BUTTON, [dialog, click = std::move(click)](wxCommandEvent&) {
        click();
        dialog->EndModal(wxID_OK);
    });
    return button;
}

}  // namespace

void ShowAboutForm(wxWindow* owner, About_Frm& about) {
    wxDialog dialog(owner, wxID_ANY, ToWx(about.Caption));
    dialog.SetName("About_Frm");
    auto* rows = new wxBoxSizer(wxVERTICAL);
    auto* logo = new wxStaticBitmap(&dialog, wxID_ANY, PictureOf("logo", kLogoHeight));
    logo->SetName("logo_pic");
    rows->Add(logo, wxSizerFlags().Center().Border(wxALL, kGap));
    wxStaticText* name = AddLine(&dialog, rows, "Name_Lbl", about.Name_Lbl);
    name->SetFont(name->GetFont().Bold().Larger());
    AddLine(&dialog, rows, "TimesRun_Lbl", about.TimesRun_Lbl);
    AddLine(&dialog, rows, "Launches_Lbl", about.Launches_Lbl);
    CommandButton ok = about.ButtonBar_Cmd;
    if (ok.Caption.empty()) {
        ok.Caption = "&OK";
    }
    wxButton* close = MakeButton(&dialog, "ButtonBar_Cmd", ok, [&about] { About_ButtonBar_Cmd_Click(about); });
    rows->Add(close, wxSizerFlags().Center().Border(wxLEFT | wxRIGHT | wxBOTTOM, kGap));
    close->SetDefault();
    dialog.SetEscapeId(close->GetId());
    FitOnScreen(dialog, rows);
    dialog.CentreOnScreen();
    StayOnScreen(dialog);
    dialog.ShowModal();
    about.Closed = true;
}

}  // namespace lv
