#include "platform/toolkit/open_list_keys.h"

namespace lv {

// An open list leaves the keyboard with the closed part.
void WatchOpenList(void*, std::function<bool()>, std::function<void(char32_t)>) {}

}  // namespace lv
