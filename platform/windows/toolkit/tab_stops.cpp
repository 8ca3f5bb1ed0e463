#include "platform/toolkit/tab_stops.h"

namespace lv {

bool ToolkitKeepsTabStops() {
    return false;
}

}  // namespace lv
