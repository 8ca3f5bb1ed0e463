#include "launcher/forms/tray_icon.h"

#include "foundation/forms/pictures.h"
#include "launcher/window_life.h"

namespace lv {

namespace {

// GTK tells of the pressing of a button in the tray and never of its release.
#ifdef __WXGTK__
const auto& kLeft = wxEVT_TASKBAR_LEFT_DOWN;
const auto& kRight = wxEVT_TASKBAR_RIGHT_DOWN;
#else
const auto& kLeft = wxEVT_TASKBAR_LEFT_UP;
const auto& kRight = wxEVT_TASKBAR_RIGHT_UP;
#endif

}  // namespace

TrayIcon::TrayIcon(std::function<void(int)> click) {
    SetIcon(ProgramIcon().GetIcon(wxSize(24, 24)), "Lorvane 3D");
    Bind(kLeft, [click](wxTaskBarIconEvent&) { click(kTrayLeftButtonUp); });
    Bind(kRight, [click](wxTaskBarIconEvent&) { click(kTrayRightButtonUp); });
}

}  // namespace lv
