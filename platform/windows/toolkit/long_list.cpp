#include "platform/toolkit/long_list.h"

namespace lv {

// The system's lists scroll.
void LetHaveManyRows(void*) {}

}  // namespace lv
