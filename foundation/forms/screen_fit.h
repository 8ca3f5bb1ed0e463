// foundation/forms/screen_fit.h
//
// Keeps windows on their screen: none is larger than its work area or placed outside it, and what does not fit scrolls.

#pragma once

#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/toplevel.h>

#include "foundation/window_placement.h"

namespace lv {

/// The work area of the screen that the window is on, or would come up on.
wxRect WorkArea(const wxWindow& window);

/// What the work area leaves for the inside of a window's frame. Before a window is shown its frame is not known; it is
/// given some room then.
wxSize RoomInside(const wxTopLevelWindow& window);

/// Gives the content the scroll bars that it needs to be seen in `room`, and says how large it is then.
wxSize ScrollInRoom(wxScrolledWindow& content, wxSize wanted, wxSize room);

/// Scrolls to whichever control gets the keyboard, however deep it stands in the content.
void FollowKeyboard(wxScrolledWindow& content);

/// Rows of a window that is to be as large as they are: in the moments before it is, they hang over its edge. Squeezed,
/// some controls would have less than no room.
class UnsqueezedRows : public wxBoxSizer {
  public:
    UnsqueezedRows() : wxBoxSizer(wxVERTICAL) {}
    void RepositionChildren(const wxSize& least) override {
        m_size.IncTo(least);
        wxBoxSizer::RepositionChildren(least);
    }
};

/// In place of SetSizerAndFit: where the rows are more than the screen has room for, they scroll, but for the last one,
/// the buttons. Gives what scrolls, or null.
wxScrolledWindow* FitOnScreen(wxTopLevelWindow& window, wxSizer* rows);

/// Moves the window into its work area.
void StayOnScreen(wxTopLevelWindow& window);

/// Where a window that was left in that place is to come up: there, as long as its title bar can be reached; wholly on
/// the screen, if it was another screen's.
wxPoint PlaceOnScreen(const wxTopLevelWindow& window, const WindowPlacement& left);

}  // namespace lv
