#include "foundation/forms/help_key.h"

#include <wx/toplevel.h>

#include "foundation/forms/help_bubble.h"

namespace lv {

namespace {

constexpr long kOwnHelpKey = 0x20000000;  // among the extra styles, where the toolkit has none

bool IsHelpKey(const wxEvent& event, int modifiers) {
    const auto& key = static_cast<const wxKeyEvent&>(event);
    if (key.GetKeyCode() != WXK_F1 || key.GetModifiers() != modifiers) {
        return false;
    }
    const wxWindow* const window = wxGetTopLevelParent(dynamic_cast<wxWindow*>(event.GetEventObject()));
    return window == nullptr || (window->GetExtraStyle() & kOwnHelpKey) == 0;
}

}  // namespace

void UsesHelpKey(wxWindow* window) {
    window->SetExtraStyle(window->GetExtraStyle() | kOwnHelpKey);
}

HelpKey::HelpKey(std::function<void()> open) : open_(std::move(open)) {
    wxEvtHandler::AddFilter(this);
}

HelpKey::~HelpKey() {
    wxEvtHandler::RemoveFilter(this);
}

int HelpKey::FilterEvent(wxEvent& event) {
    if (event.GetEventType() == wxEVT_HELP) {
        return WhatsThisMode ? Event_Skip : Event_Processed;
    }
    if (event.GetEventType() == wxEVT_CHAR_HOOK && IsHelpKey(event, wxMOD_NONE)) {
        open_();
        return Event_Processed;
    }
    if (event.GetEventType() == wxEVT_CHAR_HOOK && IsHelpKey(event, wxMOD_SHIFT)) {
        if (wxWindow* window = wxGetTopLevelParent(dynamic_cast<wxWindow*>(event.GetEventObject()))) {
            TellOfFocus(window);
        }
        return Event_Processed;
    }
    return Event_Skip;
}

}  // namespace lv
