// platform/toolkit/keyboard_place.h
//
// Where the keyboard goes, which the toolkit itself does not always know of controls made of several parts.

#pragma once

namespace lv {

/// Whether the keyboard goes to the control, or to a part of it, when its window is in front. `control` is the
/// toolkit's native handle.
bool HoldsKeyboard(void* control);

}  // namespace lv
