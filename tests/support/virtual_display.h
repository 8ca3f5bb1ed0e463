// tests/support/virtual_display.h
//
// An X display of the test program's own, with nobody looking at it.

#pragma once

#include <sys/types.h>

#include <string>

namespace lv {

enum class WindowManager { kNone, kOpenbox };

class VirtualDisplay {
  public:
    /// Starts Xvfb on a free display and sets DISPLAY; `manager` starts with it.
    explicit VirtualDisplay(WindowManager manager = WindowManager::kNone);
    /// Ends what was started and puts DISPLAY back.
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

    /// ":7"; empty if Xvfb could not be started.
    [[nodiscard]] const std::string& Name() const { return name_; }

  private:
    std::string name_;
    std::string before_;
    pid_t server_ = -1;
    pid_t manager_ = -1;
    int connection_ = -1;  // a client of our own, for the server forgets everything when its last one leaves
};

}  // namespace lv
