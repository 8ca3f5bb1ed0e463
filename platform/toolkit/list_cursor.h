// platform/toolkit/list_cursor.h
//
// The row of an open list from which the keyboard goes on.

#pragma once

namespace lv {

/// `list` is the native handle of an open list whose selection the program has set. The arrow keys go on from that row,
/// where the system would have them go on from the one that its user selected last. The row comes into sight.
void PutListCursor(void* list, int row);

}  // namespace lv
