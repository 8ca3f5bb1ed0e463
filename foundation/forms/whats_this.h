// foundation/forms/whats_this.h
//
// What's This: a right click on a control, or a click in What's This mode, tells what the control is for.

#pragma once

#include <wx/window.h>

namespace lv {

/// Gives every named control below the window its text and its right click. A control that has a use of its own for the
/// right button (UsesRightButton, and every field of text) gets the text alone, for Shift+F1 and What's This mode.
void GiveWhatsThis(wxWindow* window);

/// Said by controls of their own drawing, once for each.
void UsesRightButton(wxWindow* window);

/// The next click on a control tells what it is for.
void EnterWhatsThisMode(wxWindow* window);

}  // namespace lv
