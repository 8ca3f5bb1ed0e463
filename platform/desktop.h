// platform/desktop.h
//
// The other programs' windows on the user's desktop, and keys pressed as if the user did. Both are shared with
// everything else that runs there: a window may go between two calls, and a user who types meanwhile is in the way.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

namespace lv {

/// Names a window as long as it lives; 0 is no window.
using WindowHandle = std::uint64_t;

/// The buffer that EnumWindows reads titles and classes into, its closing NUL included: what is longer is cut.
constexpr std::size_t kWindowTextBuffer = 255;

inline std::string CutToBuffer(std::string_view text) {
    return std::string(text.substr(0, kWindowTextBuffer - 1));
}

/// A top window, texts in code page 1252.
struct TopWindow {
    WindowHandle Handle = 0;
    std::string Title;
    std::string Class;
    /// Whether Class is what the program itself calls it, as it always is on Windows. On an X11 desktop the class of
    /// a Windows program stays inside Wine: such a window can be told by its title alone.
    bool ClassKnown = true;
};

class Desktop {
  public:
    virtual ~Desktop() = default;

    /// All top windows, hidden ones and this program's own included, the frontmost first where the system knows.
    virtual std::vector<TopWindow> EnumWindows() = 0;

    /// The whole title; empty if the window is gone.
    virtual std::string WindowTitle(WindowHandle window) = 0;

    /// Minimised to an icon or a button of the task bar.
    virtual bool IsIconic(WindowHandle window) = 0;

    /// Brings a minimised window back to its place.
    virtual void OpenIcon(WindowHandle window) = 0;

    /// Brings the window to the front and gives it the keys. False if the system refused or the window is gone.
    virtual bool SetForegroundWindow(WindowHandle window) = 0;

    /// Minimises the window; it stays open, whatever the name says.
    virtual void CloseWindow(WindowHandle window) = 0;

    /// Presses the keys one after the other, and returns when they were taken. `keys` as KeyStrokesOf reads them: "%s",
    /// "c". Error 5 for anything else, 70 if the system lets nobody press keys.
    virtual Error SendKeys(std::string_view keys) = 0;
};

}  // namespace lv
