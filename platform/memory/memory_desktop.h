// platform/memory/memory_desktop.h
//
// The windows of other programs in memory.

#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/desktop.h"

namespace lv {

/// Windows that a test puts there.
class MemoryDesktop : public Desktop {
  public:
    struct Window {
        std::string Title;
        std::string Class;
        bool Iconic = false;
        bool ClassKnown = true;
    };

    std::vector<TopWindow> EnumWindows() override;
    std::string WindowTitle(WindowHandle window) override;
    bool IsIconic(WindowHandle window) override;
    void OpenIcon(WindowHandle window) override;
    bool SetForegroundWindow(WindowHandle window) override;
    void CloseWindow(WindowHandle window) override;
    Error SendKeys(std::string_view keys) override;

    std::map<WindowHandle, Window> Windows;  // enumerated in the order of the handles
    bool RefuseForeground = false;
    Error RefuseKeys;
    std::function<void(std::string_view keys)> OnKeys;  // the program that has the keys

    /// What was done, in order: "open 7", "front 7", "keys %s", "close 7".
    std::vector<std::string> Log;
};

}  // namespace lv
