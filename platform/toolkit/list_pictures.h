// platform/toolkit/list_pictures.h
//
// The pictures in the rows of a drop-down list.

#pragma once

namespace lv {

/// `list` is the native handle of a drop-down list with pictures. Each is drawn `height` of the layout's pixels high,
/// with as many of the screen's as it has, where the system would take the one for the other.
void FitListPictures(void* list, int height);

}  // namespace lv
