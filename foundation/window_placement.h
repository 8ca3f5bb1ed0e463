// foundation/window_placement.h
//
// Where a window stands. Places and sizes are twips, 15 to the pixel, as they are stored.

#pragma once

#include <functional>

namespace lv {

constexpr int kWindowNormal = 0;
constexpr int kWindowMinimised = 1;
constexpr int kWindowMaximised = 2;

struct WindowPlacement {
    double Top = 0;
    double Left = 0;
    double Height = 0;
    double Width = 0;
    int WindowState = kWindowNormal;
    bool LeftElsewhere = false;  // on a screen of another size
};

/// Where a window is to come up that lives beside the others, and who is told where it was left.
struct HelpPlace {
    WindowPlacement Placement;
    std::function<void(const WindowPlacement&)> Keep;
};

}  // namespace lv
