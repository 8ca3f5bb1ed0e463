#include "platform/spoken_name.h"

#include "platform/linux/toolkit_function.h"

namespace lv {

namespace {

void* AccessibleOf(void* control) {
    const auto get = ToolkitFunction<void* (*)(void*)>("gtk_widget_get_accessible");
    return get != nullptr && control != nullptr ? get(control) : nullptr;
}

}  // namespace

void SetSpokenName(void* control, const std::string& name) {
    const auto set = ToolkitFunction<void (*)(void*, const char*)>("atk_object_set_name");
    void* accessible = AccessibleOf(control);
    if (set != nullptr && accessible != nullptr) {
        set(accessible, name.c_str());
    }
}

std::string SpokenName(void* control) {
    const auto get = ToolkitFunction<const char* (*)(void*)>("atk_object_get_name");
    void* accessible = AccessibleOf(control);
    const char* name = get != nullptr && accessible != nullptr ? get(accessible) : nullptr;
    return name == nullptr ? std::string() : std::string(name);
}

}  // namespace lv
