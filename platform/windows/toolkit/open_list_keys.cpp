#include "platform/toolkit/open_list_keys.h"

namespace lv {

// An open list leaves the keyboard with the closed part.
// NOLINTNEXTLINE(performance-unnecessary-value-param): the other system keeps them.
void WatchOpenList(void*, std::function<bool()>, std::function<void(char32_t)>) {}

}  // namespace lv
