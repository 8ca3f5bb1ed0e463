#include "platform/toolkit/list_height.h"

#include "platform/windows/system.h"

namespace lv {

namespace {

constexpr WPARAM kShownRow = static_cast<WPARAM>(-1);

}  // namespace

void SetListHeight(void* list, int pixels) {
    auto* const window = static_cast<HWND>(list);
    RECT place{};
    if (window == nullptr || GetWindowRect(window, &place) == 0 || place.bottom - place.top == pixels) {
        return;
    }
    const LRESULT row = SendMessageW(window, CB_GETITEMHEIGHT, kShownRow, 0);
    const LRESULT border = place.bottom - place.top - row;
    if (row > 0 && pixels > border) {
        SendMessageW(window, CB_SETITEMHEIGHT, kShownRow, pixels - border);
    }
}

}  // namespace lv
