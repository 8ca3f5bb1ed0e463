// platform/toolkit/open_list_keys.h
//
// Letters typed while a drop-down list is open.

#pragma once

#include <functional>

namespace lv {

/// `list` is the native handle of a drop-down list. From now on, as long as it lives, a letter that is typed while it
/// is open closes it and goes to `typed`, if it is `wanted` at all. Where the toolkit tells of such letters as of those
/// typed into a closed list nothing happens.
void WatchOpenList(void* list, std::function<bool()> wanted, std::function<void(char32_t)> typed);

}  // namespace lv
