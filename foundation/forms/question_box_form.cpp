#include "foundation/forms/question_box_form.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/platinfo.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <cstdio>

#include "foundation/forms/pictures.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/wx_text.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kIconHeight = 32;

// The toolkit's own margins inside a text field, so that a text that was measured to fit does fit.
constexpr int kTextMargin = 24;

// Windows gives a text that does not wrap a scroll bar, however short it is.
bool UnwrappedTextHasABar() {
    return wxPlatformInfo::Get().GetPortId() == wxPORT_MSW;
}

wxString IconName(int index) {
    return wxString::Format("icons/question/%02d", index);
}

}  // namespace

wxFont FixedWidthFont() {
    const int points = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT).GetPointSize();
    return wxFont(wxFontInfo(points).Family(wxFONTFAMILY_TELETYPE));
}

QuestionBoxForm::QuestionBoxForm(wxWindow* owner, QuestionBox_Frm& box)
    : wxDialog(owner, wxID_ANY, ToWx(box.Caption), wxDefaultPosition, wxDefaultSize, wxCAPTION), box_(box) {
    SetName("QuestionBox_Frm");
    SetIcons(ProgramIcon());
    const int gap = box.Layout.Gap;
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(MakeMessage(), wxSizerFlags(1).Expand().Border(wxALL, gap));
    if (box.NotAgain_Chk.Visible) {
        notAgain_ = new wxCheckBox(this, wxID_ANY, ToWx(box.NotAgain_Chk.Caption));
        notAgain_->SetName("NotAgain_Chk");
        notAgain_->SetValue(box.NotAgain_Chk.Value == 1);
        all->Add(notAgain_, wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
    }
    all->Add(MakeButtons(), wxSizerFlags().Center().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
    SetSizerAndFit(all);
    FitTextToRoom(all->CalcMin());
    if (owner != nullptr) {
        CentreOnParent();
    } else {
        CentreOnScreen();
    }
    StayOnScreen(*this);
    CloseByTheQuietButton();
}

// What the buttons and the frame leave: the text has bars of its own.
void QuestionBoxForm::FitTextToRoom(wxSize wanted) {
    const wxSize room = RoomInside(*this);
    const wxSize over(std::max(0, wanted.x - room.x), std::max(0, wanted.y - room.y));
    if (over != wxSize()) {
        const wxSize text = text_->GetMinSize() - over;
        text_->SetMinSize(wxSize(std::max(text.x, 1), std::max(text.y, 1)));
        GetSizer()->SetSizeHints(this);
    }
}

// Where no button leaves everything as it is, the choice is made by a button.
void QuestionBoxForm::CloseByTheQuietButton() {
    const int quiet = box_.QuietButton;
    SetEscapeId(quiet < 0 ? static_cast<int>(wxID_NONE) : buttons_[static_cast<std::size_t>(quiet)]->GetId());
    Bind(wxEVT_CLOSE_WINDOW, [this, quiet](wxCloseEvent& event) {
        if (quiet >= 0) {
            Press(quiet);
        } else if (event.CanVeto()) {
            event.Veto();
        } else {
            event.Skip();
        }
    });
}

wxSizer* QuestionBoxForm::MakeMessage() {
    const QuestionBoxLayout& layout = box_.Layout;
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const wxBitmapBundle icon = PictureOf(FromWx(IconName(box_.Display_Pic.Index)), kIconHeight);
    auto* picture = new wxStaticBitmap(this, wxID_ANY, icon);
    picture->SetName("Display_Pic");
    row->Add(picture, wxSizerFlags().Top().Border(wxRIGHT, layout.Gap * 2));

    long style = wxTE_MULTILINE | wxTE_READONLY | wxTE_NO_VSCROLL | wxBORDER_NONE;
    if (!layout.Wraps && !UnwrappedTextHasABar()) {
        style |= wxTE_DONTWRAP;
    }
    if (layout.ScrollsDown || layout.ScrollsAcross) {
        style = wxTE_MULTILINE | wxTE_READONLY | wxTE_DONTWRAP;
    }
    wxString text = ToWx(box_.Question_Txt.Text);
    text.Replace("\r\n", "\n");
    const wxSize size(layout.TextWidth + kTextMargin, layout.TextHeight + kTextMargin / 2);
    text_ = new wxTextCtrl(this, wxID_ANY, text, wxDefaultPosition, size, style);
    text_->SetName("Question_Txt");
    SetSpokenName(text_->GetHandle(), "Message");
    text_->SetBackgroundColour(GetBackgroundColour());
    if (box_.FixedWidth) {
        text_->SetFont(FixedWidthFont());
    }
    text_->SetMinSize(size);
    row->Add(text_, wxSizerFlags(1).Expand());
    return row;
}

wxSizer* QuestionBoxForm::MakeButtons() {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const QuestionBoxLayout& layout = box_.Layout;
    for (std::size_t i = 0; i < box_.Button_Cmd.size(); ++i) {
        const int index = static_cast<int>(i);
        const CommandButton& model = box_.Button_Cmd[i];
        auto* button = new wxButton(this, wxID_ANY, ToWx(model.Caption));
        button->SetName(wxString::Format("Button_Cmd(%d)", index));
        button->SetMinSize(wxSize(layout.ButtonWidth, -1));
        button->Bind(wxEVT_BUTTON, [this, index](wxCommandEvent&) { Press(index); });
        row->Add(button, wxSizerFlags().Border(wxLEFT, index == 0 ? 0 : layout.Gap));
        buttons_.push_back(button);
    }
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        if (box_.Button_Cmd[i].Default) {
            buttons_[i]->SetDefault();
            buttons_[i]->SetFocus();
        }
    }
    return row;
}

void QuestionBoxForm::Press(int index) {
    box_.NotAgain_Chk.Value = notAgain_ != nullptr && notAgain_->GetValue() ? 1 : 0;
    QuestionBox_Button_Cmd_Click(box_, index);
    EndModal(wxID_OK);
}

}  // namespace lv
