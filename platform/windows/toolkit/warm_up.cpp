#include "platform/toolkit/warm_up.h"

namespace lv {

// Windows makes all of a window with its controls.
void WarmUp(void*) {}

void WarmUpPart(void*) {}

}  // namespace lv
