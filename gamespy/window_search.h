// gamespy/window_search.h
//
// GameSpy 3D's window among all others.

#pragma once

#include "foundation/text.h"
#include "platform/desktop.h"

namespace lv {

/// Told by how the title begins, and the class where it means anything.
bool IsGameSpyWindow(const TopWindow& window);

/// The frontmost one; 0 if there is none, or no desktop.
WindowHandle FindGameSpyWindow(Desktop* desktop);

}  // namespace lv
