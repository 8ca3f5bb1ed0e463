#include "foundation/forms/bubble.h"

#include <wx/display.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>

namespace lv {

namespace {

constexpr int kWidth = 320;  // at 100 %
constexpr int kMargin = 6;
constexpr int kGap = 2;  // from the control or the pointer

}  // namespace

wxPopupWindow* MakeBubble(wxWindow* owner, const wxString& name, const wxString& text) {
    auto* bubble = new wxPopupWindow(owner, wxBORDER_SIMPLE);
    bubble->SetName(name);
    bubble->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_INFOBK));
    auto* label = new wxStaticText(bubble, wxID_ANY, "");
    label->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_INFOTEXT));
    label->SetBackgroundColour(bubble->GetBackgroundColour());
    auto* room = new wxBoxSizer(wxVERTICAL);
    room->Add(label, wxSizerFlags().Border(wxALL, bubble->FromDIP(kMargin)));
    bubble->SetSizer(room);
    SetBubbleText(*bubble, text);
    return bubble;
}

void SetBubbleText(wxPopupWindow& bubble, const wxString& text) {
    auto* const label = static_cast<wxStaticText*>(bubble.GetChildren().front());
    label->SetLabel(wxControl::EscapeMnemonics(text));
    label->Wrap(bubble.FromDIP(kWidth));
    bubble.GetSizer()->SetSizeHints(&bubble);
}

void PutBubble(wxPopupWindow& bubble, const wxWindow* beside, const wxPoint& place, int height) {
    const wxSize size = bubble.GetSize();
    const wxRect screen = wxDisplay(beside).GetClientArea();
    wxPoint at(place.x, place.y + height + kGap);
    at.x = std::max(screen.x, std::min(at.x, screen.GetRight() - size.x));
    if (at.y + size.y > screen.GetBottom()) {
        at.y = std::max(screen.y, place.y - size.y - kGap);
    }
    bubble.Move(at);
}

}  // namespace lv
