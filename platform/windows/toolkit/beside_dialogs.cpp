#include "platform/toolkit/beside_dialogs.h"

#include "platform/windows/system.h"

namespace lv {

// A dialog disables the windows that are up when it comes.
void LetWorkBesideDialogs(void* window, void*) {
    if (window != nullptr) {
        EnableWindow(static_cast<HWND>(window), TRUE);
    }
}

}  // namespace lv
