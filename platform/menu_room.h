// platform/menu_room.h
//
// A window that is narrower than its menus.

#pragma once

namespace lv {

/// `bar` is the toolkit's native handle of a window's bar of menus, which stands in the window. The bar scrolls from now
/// on where the window leaves it too little room, instead of keeping the window wide.
void LetMenusScroll(void* bar);

}  // namespace lv
