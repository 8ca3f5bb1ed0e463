#include "platform/right_click.h"

namespace lv {

// A list is one window, and the toolkit tells of it.
bool WatchRightClick(void*, std::function<void()>) {
    return false;
}

}  // namespace lv
