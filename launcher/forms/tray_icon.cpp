#include "launcher/forms/tray_icon.h"

#include "foundation/forms/pictures.h"
#include "launcher/window_life.h"

namespace lv {

TrayIcon::TrayIcon(std::function<void(int)> click) {
    SetIcon(ProgramIcon().GetIcon(wxSize(24, 24)), "Lorvane 3D");
    Bind(wxEVT_TASKBAR_LEFT_UP, [click](wxTaskBarIconEvent&) { click(kTrayLeftButtonUp); });
    Bind(wxEVT_TASKBAR_RIGHT_UP, [click](wxTaskBarIconEvent&) { click(kTrayRightButtonUp); });
}

}  // namespace lv
