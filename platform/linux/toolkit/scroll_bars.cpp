#include "platform/toolkit/scroll_bars.h"

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

void KeepScrollBarsInSight(void* window) {
    const auto set_overlay = ToolkitFunction<void (*)(void*, int)>("gtk_scrolled_window_set_overlay_scrolling");
    if (set_overlay != nullptr && window != nullptr) {
        set_overlay(window, 0);
    }
}

}  // namespace lv
