// platform/toolkit/right_click.h
//
// A click with the right mouse button on a control whose parts keep it from the toolkit.

#pragma once

#include <functional>

namespace lv {

/// `control` is the toolkit's native handle. True for a drop-down list that is made of parts: from now on, as long as
/// it lives, `clicked` is called when the right button is let go over one of them that has no use of its own for it, as
/// a field has. False for all other controls, of which the toolkit tells.
bool WatchRightClick(void* control, std::function<void()> clicked);

}  // namespace lv
