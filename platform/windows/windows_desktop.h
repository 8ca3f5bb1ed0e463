// platform/windows/windows_desktop.h
//
// The desktop's windows and keys, by the system's own calls of the same names.

#pragma once

#include "platform/desktop.h"

namespace lv {

class WindowsDesktop : public Desktop {
  public:
    std::vector<TopWindow> EnumWindows() override;
    std::string WindowTitle(WindowHandle window) override;
    bool IsIconic(WindowHandle window) override;
    void OpenIcon(WindowHandle window) override;
    bool SetForegroundWindow(WindowHandle window) override;
    void CloseWindow(WindowHandle window) override;

    /// Waits until the window in front has taken each key, at most a second a key.
    Error SendKeys(std::string_view keys) override;
};

}  // namespace lv
