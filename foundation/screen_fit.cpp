#include "foundation/screen_fit.h"

#include <algorithm>

namespace lv {

namespace {

constexpr int kReach = 24;          // of a title bar, to take hold of it
constexpr int kButtonsReach = 160;  // of its end, where the buttons are

ScreenRect NoLargerThan(ScreenRect window, ScreenRect area) {
    window.Width = std::min(window.Width, area.Width);
    window.Height = std::min(window.Height, area.Height);
    return window;
}

}  // namespace

ScreenRect WithinArea(ScreenRect window, ScreenRect area) {
    window = NoLargerThan(window, area);
    window.Left = std::clamp(window.Left, area.Left, area.Left + area.Width - window.Width);
    window.Top = std::clamp(window.Top, area.Top, area.Top + area.Height - window.Height);
    return window;
}

ScreenRect WithinReach(ScreenRect window, ScreenRect area) {
    window = NoLargerThan(window, area);
    const int start = std::min(kReach, window.Width);
    const int end = std::min(kButtonsReach, window.Width);
    window.Left = std::clamp(window.Left, area.Left + end - window.Width, area.Left + area.Width - start);
    window.Top = std::clamp(window.Top, area.Top, std::max(area.Top, area.Top + area.Height - kReach));
    return window;
}

ShownContent ShowInRoom(int width, int height, int roomWidth, int roomHeight, int bar) {
    ShownContent shown;
    shown.ScrollsDown = height > roomHeight;
    shown.ScrollsAcross = width + (shown.ScrollsDown ? bar : 0) > roomWidth;
    shown.ScrollsDown = height + (shown.ScrollsAcross ? bar : 0) > roomHeight;
    shown.Width = std::min(width + (shown.ScrollsDown ? bar : 0), roomWidth);
    shown.Height = std::min(height + (shown.ScrollsAcross ? bar : 0), roomHeight);
    return shown;
}

int PullAtEdge(int at, int begin, int length, int margin) {
    if (length <= 2 * margin) {
        return 0;
    }
    return at < begin + margin ? -1 : static_cast<int>(at >= begin + length - margin);
}

}  // namespace lv
