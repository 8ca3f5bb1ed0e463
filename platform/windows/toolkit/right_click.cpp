#include "platform/toolkit/right_click.h"

namespace lv {

// A list is one window, and the toolkit tells of it.
// NOLINTNEXTLINE(performance-unnecessary-value-param): the other system keeps it.
bool WatchRightClick(void*, std::function<void()>) {
    return false;
}

}  // namespace lv
