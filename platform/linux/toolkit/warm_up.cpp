#include "platform/toolkit/warm_up.h"

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

namespace {

struct Functions {
    using OfWidget = void (*)(void*);
    using Each = void (*)(void*, void (*)(void*, void*), void*);
    using Sizes = void (*)(void*, void*, void*);
    using Test = int (*)(void*);

    OfWidget Realize = ToolkitFunction<OfWidget>("gtk_widget_realize");
    void* (*Toplevel)(void*) = ToolkitFunction<void* (*)(void*)>("gtk_widget_get_toplevel");
    Test IsToplevel = ToolkitFunction<Test>("gtk_widget_is_toplevel");
    Test ChildIsVisible = ToolkitFunction<Test>("gtk_widget_get_child_visible");
    Test IsVisible = ToolkitFunction<Test>("gtk_widget_get_visible");
    Each ForAll = ToolkitFunction<Each>("gtk_container_forall");
    Sizes PreferredSize = ToolkitFunction<Sizes>("gtk_widget_get_preferred_size");
    unsigned long (*ContainerType)() = ToolkitFunction<unsigned long (*)()>("gtk_container_get_type");
    int (*IsA)(void*, unsigned long) = ToolkitFunction<int (*)(void*, unsigned long)>("g_type_check_instance_is_a");

    [[nodiscard]] bool All() const {
        return Realize && IsVisible && ChildIsVisible && IsToplevel && Toplevel && ForAll && PreferredSize &&
               ContainerType && IsA;
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

// What is hidden in it for want of room counts as shown.
void WarmUpInside(void* widget, void*) {
    const Functions& toolkit = Toolkit();
    if (!toolkit.IsVisible(widget)) {
        return;
    }
    toolkit.Realize(widget);
    toolkit.PreferredSize(widget, nullptr, nullptr);
    if (toolkit.IsA(widget, toolkit.ContainerType())) {
        toolkit.ForAll(widget, WarmUpInside, nullptr);
    }
}

}  // namespace

void WarmUpPart(void* part) {
    const Functions& toolkit = Toolkit();
    if (part == nullptr || !toolkit.All() || !toolkit.IsToplevel(toolkit.Toplevel(part))) {
        return;
    }
    toolkit.Realize(part);
    toolkit.ForAll(part, WarmUpInside, nullptr);
}

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
