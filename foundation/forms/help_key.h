// foundation/forms/help_key.h
//
// F1 in every window, and Shift+F1, that tells what the control with the keyboard is for.

#pragma once

#include <wx/event.h>
#include <wx/eventfilter.h>
#include <wx/window.h>

#include <functional>

namespace lv {

/// Said by a window that has both for itself, and opens the handbook where it has no other use for F1.
void UsesHelpKey(wxWindow* window);

/// Looks at the keys of all windows before they do. Some systems make an event of their own of F1, that would tell what
/// the control is for: it goes no further, but in What's This mode.
class HelpKey : public wxEventFilter {
  public:
    explicit HelpKey(std::function<void()> open);
    ~HelpKey() override;
    HelpKey(const HelpKey&) = delete;
    HelpKey& operator=(const HelpKey&) = delete;

    int FilterEvent(wxEvent& event) override;

    bool WhatsThisMode = false;

  private:
    std::function<void()> open_;
};

}  // namespace lv
