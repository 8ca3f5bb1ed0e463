#include "platform/toolkit/list_cursor.h"

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

namespace {

// The rows lie in a window that scrolls them.
void* RowsOf(void* list) {
    static const auto isA = ToolkitFunction<int (*)(void*, unsigned long)>("g_type_check_instance_is_a");
    static const auto scrolled = ToolkitFunction<unsigned long (*)()>("gtk_scrolled_window_get_type");
    static const auto rowsType = ToolkitFunction<unsigned long (*)()>("gtk_tree_view_get_type");
    static const auto child = ToolkitFunction<void* (*)(void*)>("gtk_bin_get_child");
    if (list == nullptr || !isA || !scrolled || !rowsType || !child) {
        return nullptr;
    }
    void* const rows = isA(list, scrolled()) ? child(list) : list;
    return rows != nullptr && isA(rows, rowsType()) ? rows : nullptr;
}

}  // namespace

void PutListCursor(void* list, int row) {
    static const auto newPath = ToolkitFunction<void* (*)()>("gtk_tree_path_new");
    static const auto append = ToolkitFunction<void (*)(void*, int)>("gtk_tree_path_append_index");
    static const auto free = ToolkitFunction<void (*)(void*)>("gtk_tree_path_free");
    static const auto setCursor = ToolkitFunction<void (*)(void*, void*, void*, int)>("gtk_tree_view_set_cursor");
    void* const rows = RowsOf(list);
    if (rows == nullptr || row < 0 || !newPath || !append || !free || !setCursor) {
        return;
    }
    void* const path = newPath();
    append(path, row);
    setCursor(rows, path, nullptr, 0);
    free(path);
}

}  // namespace lv
