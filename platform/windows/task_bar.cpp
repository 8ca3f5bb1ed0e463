#include "platform/windows/task_bar.h"

#include "platform/windows/system.h"
// After windows.h, which it needs.
#include <shobjidl.h>

namespace lv {

bool TakeTaskBarName() {
    return SUCCEEDED(SetCurrentProcessExplicitAppUserModelID(kTaskBarName));
}

}  // namespace lv
