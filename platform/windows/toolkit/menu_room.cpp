#include "platform/toolkit/menu_room.h"

namespace lv {

// Windows breaks a bar of menus into lines.
void LetMenusScroll(void*, int) {}

}  // namespace lv
