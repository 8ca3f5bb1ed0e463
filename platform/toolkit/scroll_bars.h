// platform/toolkit/scroll_bars.h
//
// Scroll bars that stand still.

#pragma once

namespace lv {

/// `window` is the toolkit's native handle of a scrolled window. Its bars stay in sight where the system would show
/// them under the mouse alone.
void KeepScrollBarsInSight(void* window);

}  // namespace lv
