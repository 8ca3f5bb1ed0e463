// launcher/window/window_size.h
//
// The three sizes of the main window. The program chooses them; a size that the user drags is put back.

#pragma once

#include "foundation/text.h"

namespace lv {

struct Launcher;
struct LV_Frm;

constexpr int kSizeTimerMilliseconds = 2000;

enum class WindowSizeMode { All = 0, Some = 1, ButtonsOnly = 2 };

struct PixelSize {
    int Width = 0;
    int Height = 0;

    bool operator==(const PixelSize&) const = default;
};

/// What the form measures, in pixels, from the window's inner top left corner.
struct WindowMeasures {
    int OtherOptsBottom = 0;  // of OtherOpts_Pan
    int ExeBottom = 0;        // of Exe_Pan
    int CommandRight = 0;     // of Command_Pan
    int LastButtonRight = 0;  // of ButtonBar_Cmd(8)
    int FrameHeight = 0;      // the window's height less its inner height
    int FrameWidth = 0;
    int RoomWidth = 0;  // of the screen's work area; 0: any
    int RoomHeight = 0;
    int BarWidth = 0;  // of a scroll bar
};

/// The window's outer size: never more than the room, with a scroll bar for each way that is cut.
PixelSize MainWindowSize(WindowSizeMode mode, const WindowMeasures& measured);

/// What a mode shows.
struct ShownParts {
    bool ButtonBar = true;
    bool Exe = true;      // Exe_Pan
    bool Command = true;  // Command_Pan
    bool Others = true;   // all other panels
};
ShownParts PartsOf(WindowSizeMode mode);

/// The word that is stored for a mode: "Yes", "No", "Hell-No"; any other word reads as the last.
const char* ShowAllWord(WindowSizeMode mode);
WindowSizeMode ModeOfWord(TextView word);

/// Sets mode, check marks and size, and writes the word.
void BigSize(Launcher& launcher);
void LittleSize(Launcher& launcher);
void MiniSize(Launcher& launcher);
void SizeTo(Launcher& launcher, WindowSizeMode mode);

/// ShowAll_Bar(0) to (2).
void ShowAll_Bar_Click(Launcher& launcher, int index);
/// All, some, buttons only, and round.
void NextSize(Launcher& launcher);

/// The form's size or state changed; `windowState` as in WindowPlacement. Minimising hides the window; any other
/// state shows a hidden one again once it is loaded. A size that the program did not set starts Size_Tmr.
void LV_Frm_Resize(Launcher& launcher, int windowState, PixelSize now);

/// Puts the remembered size back; stops itself once `now`, the form's size, is that size.
void Size_Tmr_Timer(LV_Frm& window, PixelSize now);

}  // namespace lv
