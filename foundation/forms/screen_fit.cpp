#include "foundation/forms/screen_fit.h"

#include <wx/display.h>
#include <wx/settings.h>

#include <algorithm>

#include "foundation/screen_fit.h"
#include "foundation/window_services.h"
#include "platform/toolkit/scroll_bars.h"

namespace lv {

namespace {

constexpr int kFrameRoom = 40;  // at 100 %: a frame that is not known yet
constexpr int kScrollStep = 10;

ScreenRect Plain(const wxRect& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}

wxRect AreaAt(wxPoint place, const wxWindow& window) {
    const int display = wxDisplay::GetFromPoint(place);
    return display == wxNOT_FOUND ? WorkArea(window) : wxDisplay(static_cast<unsigned>(display)).GetClientArea();
}

bool Holds(const wxSizerItem& item, wxWindow* window) {
    return item.GetWindow() == window || (item.IsSizer() && item.GetSizer()->GetItem(window, true) != nullptr);
}

wxScrolledWindow* MakeScrolled(wxTopLevelWindow& window) {
    auto* content = new wxScrolledWindow(&window, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                         wxTAB_TRAVERSAL | wxHSCROLL | wxVSCROLL);
    KeepScrollBarsInSight(content->GetHandle());
    content->SetScrollRate(window.FromDIP(kScrollStep), window.FromDIP(kScrollStep));
    FollowKeyboard(*content);
    return content;
}

// All but what the item holds, in the order of the keyboard.
void MoveChildren(wxTopLevelWindow& window, wxScrolledWindow* content, const wxSizerItem& staying) {
    const wxWindowList children = window.GetChildren();
    content->Hide();
    for (wxWindow* child : children) {
        if (child != content && !child->IsTopLevel() && !Holds(staying, child)) {
            child->Reparent(content);
        }
    }
    if (wxWindow* first = window.GetChildren().front(); first != content) {
        content->MoveBeforeInTabOrder(first);
    }
    content->Show();
}

}  // namespace

wxRect WorkArea(const wxWindow& window) {
    const wxWindow* const shown = !window.IsShown() && window.GetParent() != nullptr ? window.GetParent() : &window;
    return wxDisplay(shown).GetClientArea();
}

wxSize RoomInside(const wxTopLevelWindow& window) {
    wxSize frame = window.GetSize() - window.GetClientSize();
    if (!window.IsShown()) {
        frame.y = std::max(frame.y, window.FromDIP(kFrameRoom));
    }
    return WorkArea(window).GetSize() - frame;
}

wxSize ScrollInRoom(wxScrolledWindow& content, wxSize wanted, wxSize room) {
    const int bar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, &content);
    const ShownContent shown = ShowInRoom(wanted.x, wanted.y, room.x, room.y, bar);
    content.SetVirtualSize(wanted);
    content.ShowScrollbars(shown.ScrollsAcross ? wxSHOW_SB_ALWAYS : wxSHOW_SB_NEVER,
                           shown.ScrollsDown ? wxSHOW_SB_ALWAYS : wxSHOW_SB_NEVER);
    content.Scroll(shown.ScrollsAcross ? wxDefaultCoord : 0, shown.ScrollsDown ? wxDefaultCoord : 0);
    return {shown.Width, shown.Height};
}

void FollowKeyboard(wxScrolledWindow& content) {
    content.Bind(wxEVT_CHILD_FOCUS, [&content](wxChildFocusEvent& event) {
        event.Skip();
        const wxWindow* const focus = event.GetWindow();
        int step = 0;
        content.GetScrollPixelsPerUnit(nullptr, &step);
        if (focus == &content || step <= 0) {
            return;
        }
        const int above = content.ScreenToClient(focus->GetScreenPosition()).y;
        const int below = above + focus->GetSize().y - content.GetClientSize().y;
        const int top = content.GetViewStart().y;
        if (above < 0) {
            content.Scroll(wxDefaultCoord, std::max(0, top - (step - 1 - above) / step));
        } else if (below > 0) {
            content.Scroll(wxDefaultCoord, top + (below + step - 1) / step);
        }
    });
}

wxScrolledWindow* FitOnScreen(wxTopLevelWindow& window, wxSizer* rows) {
    window.SetSizerAndFit(rows);
    const wxSize room = RoomInside(window);
    const wxSize wanted = rows->CalcMin();
    if (wanted.x <= room.x && wanted.y <= room.y) {
        return nullptr;
    }
    const std::size_t last = rows->GetItemCount() - 1;
    const wxSizerItem& buttons = *rows->GetItem(last);
    const auto flags = wxSizerFlags(0).Center().Border(buttons.GetFlag() & wxALL, buttons.GetBorder());
    const wxSize below = buttons.GetMinSizeWithBorder();
    wxScrolledWindow* const content = MakeScrolled(window);
    MoveChildren(window, content, buttons);
    window.SetSizer(nullptr, false);
    auto* const all = new wxBoxSizer(wxVERTICAL);
    all->Add(content, wxSizerFlags(1).Expand());
    if (wxSizer* row = buttons.GetSizer()) {
        rows->Detach(static_cast<int>(last));
        all->Add(row, flags);
    } else if (wxWindow* button = buttons.GetWindow()) {
        rows->Detach(static_cast<int>(last));
        all->Add(button, flags);
    }
    content->SetSizer(rows);
    const wxSize shown = ScrollInRoom(*content, rows->CalcMin(), room - wxSize(0, below.y));
    window.SetSizeHints(wxDefaultSize);
    window.SetSizer(all);
    window.SetClientSize(std::min(room.x, std::max(shown.x, below.x)), shown.y + below.y);
    window.Layout();
    content->FitInside();
    return content;
}

void StayOnScreen(wxTopLevelWindow& window) {
    const ScreenRect own = Plain(window.GetRect());
    const ScreenRect inside = WithinArea(own, Plain(WorkArea(window)));
    if (inside != own) {
        window.SetSize(inside.Left, inside.Top, inside.Width, inside.Height);
    }
}

wxPoint PlaceOnScreen(const wxTopLevelWindow& window, const WindowPlacement& left) {
    const wxPoint place(ToPixels(left.Left), ToPixels(left.Top));
    const ScreenRect stored = Plain(wxRect(place, window.GetSize()));
    const ScreenRect area = Plain(AreaAt(place, window));
    const ScreenRect shown = left.LeftElsewhere ? WithinArea(stored, area) : WithinReach(stored, area);
    return {shown.Left, shown.Top};
}

}  // namespace lv
