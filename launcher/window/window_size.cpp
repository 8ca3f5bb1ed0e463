#include "launcher/window/window_size.h"

#include "foundation/screen_fit.h"
#include "foundation/settings.h"
#include "launcher/launcher.h"
#include "launcher/window/window_life.h"

namespace lv {

namespace {

constexpr double kBigFrameShare = 0.25;
constexpr double kSmallFrameDivisor = 4.85;
constexpr double kCommandFactor = 1.04;
constexpr double kButtonFactor = 1.05;

struct ModeRow {
    MenuItem Check;
    const char* Word;
};

constexpr ModeRow kModes[] = {
    {MenuItem::ShowAll_Bar_0, "Yes"},
    {MenuItem::ShowAll_Bar_1, "No"},
    {MenuItem::ShowAll_Bar_2, "Hell-No"},
};

const ModeRow& RowOf(WindowSizeMode mode) {
    return kModes[static_cast<std::size_t>(mode)];
}

void Check(LV_Frm& window, WindowSizeMode mode) {
    window.SizeMode = mode;
    for (const ModeRow& row : kModes) {
        window.Bar(row.Check).Checked = &row == &RowOf(mode);
    }
}

void Measure(Launcher& launcher) {
    LV_Frm& window = launcher.Window;
    if (!launcher.Measure) {
        return;
    }
    window.Size = MainWindowSize(window.SizeMode, launcher.Measure());
    window.Placement.Width = ToTwips(window.Size.Width);
    window.Placement.Height = ToTwips(window.Size.Height);
}

}  // namespace

PixelSize MainWindowSize(WindowSizeMode mode, const WindowMeasures& measured) {
    const bool big = mode == WindowSizeMode::All;
    const double frame = measured.FrameHeight;
    const double height = (big ? measured.OtherOptsBottom : measured.ExeBottom) + frame +
                          (big ? frame * kBigFrameShare : frame / kSmallFrameDivisor);
    const double inner = mode == WindowSizeMode::ButtonsOnly ? measured.LastButtonRight * kButtonFactor
                                                             : measured.CommandRight * kCommandFactor;
    const PixelSize whole = {static_cast<int>(inner + measured.FrameWidth), static_cast<int>(height)};
    if (measured.RoomWidth <= 0 || measured.RoomHeight <= 0) {
        return whole;
    }
    const ShownContent shown =
        ShowInRoom(whole.Width, whole.Height, measured.RoomWidth, measured.RoomHeight, measured.BarWidth);
    return {shown.Width, shown.Height};
}

ShownParts PartsOf(WindowSizeMode mode) {
    const bool panels = mode != WindowSizeMode::ButtonsOnly;
    return {true, panels, panels, mode == WindowSizeMode::All};
}

const char* ShowAllWord(WindowSizeMode mode) {
    return RowOf(mode).Word;
}

WindowSizeMode ModeOfWord(TextView word) {
    if (word == "Yes") {
        return WindowSizeMode::All;
    }
    return word == "No" ? WindowSizeMode::Some : WindowSizeMode::ButtonsOnly;
}

void BigSize(Launcher& launcher) {
    SizeTo(launcher, WindowSizeMode::All);
}
void LittleSize(Launcher& launcher) {
    SizeTo(launcher, WindowSizeMode::Some);
}
void MiniSize(Launcher& launcher) {
    SizeTo(launcher, WindowSizeMode::ButtonsOnly);
}

void SizeTo(Launcher& launcher, WindowSizeMode mode) {
    LV_Frm& window = launcher.Window;
    window.SizeChanging = true;
    Check(window, mode);
    launcher.run.User.Refresh();  // what the mode shows is there before it is measured
    Measure(launcher);
    launcher.run.User.Refresh();
    window.SizeChanging = false;
    window.Remembered = window.Size;
    Save(launcher.run, kOptions, "ShowAll", ShowAllWord(mode));
}

void ShowAll_Bar_Click(Launcher& launcher, int index) {
    SizeTo(launcher, static_cast<WindowSizeMode>(index));
}

void NextSize(Launcher& launcher) {
    switch (launcher.Window.SizeMode) {
        case WindowSizeMode::All:
            LittleSize(launcher);
            return;
        case WindowSizeMode::Some:
            MiniSize(launcher);
            return;
        case WindowSizeMode::ButtonsOnly:
            BigSize(launcher);
            return;
    }
}

void LV_Frm_Resize(Launcher& launcher, int windowState, PixelSize now) {
    LV_Frm& window = launcher.Window;
    window.Placement.WindowState = windowState;
    if (windowState == kWindowMinimised) {
        // Under a dialog the window stays: hiding takes along the live window that the dialog may stand over.
        if (launcher.run.Topmost.Nesting == 0) {
            HideMainWindow(launcher);
        }
        return;
    }
    if (launcher.run.MainFormLoaded && window.EverShown && !window.Visible) {
        ShowMainWindow(launcher);
    }
    if (!window.SizeChanging && now != window.Remembered) {
        window.Size_Tmr_Enabled = true;
    }
}

void Size_Tmr_Timer(LV_Frm& window, PixelSize now) {
    window.Size = window.Remembered;
    window.Size_Tmr_Enabled = now != window.Remembered;
}

}  // namespace lv
