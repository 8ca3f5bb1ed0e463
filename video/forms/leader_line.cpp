#include "video/forms/leader_line.h"

#include <wx/dcclient.h>
#include <wx/settings.h>

namespace lv {

namespace {

constexpr int kShortest = 12;  // at 100 %
constexpr int kStep = 6;
constexpr int kDot = 2;

}  // namespace

LeaderLine::LeaderLine(wxWindow* parent) : wxWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE) {
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { Paint(); });
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        Refresh();
    });
}

wxSize LeaderLine::DoGetBestSize() const {
    return FromDIP(wxSize(kShortest, kStep));
}

// Dots that start at the list, so that those of all rows stand below each other.
void LeaderLine::Paint() {
    wxPaintDC canvas(this);
    canvas.SetPen(*wxTRANSPARENT_PEN);
    canvas.SetBrush(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    const wxSize room = GetClientSize();
    const int dot = FromDIP(kDot);
    const int step = FromDIP(kStep);
    for (int x = room.x - step; x >= step; x -= step) {
        canvas.DrawRectangle(x, (room.y - dot) / 2, dot, dot);
    }
}

}  // namespace lv
