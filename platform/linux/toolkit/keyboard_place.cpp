#include "platform/toolkit/keyboard_place.h"

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

bool HoldsKeyboard(void* control) {
    const auto windowOf = ToolkitFunction<void* (*)(void*)>("gtk_widget_get_toplevel");
    const auto focusOf = ToolkitFunction<void* (*)(void*)>("gtk_window_get_focus");
    const auto liesIn = ToolkitFunction<int (*)(void*, void*)>("gtk_widget_is_ancestor");
    if (windowOf == nullptr || focusOf == nullptr || liesIn == nullptr || control == nullptr) {
        return false;
    }
    void* const focus = focusOf(windowOf(control));
    return focus != nullptr && (focus == control || liesIn(focus, control) != 0);
}

}  // namespace lv
