#include "platform/toolkit/tab_stops.h"

namespace lv {

bool ToolkitKeepsTabStops() {
    return true;
}

}  // namespace lv
