// platform/linux/screen_access.h
//
// Whether there is a screen for windows: an X server by DISPLAY or a Wayland compositor by WAYLAND_DISPLAY. Sources:
// the X(7) manual page; wl_display_connect in Wayland's client library.

#pragma once

namespace lv {

/// To be asked before the toolkit starts: without a screen that ends the program in its own way.
bool HasScreen();

}  // namespace lv
