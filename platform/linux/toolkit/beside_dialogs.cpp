#include "platform/toolkit/beside_dialogs.h"

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

// A dialog keeps the mouse and the keyboard from the windows of its own group alone.
void LetWorkBesideDialogs(void* window, void* dialog) {
    const auto set_transient_for = ToolkitFunction<void (*)(void*, void*)>("gtk_window_set_transient_for");
    if (set_transient_for != nullptr && window != nullptr) {
        set_transient_for(window, dialog);
    }
    const auto has_group = ToolkitFunction<int (*)(void*)>("gtk_window_has_group");
    const auto new_group = ToolkitFunction<void* (*)()>("gtk_window_group_new");
    const auto add_window = ToolkitFunction<void (*)(void*, void*)>("gtk_window_group_add_window");
    const auto unref = ToolkitFunction<void (*)(void*)>("g_object_unref");
    if (has_group == nullptr || new_group == nullptr || add_window == nullptr || unref == nullptr ||
        window == nullptr || has_group(window) != 0) {
        return;
    }
    void* const group = new_group();
    add_window(group, window);
    unref(group);  // the window holds it
}

}  // namespace lv
