// platform/toolkit/screen_access.h
//
// Whether there is a screen for windows.

#pragma once

namespace lv {

/// To be asked before the toolkit starts: without a screen that ends the program in its own way.
bool HasScreen();

}  // namespace lv
