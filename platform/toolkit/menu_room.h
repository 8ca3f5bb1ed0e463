// platform/toolkit/menu_room.h
//
// A window that is narrower than its menus.

#pragma once

namespace lv {

/// `bar` is the toolkit's native handle of a window's bar of menus, which stands in the window. Where it is wider
/// than `room`, in the toolkit's pixels, it scrolls from now on instead of keeping the window wide.
void LetMenusScroll(void* bar, int room);

}  // namespace lv
