// foundation/window_services.h
//
// What all windows share: where they come up, the help file, the web page. Places and sizes are twips.

#pragma once

#include <vector>

#include "foundation/run.h"
#include "foundation/window_placement.h"

namespace lv {

constexpr int kTwipsPerPixel = 15;

constexpr double ToTwips(int pixels) {
    return static_cast<double>(pixels) * kTwipsPerPixel;
}
/// Rounded to the nearest pixel, and held within what a screen can have.
int ToPixels(double twips);

struct TwipsSize {
    double Width = 0;
    double Height = 0;
};

TwipsSize ScreenInTwips(Run& run);

/// Sets place and state from the section of the window's name. Without a stored place the window is centred; one that
/// begins beyond 0.95 of the screen's height or width, as it was left on a larger screen, is centred too. The size is
/// stored but not read: other means fix it. A place that was stored on a screen of another size is marked as such.
void LoadPlacement(Run& run, TextView formName, WindowPlacement& placement, TwipsSize screen);

/// Writes the state of a window that is not minimised, and place and size of one that is neither that nor maximised,
/// with the size of the screen that they belong to.
void SavePlacement(Run& run, TextView formName, const WindowPlacement& placement);

/// No clipping to the screen in either.
void CenterOnScreen(WindowPlacement& placement, TwipsSize screen);
void CenterOnOwner(WindowPlacement& placement, const WindowPlacement& owner);

/// Where the handbook comes up: where it was left, at first large in the middle of the screen.
WindowPlacement HandbookPlacement(Run& run);

/// The help files that are there, the first to be tried in front: manuals before handbooks, and of each the one in the
/// program's directory, in its usual one, in that of the game.
std::vector<Text> HelpFiles(Run& run);

/// Shows the first help file that this system can show, or tells what stood in the way.
void OpenHelpFile(Run& run);

/// Opens the address in the default browser, or tells what stood in the way.
void OpenWebPage(Run& run, TextView address);

}  // namespace lv
