#include <gtest/gtest.h>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"

namespace lv {

namespace {

/// The middle of the program's icon in the tray: the child window that the tray has taken in.
bool FindIcon(int process, Rectangle& icon) {
    return WaitUntil([&] {
        for (const std::string& window : ShownWindowsOf(process, "^lorvane3d$")) {
            const Rectangle place = PlaceOf(window);
            if (place.Width > 4 && place.Width < 64 && place.Height > 4 && place.Height < 64) {
                icon = place;
                return true;
            }
        }
        return false;
    });
}

void ClickOn(const Rectangle& place, int button) {
    Click(place.Left + place.Width / 2, place.Top + place.Height / 2, button);
}

/// Windows that no window manager has, as menus are.
std::size_t CountMenus(int process) {
    std::size_t count = 0;
    for (const std::string& window : ShownWindowsOf(process, "")) {
        const std::string type = OutputOf({"xprop", "-id", window, "_NET_WM_WINDOW_TYPE"});
        count += type.find("_MENU") != std::string::npos ? 1 : 0;
    }
    return count;
}

TEST(Tray, TakesTheWindowWhenItIsClosedAndGivesItBackOnALeftClick) {
    ProgramHome home("tray_left");
    home.Prepare();
    const OwnProcess tray(home, kTrayHost);
    ASSERT_TRUE(WaitForTrayHost());
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    Rectangle icon;
    ASSERT_TRUE(FindIcon(program.Id(), icon));
    KeepScreenshot("tray_icon");
    ASSERT_TRUE(Activate(window));
    PressKey("alt+F4");
    EXPECT_TRUE(WaitUntil([&] { return StateOf(window) == "Withdrawn"; }));
    EXPECT_TRUE(program.IsRunning());
    ClickOn(icon, 1);
    EXPECT_TRUE(WaitUntil([&] { return IsShown(window) && ActiveWindow() == window; }));
    EXPECT_EQ(program.EndByF12(), 0);
}

TEST(Tray, RaisesACoveredWindowOnALeftClick) {
    ProgramHome home("tray_raise");
    home.Prepare();
    const OwnProcess tray(home, kTrayHost);
    ASSERT_TRUE(WaitForTrayHost());
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    Rectangle icon;
    ASSERT_TRUE(FindIcon(program.Id(), icon));
    const OwnProcess cover(home, {"xterm", "-geometry", "100x40+0+0", "-T", "Cover", "-e", "sleep", "60"});
    ASSERT_TRUE(WaitUntil([&] { return !ActiveWindow().empty() && ActiveWindow() != window; }));
    ClickOn(icon, 1);
    EXPECT_TRUE(WaitUntil([&] { return ActiveWindow() == window; }));
}

TEST(Tray, PopsUpTheFileMenuOnARightClick) {
    ProgramHome home("tray_right");
    home.Prepare();
    const OwnProcess tray(home, kTrayHost);
    ASSERT_TRUE(WaitForTrayHost());
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    Rectangle icon;
    ASSERT_TRUE(FindIcon(program.Id(), icon));
    ASSERT_EQ(CountMenus(program.Id()), 0U);
    ClickOn(icon, 3);
    EXPECT_TRUE(WaitUntil([&] { return CountMenus(program.Id()) == 1; }));
    KeepScreenshot("tray_menu");
    PressKey("x");  // "E&xit"
    EXPECT_EQ(program.WaitForEnd(3000), 0);
}

TEST(Tray, PopsUpTheFileMenuOfAHiddenWindow) {
    ProgramHome home("tray_right_hidden");
    home.Prepare();
    const OwnProcess tray(home, kTrayHost);
    ASSERT_TRUE(WaitForTrayHost());
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    Rectangle icon;
    ASSERT_TRUE(FindIcon(program.Id(), icon));
    ASSERT_TRUE(Activate(window));
    PressKey("alt+F4");
    ASSERT_TRUE(WaitUntil([&] { return StateOf(window) == "Withdrawn"; }));
    ClickOn(icon, 3);
    EXPECT_TRUE(WaitUntil([&] { return CountMenus(program.Id()) == 1; }));
    KeepScreenshot("tray_menu_hidden");
    PressKey("s");  // "&Show Lorvane 3D"
    EXPECT_TRUE(WaitUntil([&] { return IsShown(window); }));
}

TEST(NoTray, ClosingTakesTheWindowToTheTaskBarAndActivatingBringsItBack) {
    ProgramHome home("no_tray");
    home.Prepare();
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey("alt+F4");
    EXPECT_TRUE(WaitUntil([&] { return StateOf(window) == "Iconic"; }));
    EXPECT_FALSE(IsShown(window));
    EXPECT_TRUE(Activate(window));
    EXPECT_TRUE(WaitUntil([&] { return IsShown(window) && StateOf(window) == "Normal"; }));
    EXPECT_EQ(program.EndByF12(), 0);
}

}  // namespace

}  // namespace lv
