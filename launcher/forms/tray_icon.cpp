#include "launcher/forms/tray_icon.h"

#include <wx/platinfo.h>

#include "foundation/forms/pictures.h"
#include "launcher/window/window_life.h"

namespace lv {

namespace {

// GTK tells of a tray button only when it goes down.
bool TellsOfRelease() {
    return wxPlatformInfo::Get().GetPortId() != wxPORT_GTK;
}

}  // namespace

TrayIcon::TrayIcon(wxEvtHandler* commands, const std::function<void(int)>& click) {
    SetIcon(ProgramIcon().GetIcon(wxSize(24, 24)), "Lorvane 3D");
    Bind(TellsOfRelease() ? wxEVT_TASKBAR_LEFT_UP : wxEVT_TASKBAR_LEFT_DOWN,
         [click](wxTaskBarIconEvent&) { click(kTrayLeftButtonUp); });
    Bind(TellsOfRelease() ? wxEVT_TASKBAR_RIGHT_UP : wxEVT_TASKBAR_RIGHT_DOWN,
         [click](wxTaskBarIconEvent&) { click(kTrayRightButtonUp); });
    // Not at once: "E&xit" takes the icon away, which still has its menu up. The menu will be gone by then.
    Bind(wxEVT_MENU, [commands](wxCommandEvent& event) {
        wxCommandEvent picked(wxEVT_MENU, event.GetId());
        picked.SetEventObject(commands);
        wxPostEvent(commands, picked);
    });
}

}  // namespace lv
