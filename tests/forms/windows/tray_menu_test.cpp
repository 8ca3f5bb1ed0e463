// The menu at the tray's icon: the foreground is Windows' own matter.

#include <gtest/gtest.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <functional>

#include "platform/windows/system.h"
#include "tests/forms/lv_form_fixture.h"

namespace lv {
namespace {

constexpr int kMenuMilliseconds = 400;

/// An open menu keeps all messages to itself: what is done in it has to come from a timer.
struct InTheMenu : wxTimer {
    explicit InTheMenu(std::function<void()> act) : Act(std::move(act)) { StartOnce(kMenuMilliseconds); }
    void Notify() override { Act(); }
    std::function<void()> Act;
};

bool HasForeground() {
    DWORD process = 0;
    GetWindowThreadProcessId(GetForegroundWindow(), &process);
    return process == GetCurrentProcessId();
}

bool MenuIsUp() {
    GUITHREADINFO now{};
    now.cbSize = sizeof now;
    return GetGUIThreadInfo(GetCurrentThreadId(), &now) != 0 && (now.flags & GUI_INMENUMODE) != 0;
}

/// What was so while the menu was up, before the click beside it.
struct Seen {
    bool Menu = false;
    bool Foreground = false;
};

Seen ClickBesideTheTraysMenu(Launcher& launcher) {
    Seen seen;
    wxUIActionSimulator mouse;
    mouse.MouseMove(100, 100);  // there the menu comes up
    Settle();
    InTheMenu hand([&] {
        seen = {MenuIsUp(), HasForeground()};
        mouse.MouseMove(1000, 700);
        mouse.MouseClick();
    });
    Tray_Click(launcher, kTrayRightButtonUp);
    return seen;
}

TEST_F(LvForm_, TheTraysMenuOfAHiddenWindowGoesOnAClickElsewhere) {
    HideMainWindow(launcher);
    ASSERT_TRUE(SettleUntil([this] { return !form->IsShown() && !HasForeground(); }));
    const Seen seen = ClickBesideTheTraysMenu(launcher);
    EXPECT_TRUE(seen.Menu);
    EXPECT_TRUE(seen.Foreground);
    EXPECT_FALSE(MenuIsUp());
    EXPECT_FALSE(form->IsShown());
}

TEST_F(LvForm_, TheTraysMenuOfAShownWindowGoesOnAClickElsewhere) {
    SetForegroundWindow(GetDesktopWindow());
    ASSERT_TRUE(SettleUntil([] { return !HasForeground(); }));
    const Seen seen = ClickBesideTheTraysMenu(launcher);
    EXPECT_TRUE(seen.Menu);
    EXPECT_TRUE(seen.Foreground);
    EXPECT_FALSE(MenuIsUp());
    EXPECT_TRUE(form->IsShown());
}

TEST_F(LvForm_, TheTraysMenuOfAHiddenWindowShowsItAgain) {
    HideMainWindow(launcher);
    ASSERT_TRUE(SettleUntil([this] { return !form->IsShown(); }));
    InTheMenu hand([] {
        wxUIActionSimulator keys;
        keys.Char('s');  // "&Show Lorvane 3D"
    });
    Tray_Click(launcher, kTrayRightButtonUp);
    EXPECT_TRUE(SettleUntil([this] { return form->IsShownOnScreen(); }));
}

TEST_F(LvForm_, TheTraysMenuOfAHiddenWindowEndsTheProgram) {
    HideMainWindow(launcher);
    ASSERT_TRUE(SettleUntil([this] { return !form->IsShown(); }));
    InTheMenu hand([] {
        wxUIActionSimulator keys;
        keys.Char('x');  // "E&xit"
    });
    Tray_Click(launcher, kTrayRightButtonUp);
    EXPECT_TRUE(SettleUntil([this] { return run.Ended; }));
}

}  // namespace
}  // namespace lv
