#include "platform/toolkit/spoken_name.h"

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

namespace {

void* AccessibleOf(void* control) {
    const auto get = ToolkitFunction<void* (*)(void*)>("gtk_widget_get_accessible");
    return get != nullptr && control != nullptr ? get(control) : nullptr;
}

/// What takes the keyboard of a list that can be typed into, or of what lies in a window that scrolls it.
void* Within(void* control) {
    static const auto isA = ToolkitFunction<int (*)(void*, unsigned long)>("g_type_check_instance_is_a");
    static const auto child = ToolkitFunction<void* (*)(void*)>("gtk_bin_get_child");
    static const auto scrolled = ToolkitFunction<unsigned long (*)()>("gtk_scrolled_window_get_type");
    static const auto entry = ToolkitFunction<unsigned long (*)()>("gtk_entry_get_type");
    static const auto combo = ToolkitFunction<unsigned long (*)()>("gtk_combo_box_get_type");
    if (control == nullptr || !isA || !child || !scrolled || !entry || !combo) {
        return nullptr;
    }
    if (isA(control, scrolled())) {
        return child(control);
    }
    void* const field = isA(control, combo()) ? child(control) : nullptr;
    return field != nullptr && isA(field, entry()) ? field : nullptr;
}

void Name(void* control, const std::string& name) {
    const auto set = ToolkitFunction<void (*)(void*, const char*)>("atk_object_set_name");
    void* accessible = AccessibleOf(control);
    if (set != nullptr && accessible != nullptr) {
        set(accessible, name.c_str());
    }
}

}  // namespace

void SetSpokenName(void* control, const std::string& name) {
    Name(control, name);
    if (void* const within = Within(control)) {
        Name(within, name);
    }
}

std::string SpokenName(void* control) {
    const auto get = ToolkitFunction<const char* (*)(void*)>("atk_object_get_name");
    void* const within = Within(control);
    void* accessible = AccessibleOf(within != nullptr ? within : control);
    const char* name = get != nullptr && accessible != nullptr ? get(accessible) : nullptr;
    return name == nullptr ? std::string() : std::string(name);
}

}  // namespace lv
