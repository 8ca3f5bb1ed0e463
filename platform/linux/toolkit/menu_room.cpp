#include "platform/toolkit/menu_room.h"

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

namespace {

// GtkPolicyType.
constexpr int kNever = 2;
constexpr int kNoBar = 3;

struct Functions {
    using OfWidget = void (*)(void*);
    using OfTwo = void (*)(void*, void*);

    void (*PreferredWidth)(void*, int*,
                           int*) = ToolkitFunction<void (*)(void*, int*, int*)>("gtk_widget_get_preferred_width");
    void* (*Parent)(void*) = ToolkitFunction<void* (*)(void*)>("gtk_widget_get_parent");
    void* (*Reference)(void*) = ToolkitFunction<void* (*)(void*)>("g_object_ref");
    OfWidget Unreference = ToolkitFunction<OfWidget>("g_object_unref");
    OfTwo Remove = ToolkitFunction<OfTwo>("gtk_container_remove");
    OfTwo Add = ToolkitFunction<OfTwo>("gtk_container_add");
    void* (*NewScrolled)(void*, void*) = ToolkitFunction<void* (*)(void*, void*)>("gtk_scrolled_window_new");
    void (*SetPolicy)(void*, int, int) = ToolkitFunction<void (*)(void*, int, int)>("gtk_scrolled_window_set_policy");
    void (*Pack)(void*, void*, int, int,
                 unsigned) = ToolkitFunction<void (*)(void*, void*, int, int, unsigned)>("gtk_box_pack_start");
    void (*Reorder)(void*, void*, int) = ToolkitFunction<void (*)(void*, void*, int)>("gtk_box_reorder_child");
    OfWidget Show = ToolkitFunction<OfWidget>("gtk_widget_show_all");

    [[nodiscard]] bool All() const {
        return PreferredWidth && Parent && Reference && Unreference && Remove && Add && NewScrolled && SetPolicy &&
               Pack && Reorder && Show;
    }
};

}  // namespace

// The wheel scrolls it; a scroll bar would take more room than the menus have.
void LetMenusScroll(void* bar, int room) {
    const Functions toolkit;
    void* const box = bar != nullptr && toolkit.All() ? toolkit.Parent(bar) : nullptr;
    if (box == nullptr) {
        return;
    }
    int wanted = 0;
    toolkit.PreferredWidth(bar, nullptr, &wanted);
    if (wanted <= room) {
        return;
    }
    void* const scrolled = toolkit.NewScrolled(nullptr, nullptr);
    toolkit.SetPolicy(scrolled, kNoBar, kNever);
    toolkit.Reference(bar);
    toolkit.Remove(box, bar);
    toolkit.Add(scrolled, bar);
    toolkit.Unreference(bar);
    toolkit.Pack(box, scrolled, 0, 0, 0);
    toolkit.Reorder(box, scrolled, 0);
    toolkit.Show(scrolled);
}

}  // namespace lv
