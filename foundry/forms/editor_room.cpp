#include "foundry/forms/editor_room.h"

#include <wx/display.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include <algorithm>

#include "foundation/screen_fit.h"
#include "foundry/forms/editor_tabs.h"

namespace lv {

namespace {

constexpr int kFrameRoom = 40;     // of the screen's height, left for the frame
constexpr int kPageFrames = 4;     // gaps beside a page: those of two notebooks
constexpr int kLeastPageRows = 7;  // that a page shows on a small screen, and scrolls

wxSize WantedSize(const EditorRoom& room) {
    wxSize wanted = room.Inside.GetSizer()->CalcMin();
    if (!room.Keys.IsShown()) {
        const wxSize keys = room.Keys.GetBestSize();
        wanted = wxSize(std::max(wanted.x, keys.x), wanted.y + keys.y + kPageGap / 2);
    }
    return wanted;
}

}  // namespace

void FitToScreen(const EditorRoom& room) {
    wxWindow* const on = room.Window.GetParent() != nullptr ? room.Window.GetParent() : &room.Window;
    wxSize screen = wxDisplay(on).GetClientArea().GetSize();
    const int below = room.Hint.GetBestSize().y + kPageGap / 2;
    screen.y -= room.Window.FromDIP(kFrameRoom) + below;
    screen.x -= std::max(0, room.Window.GetSize().x - room.Window.GetClientSize().x);
    const int bar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, &room.Content);
    const int height = EditorTabsHeight(&room.Tabs, room.Parts, kPageRows);
    room.Tabs.SetMinSize(wxSize(-1, height));
    wxSize wanted = WantedSize(room);
    const int over = wanted.y + (wanted.x > screen.x ? bar : 0) - screen.y;
    const int given = std::clamp(over, 0, height - EditorTabsHeight(&room.Tabs, room.Parts, kLeastPageRows));
    room.Tabs.SetMinSize(wxSize(-1, height - given));
    wanted.y -= given;
    const wxSize usual = room.Window.FromDIP(wxSize(kEditorWidth, kEditorHeight));
    const int width = std::max(usual.x, room.Pages.Width() + kPageFrames * kPageGap);
    wanted.IncTo(wxSize(std::min(width, screen.x), std::min(usual.y, screen.y)));
    room.Content.SetVirtualSize(wanted);
    const ShownContent shown = ShowInRoom(wanted.x, wanted.y, screen.x, screen.y, bar);
    room.Window.SetClientSize(shown.Width, shown.Height + below);
}

}  // namespace lv
