// platform/toolkit/long_list.h
//
// Drop-down lists with thousands of rows.

#pragma once

namespace lv {

/// `list` is the native handle of a drop-down list that has no rows yet. Where the system would show it as a menu,
/// which takes the square of the rows' number in time, it becomes a list that scrolls, for good.
void LetHaveManyRows(void* list);

}  // namespace lv
