// tests/support/windows/own_window.h
//
// A top window of the test's own, served by a thread of its own as another program's would be.

#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/windows/system.h"

namespace lv {

/// Whether it comes to hold within that time.
bool WaitUntil(const std::function<bool()>& holds, int milliseconds = 10000);

class OwnWindow {
  public:
    OwnWindow(const std::wstring& className, const std::wstring& title);
    ~OwnWindow();
    OwnWindow(const OwnWindow&) = delete;
    OwnWindow& operator=(const OwnWindow&) = delete;

    [[nodiscard]] HWND Handle() const { return window_; }
    /// The characters that were typed into it; those with Alt have "%" in front.
    std::wstring Typed();

  private:
    static LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM first, LPARAM second);
    void Serve();

    std::wstring class_;
    std::wstring title_;
    HWND window_ = nullptr;
    std::mutex mutex_;
    std::wstring typed_;
    std::thread thread_;
};

}  // namespace lv
