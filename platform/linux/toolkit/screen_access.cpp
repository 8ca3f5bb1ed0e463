#include "platform/toolkit/screen_access.h"

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

// The toolkit's own first steps, X and Wayland alike; its second call finds the display open. GTK would make the
// locale of the process the user's.
bool HasScreen() {
    const auto keepLocale = ToolkitFunction<void (*)()>("gtk_disable_setlocale");
    const auto open = ToolkitFunction<int (*)(int*, char***)>("gtk_init_check");
    if (keepLocale == nullptr || open == nullptr) {
        return true;
    }
    keepLocale();
    return open(nullptr, nullptr) != 0;
}

}  // namespace lv
