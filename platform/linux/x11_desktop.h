// platform/linux/x11_desktop.h
//
// The windows of an X11 desktop, those of Wayland's X server included, as the window manager tells of them; keys by
// the server's test extension. Without an X server there are no windows.

#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/desktop.h"

namespace lv {

class X11Display;

class X11Desktop : public Desktop {
  public:
    /// `display` as in DISPLAY; empty takes that. The server is asked for at the first call, not here.
    explicit X11Desktop(std::string display = {});
    ~X11Desktop() override;

    /// The class is WM_CLASS's. Windows of Wine have a name ending in ".exe" there, and their own class is not known.
    std::vector<TopWindow> EnumWindows() override;
    std::string WindowTitle(WindowHandle window) override;
    bool IsIconic(WindowHandle window) override;
    void OpenIcon(WindowHandle window) override;
    bool SetForegroundWindow(WindowHandle window) override;
    void CloseWindow(WindowHandle window) override;
    Error SendKeys(std::string_view keys) override;

  private:
    X11Display* Connected();
    bool WaitUntil(const std::function<bool()>& holds);

    std::string name_;
    std::unique_ptr<X11Display> display_;
};

}  // namespace lv
