#include "foundation/forms/help_bubble.h"

#include <wx/time.h>

#include "foundation/forms/bubble.h"
#include "platform/toolkit/keyboard_place.h"

namespace lv {

namespace {

constexpr long kOfTheSameKey = 200;  // milliseconds

/// The innermost control that the keyboard goes to.
wxWindow* KeyboardIn(wxWindow* window) {
    for (wxWindow* child : window->GetChildren()) {
        if (!child->IsTopLevel() && child->IsShown() && HoldsKeyboard(child->GetHandle())) {
            return KeyboardIn(child);
        }
    }
    return window;
}

bool Closes(const wxEvent& event) {
    const wxEventType type = event.GetEventType();
    if (type == wxEVT_ACTIVATE) {
        return !static_cast<const wxActivateEvent&>(event).GetActive();
    }
    return type == wxEVT_CHAR_HOOK || type == wxEVT_KEY_DOWN || type == wxEVT_LEFT_DOWN || type == wxEVT_RIGHT_DOWN ||
           type == wxEVT_MIDDLE_DOWN || type == wxEVT_MOUSEWHEEL;
}

}  // namespace

HelpBubbles::HelpBubbles() {
    wxEvtHandler::AddFilter(this);
}

HelpBubbles::~HelpBubbles() {
    wxEvtHandler::RemoveFilter(this);
}

bool HelpBubbles::ShowHelp(wxWindowBase* window) {
    const wxRect place = window->GetScreenRect();
    byKey_ = wxGetLocalTimeMillis();
    return Show(window, place.GetTopLeft(), place.height);
}

bool HelpBubbles::ShowHelpAtPoint(wxWindowBase* window, const wxPoint& place, wxHelpEvent::Origin) {
    if (bubble_ && wxGetLocalTimeMillis() - byKey_ < kOfTheSameKey) {
        return true;  // Windows asks once more for the key that was answered, at the pointer
    }
    return Show(window, place, 0);
}

bool HelpBubbles::Show(wxWindowBase* window, const wxPoint& place, int height) {
    const wxString text = GetHelp(window);
    Close();
    if (text.empty()) {
        return false;
    }
    bubble_ = MakeBubble(wxGetTopLevelParent(static_cast<wxWindow*>(window)), kHelpBubbleName, text);
    PutBubble(*bubble_, static_cast<wxWindow*>(window), place, height);
    bubble_->Show();
    return true;
}

bool HelpBubbles::Close() {
    if (!bubble_) {
        return false;
    }
    wxPopupWindow* const bubble = bubble_;
    bubble_ = nullptr;
    bubble->SetName("");
    bubble->Hide();
    bubble->Destroy();
    return true;
}

int HelpBubbles::FilterEvent(wxEvent& event) {
    if (!bubble_ || !Closes(event)) {
        return Event_Skip;
    }
    Close();
    const auto* const key = dynamic_cast<const wxKeyEvent*>(&event);
    return key != nullptr && key->GetKeyCode() == WXK_ESCAPE ? Event_Processed : Event_Skip;
}

void TellOfFocus(wxWindow* window) {
    wxWindow* told = KeyboardIn(window);
    while (told != nullptr && told->GetHelpText().empty()) {
        told = told->IsTopLevel() ? nullptr : told->GetParent();
    }
    if (told != nullptr) {
        wxHelpProvider::Get()->ShowHelp(told);
    }
}

}  // namespace lv
