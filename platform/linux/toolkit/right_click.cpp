#include "platform/toolkit/right_click.h"

#include <memory>

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

namespace {

using Clicked = std::function<void()>;
using Release = int (*)(void* list, void* event, void* clicked);
using Forget = void (*)(void* clicked, void* closure);

constexpr unsigned kRightButton = 3;  // GDK_BUTTON_SECONDARY

// What the parts have no use for comes up to the list.
int TellOfRelease(void*, void* event, void* clicked) {
    static const auto buttonOf = ToolkitFunction<int (*)(void*, unsigned*)>("gdk_event_get_button");
    unsigned button = 0;
    if (buttonOf == nullptr || !buttonOf(event, &button) || button != kRightButton) {
        return 0;
    }
    (*static_cast<Clicked*>(clicked))();
    return 1;
}

void ForgetClicked(void* clicked, void*) {
    delete static_cast<Clicked*>(clicked);
}

}  // namespace

bool WatchRightClick(void* control, Clicked clicked) {
    static const auto isA = ToolkitFunction<int (*)(void*, unsigned long)>("g_type_check_instance_is_a");
    static const auto combo = ToolkitFunction<unsigned long (*)()>("gtk_combo_box_get_type");
    static const auto connect =
        ToolkitFunction<unsigned long (*)(void*, const char*, Release, void*, Forget, int)>("g_signal_connect_data");
    if (control == nullptr || !isA || !combo || !connect || !isA(control, combo())) {
        return false;
    }
    connect(control, "button-release-event", TellOfRelease, std::make_unique<Clicked>(std::move(clicked)).release(),
            ForgetClicked, 0);
    return true;
}

}  // namespace lv
