// foundation/screen_fit.h
//
// Windows and the part of the screen that is free for them: how large one may be, and where it may stand. Pixels.

#pragma once

namespace lv {

struct ScreenRect {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;

    bool operator==(const ScreenRect&) const = default;
};

/// The window, no larger than the area and wholly in it.
ScreenRect WithinArea(ScreenRect window, ScreenRect area);

/// The window where its user left it, partly off the area too, but no larger than the area, and never so that its title
/// bar is out of the mouse's reach.
ScreenRect WithinReach(ScreenRect window, ScreenRect area);

/// How much of its content a window shows.
struct ShownContent {
    int Width = 0;
    int Height = 0;
    bool ScrollsAcross = false;
    bool ScrollsDown = false;

    bool operator==(const ShownContent&) const = default;
};

/// All of it where there is room; else what there is room for, with a scroll bar, `bar` wide, for each way that is cut.
ShownContent ShowInRoom(int width, int height, int roomWidth, int roomHeight, int bar);

/// Whither a pointer at `at` pulls what scrolls, during a drag: -1 near its begin or before it, 1 near its end or
/// behind it, 0 elsewhere, and where it is too short to have a middle.
int PullAtEdge(int at, int begin, int length, int margin);

}  // namespace lv
