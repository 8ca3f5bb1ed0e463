#include "platform/toolkit/long_list.h"

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

namespace {

constexpr char kAsList[] = "* { -GtkComboBox-appears-as-list: 1; }";
constexpr unsigned kOverTheme = 600;  // GTK_STYLE_PROVIDER_PRIORITY_APPLICATION

void AddStyle(void* list) {
    static const auto provider = ToolkitFunction<void* (*)()>("gtk_css_provider_new");
    static const auto load =
        ToolkitFunction<int (*)(void*, const char*, long, void*)>("gtk_css_provider_load_from_data");
    static const auto context = ToolkitFunction<void* (*)(void*)>("gtk_widget_get_style_context");
    static const auto add = ToolkitFunction<void (*)(void*, void*, unsigned)>("gtk_style_context_add_provider");
    static const auto emit = ToolkitFunction<void (*)(void*, const char*)>("g_signal_emit_by_name");
    static const auto unref = ToolkitFunction<void (*)(void*)>("g_object_unref");
    if (provider && load && context && add && emit && unref) {
        void* const style = provider();
        load(style, kAsList, -1, nullptr);
        add(context(list), style, kOverTheme);
        unref(style);
        emit(list, "style-updated");  // the rows would come before the list has looked at its style
    }
}

// The rows of a list that scrolls, null of a menu.
void* ScrollingRows(void* list) {
    static const auto accessible = ToolkitFunction<void* (*)(void*)>("gtk_combo_box_get_popup_accessible");
    static const auto widget = ToolkitFunction<void* (*)(void*)>("gtk_accessible_get_widget");
    static const auto isA = ToolkitFunction<int (*)(void*, unsigned long)>("g_type_check_instance_is_a");
    static const auto rowsType = ToolkitFunction<unsigned long (*)()>("gtk_tree_view_get_type");
    if (!accessible || !widget || !isA || !rowsType) {
        return nullptr;
    }
    void* const popup = accessible(list);
    void* const rows = popup != nullptr ? widget(popup) : nullptr;
    return rows != nullptr && isA(rows, rowsType()) ? rows : nullptr;
}

}  // namespace

void LetHaveManyRows(void* list) {
    static const auto realize = ToolkitFunction<void (*)(void*)>("gtk_widget_realize");
    if (list == nullptr || !realize || ScrollingRows(list) != nullptr) {
        return;
    }
    AddStyle(list);
    // Rows that nobody has measured count as nothing: the list would come up as if it had none, and then grow with
    // each, beyond what a screen has memory for. From now on they are measured as they come.
    if (void* const rows = ScrollingRows(list)) {
        realize(rows);
    }
}

}  // namespace lv
