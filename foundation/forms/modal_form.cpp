#include "foundation/forms/modal_form.h"

#include <wx/button.h>

#include "foundation/field_strings.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/whats_this.h"
#include "foundation/forms/wx_text.h"
#include "platform/toolkit/label_field.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kGap = 8;

}  // namespace

ModalForm::ModalForm(wxWindow* owner, ModalWindow& model, std::function<void()> cancel, long style)
    : wxDialog(owner, wxID_ANY, ToWx(model.Caption), wxDefaultPosition, wxDefaultSize, style),
      Controls([this] { AfterHandler(); }),
      model_(model),
      cancel_(std::move(cancel)),
      rows_(new wxBoxSizer(wxVERTICAL)) {
    SetName(model.Name);
    SetIcons(ProgramIcon());
    const auto close = [this] { Controls.Run(cancel_); };
    Bind(wxEVT_CLOSE_WINDOW, [close](wxCloseEvent&) { close(); });
    Bind(wxEVT_CHAR_HOOK, [close](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_ESCAPE) {
            close();
        } else {
            event.Skip();
        }
    });
}

void ModalForm::ShowState() {
    if (GetTitle() != ToWx(model_.Caption)) {
        SetTitle(ToWx(model_.Caption));
    }
    if (Controls.Show()) {
        Layout();
        if (scrolled_ != nullptr) {
            scrolled_->FitInside();
        }
    }
}

void ModalForm::AfterHandler() {
    ShowState();
    if (model_.Closed) {
        if (IsModal()) {
            EndModal(wxID_OK);
        }
        return;
    }
    if (model_.Focus.empty()) {
        return;
    }
    if (wxWindow* control = FindWindow(ToWx(model_.Focus))) {
        control->SetFocus();
        if (auto* text = dynamic_cast<wxTextCtrl*>(control)) {
            text->SelectAll();
        }
    }
    model_.Focus.clear();
}

void ModalForm::AddField(Label& label, const char* labelName, wxWindow* field, wxWindow* behind) {
    if (fields_ == nullptr) {
        fields_ = new wxFlexGridSizer(3, kGap, kGap);
        fields_->AddGrowableCol(1);
        rows_->Add(fields_, wxSizerFlags().Expand().Border(wxALL, kGap * 2));
    }
    wxStaticText* const before = MakeLabel(this, labelName, label, LabelText::Keyed);
    before->MoveBeforeInTabOrder(field);
    LeadToField(before->GetHandle(), field->GetHandle());
    fields_->Add(before, wxSizerFlags().CenterVertical());
    fields_->Add(field, wxSizerFlags(1).Expand().CenterVertical());
    if (behind != nullptr) {
        fields_->Add(behind, wxSizerFlags().CenterVertical());
    } else {
        fields_->AddSpacer(0);
    }
    SetSpokenName(field->GetHandle(), ToUtf8(ReplaceText(Trim(label.Caption), "&", "")));
}

wxTextCtrl* ModalForm::MakeText(const char* name, TextBox& model, int width) {
    auto* text = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(width, -1)));
    Controls.Bind(name, model, text, [] {});
    return text;
}

wxButton* ModalForm::MakeButton(const char* name, CommandButton& model, std::function<void()> click) {
    auto* button = new wxButton(this, wxID_ANY, ToWx(model.Caption));
    Controls.Bind(name, model, button, std::move(click));
    return button;
}

wxStaticText* ModalForm::MakeLabel(wxWindow* parent, const char* name, Label& model, LabelText kind) {
    auto* label = new wxStaticText(parent, wxID_ANY, ToWx(Trim(model.Caption)));
    Controls.Bind(name, model, label, kind);
    return label;
}

void ModalForm::AddWide(wxWindow* window, int proportion) {
    fields_ = nullptr;
    rows_->Add(window, wxSizerFlags(proportion).Expand().Border(wxLEFT | wxRIGHT | wxTOP, kGap * 2));
}

void ModalForm::AddWide(wxSizer* sizer, int proportion) {
    fields_ = nullptr;
    rows_->Add(sizer, wxSizerFlags(proportion).Expand().Border(wxLEFT | wxRIGHT | wxTOP, kGap * 2));
}

void ModalForm::Finish(wxButton* ok, wxButton* cancel) {
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    cancel->MoveAfterInTabOrder(ok);
    buttons->Add(ok);
    buttons->Add(cancel, wxSizerFlags().Border(wxLEFT, kGap));
    rows_->Add(buttons, wxSizerFlags().Center().Border(wxALL, kGap * 2));
    ok->SetDefault();
    Arrange();
}

void ModalForm::Arrange() {
    Controls.Show();
    scrolled_ = FitOnScreen(*this, rows_);
    if (GetParent() != nullptr) {
        CentreOnParent();
    } else {
        CentreOnScreen();
    }
    StayOnScreen(*this);
    GiveWhatsThis(this);
    AfterHandler();
}

}  // namespace lv
