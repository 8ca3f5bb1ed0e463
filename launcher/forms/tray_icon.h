// launcher/forms/tray_icon.h
//
// The main window's icon in the tray.

#pragma once

#include <wx/event.h>
#include <wx/taskbar.h>

#include <functional>

namespace lv {

class TrayIcon : public wxTaskBarIcon {
  public:
    /// `click` gets the number of the tray message: left or right button up. What is picked from a menu that pops up
    /// at the icon is `commands`'s to do, once the menu has gone.
    TrayIcon(wxEvtHandler* commands, const std::function<void(int)>& click);

  protected:
    wxMenu* CreatePopupMenu() override { return nullptr; }
};

}  // namespace lv
