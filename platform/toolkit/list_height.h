// platform/toolkit/list_height.h
//
// The height of a drop-down list while it is closed.

#pragma once

namespace lv {

/// `list` is the native handle of a drop-down list. It becomes that high, in pixels, where the system would else give
/// it the height of a line of text and cut a picture in it.
void SetListHeight(void* list, int pixels);

}  // namespace lv
