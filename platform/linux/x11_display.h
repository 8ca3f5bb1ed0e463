// platform/linux/x11_display.h
//
// A connection to the X server for questions about other programs' windows. Each answer is waited for, and one about a
// window that has gone is empty.

#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace lv {

class X11Display {
  public:
    /// `name` as in DISPLAY; empty takes that. Null if there is no server.
    static std::unique_ptr<X11Display> Open(const std::string& name);
    ~X11Display();
    X11Display(const X11Display&) = delete;
    X11Display& operator=(const X11Display&) = delete;

    /// False once the server has gone.
    [[nodiscard]] bool IsAlive() const;

    /// The windows that the window manager manages, the frontmost first; without one, those below the root.
    std::vector<xcb_window_t> TopWindows();

    bool Exists(xcb_window_t window);

    /// A property's bytes, whatever their type.
    std::string Bytes(xcb_window_t window, const char* property);
    std::string BytesOfType(xcb_window_t window, const char* property, const char* type);
    /// A property of 32-bit numbers.
    std::vector<std::uint32_t> Numbers(xcb_window_t window, const char* property);

    [[nodiscard]] xcb_window_t Root() const { return root_; }
    xcb_atom_t Atom(const char* name);
    /// Asks the window manager for something about the window.
    void AskManager(xcb_window_t window, const char* message, const std::vector<std::uint32_t>& data);
    void Map(xcb_window_t window);

    /// The window that has the keys, as the window manager tells it; without one, as the server does.
    xcb_window_t ActiveWindow();
    /// Without a window manager: raises the window and gives it the keys.
    void TakeFocus(xcb_window_t window);
    bool HasManager();

    /// The code of the key that makes this symbol without Shift; 0 if there is none.
    xcb_keycode_t KeyOf(std::uint32_t symbol);
    /// Whether keys can be pressed at all.
    bool MayPressKeys();
    void PressKey(xcb_keycode_t key);
    void ReleaseKey(xcb_keycode_t key);

    /// Returns when the server has done all that was asked.
    void Flush();

  private:
    X11Display(xcb_connection_t* connection, xcb_window_t root) : connection_(connection), root_(root) {}
    std::string Property(xcb_window_t window, xcb_atom_t property, xcb_atom_t type);
    void FakeKey(std::uint8_t event, xcb_keycode_t key);

    xcb_connection_t* connection_;
    xcb_window_t root_;
    std::map<std::string, xcb_atom_t> atoms_;
};

}  // namespace lv
