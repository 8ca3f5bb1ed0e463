#include "platform/toolkit/scroll_bars.h"

namespace lv {

// Windows' bars always do.
void KeepScrollBarsInSight(void*) {}

}  // namespace lv
