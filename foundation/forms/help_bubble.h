// foundation/forms/help_bubble.h
//
// What a control is for, in a bubble that takes neither keyboard nor mouse from the window below it.

#pragma once

#include <wx/cshelp.h>
#include <wx/eventfilter.h>
#include <wx/longlong.h>
#include <wx/popupwin.h>
#include <wx/weakref.h>

namespace lv {

constexpr const char* kHelpBubbleName = "WhatsThis_Bubble";

/// The provider of the texts that SetHelpText gives. One bubble at a time: any key closes it, a button of the mouse or
/// its wheel, and another window in front. Escape does nothing but that; all else then does what it does.
class HelpBubbles : public wxSimpleHelpProvider, public wxEventFilter {
  public:
    HelpBubbles();
    ~HelpBubbles() override;
    HelpBubbles(const HelpBubbles&) = delete;
    HelpBubbles& operator=(const HelpBubbles&) = delete;

    /// The bubble stands under the control.
    bool ShowHelp(wxWindowBase* window) override;
    bool ShowHelpAtPoint(wxWindowBase* window, const wxPoint& place, wxHelpEvent::Origin origin) override;

    int FilterEvent(wxEvent& event) override;

  private:
    bool Show(wxWindowBase* window, const wxPoint& place, int height);
    bool Close();

    wxWeakRef<wxPopupWindow> bubble_;
    wxLongLong byKey_;  // when a bubble was last asked for by a key
};

/// Shift+F1: tells of the control of the window that has the keyboard, or of what it is a part of.
void TellOfFocus(wxWindow* window);

}  // namespace lv
