#include "launcher/forms/tray_icon.h"

#include <wx/platinfo.h>

#include "foundation/forms/pictures.h"
#include "launcher/window_life.h"

namespace lv {

namespace {

// GTK tells of a tray button only when it goes down.
bool TellsOfRelease() {
    return wxPlatformInfo::Get().GetPortId() != wxPORT_GTK;
}

}  // namespace

TrayIcon::TrayIcon(const std::function<void(int)>& click) {
    SetIcon(ProgramIcon().GetIcon(wxSize(24, 24)), "Lorvane 3D");
    Bind(TellsOfRelease() ? wxEVT_TASKBAR_LEFT_UP : wxEVT_TASKBAR_LEFT_DOWN,
         [click](wxTaskBarIconEvent&) { click(kTrayLeftButtonUp); });
    Bind(TellsOfRelease() ? wxEVT_TASKBAR_RIGHT_UP : wxEVT_TASKBAR_RIGHT_DOWN,
         [click](wxTaskBarIconEvent&) { click(kTrayRightButtonUp); });
}

}  // namespace lv
