#include "platform/toolkit/keyboard_place.h"

#include "platform/windows/system.h"

namespace lv {

bool HoldsKeyboard(void* control) {
    const HWND focus = GetFocus();
    const auto window = static_cast<HWND>(control);
    return focus != nullptr && (focus == window || IsChild(window, focus) != 0);
}

}  // namespace lv
