// foundation/forms/bubble.h
//
// A small window with a text, beside a control, that takes neither keyboard nor mouse.

#pragma once

#include <wx/popupwin.h>

namespace lv {

/// Over the window, and gone with it. Lines wider than a bubble are wrapped.
wxPopupWindow* MakeBubble(wxWindow* owner, const wxString& name, const wxString& text);

/// Puts another text into it; its size follows.
void SetBubbleText(wxPopupWindow& bubble, const wxString& text);

/// Under the place on the screen and `height` below it, or above where the screen of `beside` ends.
void PutBubble(wxPopupWindow& bubble, const wxWindow* beside, const wxPoint& place, int height);

}  // namespace lv
