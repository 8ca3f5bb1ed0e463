#include "platform/toolkit/label_field.h"

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

namespace {

// A field of several lines lies in a window that scrolls it, and that takes no keyboard.
void* Within(void* field) {
    static const auto isA = ToolkitFunction<int (*)(void*, unsigned long)>("g_type_check_instance_is_a");
    static const auto scrolled = ToolkitFunction<unsigned long (*)()>("gtk_scrolled_window_get_type");
    static const auto child = ToolkitFunction<void* (*)(void*)>("gtk_bin_get_child");
    return isA && scrolled && child && isA(field, scrolled()) ? child(field) : field;
}

}  // namespace

void LeadToField(void* label, void* field) {
    static const auto lead = ToolkitFunction<void (*)(void*, void*)>("gtk_label_set_mnemonic_widget");
    if (label != nullptr && field != nullptr && lead) {
        lead(label, Within(field));
    }
}

}  // namespace lv
