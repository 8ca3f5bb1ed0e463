#include "platform/toolkit/screen_access.h"

namespace lv {

// A service's windows are there too, if unseen.
bool HasScreen() {
    return true;
}

}  // namespace lv
