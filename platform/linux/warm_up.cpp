#include "platform/warm_up.h"

#include "platform/linux/toolkit_function.h"

namespace lv {

namespace {

struct Functions {
    using OfWidget = void (*)(void*);
    using Each = void (*)(void*, void (*)(void*, void*), void*);
    using Sizes = void (*)(void*, void*, void*);
    using Test = int (*)(void*);

    OfWidget Realize = ToolkitFunction<OfWidget>("gtk_widget_realize");
    Test IsToplevel = ToolkitFunction<Test>("gtk_widget_is_toplevel");
    Test ChildIsVisible = ToolkitFunction<Test>("gtk_widget_get_child_visible");
    Test IsVisible = ToolkitFunction<Test>("gtk_widget_get_visible");
    Each ForAll = ToolkitFunction<Each>("gtk_container_forall");
    Sizes PreferredSize = ToolkitFunction<Sizes>("gtk_widget_get_preferred_size");
    unsigned long (*ContainerType)() = ToolkitFunction<unsigned long (*)()>("gtk_container_get_type");
    int (*IsA)(void*, unsigned long) = ToolkitFunction<int (*)(void*, unsigned long)>("g_type_check_instance_is_a");

    [[nodiscard]] bool All() const {
        return Realize && IsVisible && ChildIsVisible && IsToplevel && ForAll && PreferredSize && ContainerType && IsA;
    }
};

const Functions& Toolkit() {
    static const Functions functions;
    return functions;
}

void RealizeShown(void* widget, void*) {
    const Functions& toolkit = Toolkit();
    if (!toolkit.IsVisible(widget) || !toolkit.ChildIsVisible(widget)) {
        return;
    }
    toolkit.Realize(widget);
    if (toolkit.IsA(widget, toolkit.ContainerType())) {
        toolkit.ForAll(widget, RealizeShown, nullptr);
    }
}

}  // namespace

void WarmUp(void* window) {
    const Functions& toolkit = Toolkit();
    if (window == nullptr || !toolkit.All()) {
        return;
    }
    toolkit.PreferredSize(window, nullptr, nullptr);
    if (toolkit.IsToplevel(window)) {
        toolkit.Realize(window);
        toolkit.ForAll(window, RealizeShown, nullptr);
    }
}

}  // namespace lv
