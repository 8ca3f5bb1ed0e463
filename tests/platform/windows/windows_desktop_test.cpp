#include "platform/windows/windows_desktop.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

WindowHandle HandleOf(const OwnWindow& window) {
    return reinterpret_cast<std::uintptr_t>(window.Handle());
}

TopWindow Found(WindowsDesktop& desktop, WindowHandle handle) {
    const std::vector<TopWindow> windows = desktop.EnumWindows();
    const auto found =
        std::find_if(windows.begin(), windows.end(), [&](const TopWindow& w) { return w.Handle == handle; });
    return found == windows.end() ? TopWindow() : *found;
}

}  // namespace

TEST(WindowsDesktop, NamesEveryWindowWithItsClass) {
    WindowsDesktop desktop;
    const OwnWindow own(L"Afx:400000:8:10008:0:10d7", L"GameSpy 3D 2.20 \u20AC");
    const TopWindow found = Found(desktop, HandleOf(own));
    EXPECT_EQ(found.Title, "GameSpy 3D 2.20 \x80");
    EXPECT_EQ(found.Class, "Afx:400000:8:10008:0:10d7");
    EXPECT_TRUE(found.ClassKnown);
}

TEST(WindowsDesktop, NamesHiddenWindowsToo) {
    WindowsDesktop desktop;
    const OwnWindow own(L"QW Class", L"Hidden");
    ShowWindow(own.Handle(), SW_HIDE);
    EXPECT_EQ(Found(desktop, HandleOf(own)).Title, "Hidden");
}

TEST(WindowsDesktop, CutsALongTitleAndTellsItWhole) {
    WindowsDesktop desktop;
    const OwnWindow own(L"QW Class", std::wstring(400, L'x'));
    EXPECT_EQ(Found(desktop, HandleOf(own)).Title, std::string(254, 'x'));
    EXPECT_EQ(desktop.WindowTitle(HandleOf(own)), std::string(400, 'x'));
}

TEST(WindowsDesktop, HasNothingToSayOfAWindowThatIsGone) {
    WindowsDesktop desktop;
    WindowHandle gone = 0;
    {
        const OwnWindow own(L"QW Class", L"Gone");
        gone = HandleOf(own);
    }
    EXPECT_EQ(desktop.WindowTitle(gone), "");
    EXPECT_FALSE(desktop.IsIconic(gone));
    EXPECT_FALSE(desktop.SetForegroundWindow(gone));
    EXPECT_EQ(Found(desktop, gone).Handle, 0u);
}

TEST(WindowsDesktop, MinimisesAndBringsBack) {
    WindowsDesktop desktop;
    const OwnWindow own(L"QW Class", L"Icon");
    EXPECT_FALSE(desktop.IsIconic(HandleOf(own)));
    desktop.CloseWindow(HandleOf(own));
    EXPECT_TRUE(desktop.IsIconic(HandleOf(own)));
    EXPECT_NE(IsWindow(own.Handle()), 0);
    desktop.OpenIcon(HandleOf(own));
    EXPECT_FALSE(desktop.IsIconic(HandleOf(own)));
}

TEST(WindowsDesktop, BringsAWindowToTheFront) {
    WindowsDesktop desktop;
    const OwnWindow first(L"QW Class", L"First");
    const OwnWindow second(L"Afx:1", L"Second");
    EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == second.Handle(); }));
    Sleep(500);  // a window manager may have its own say about a new window
    EXPECT_TRUE(desktop.SetForegroundWindow(HandleOf(first)));
    EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == first.Handle(); }));
    EXPECT_TRUE(desktop.SetForegroundWindow(HandleOf(second)));
    EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == second.Handle(); }));
}

TEST(SendKeys, ReturnsWhenTheKeysWereTaken) {
    WindowsDesktop desktop;
    OwnWindow own(L"QW Class", L"Keys");
    ASSERT_TRUE(desktop.SetForegroundWindow(HandleOf(own)));
    ASSERT_TRUE(WaitUntil([&] { return GetForegroundWindow() == own.Handle(); }));
    EXPECT_EQ(desktop.SendKeys("c").Number, 0);
    EXPECT_EQ(own.Typed(), L"c");
    EXPECT_EQ(desktop.SendKeys("%s").Number, 0);
    EXPECT_EQ(own.Typed(), L"c%s");
    EXPECT_EQ(desktop.SendKeys("1z").Number, 0);
    EXPECT_EQ(own.Typed(), L"c%s1z");
}

TEST(SendKeys, HoldsControlAndShift) {
    WindowsDesktop desktop;
    OwnWindow own(L"QW Class", L"Held keys");
    ASSERT_TRUE(desktop.SetForegroundWindow(HandleOf(own)));
    ASSERT_TRUE(WaitUntil([&] { return GetForegroundWindow() == own.Handle(); }));
    EXPECT_EQ(desktop.SendKeys("+sc^c").Number, 0);
    EXPECT_EQ(own.Typed(), L"Sc\x03");
    EXPECT_EQ(desktop.SendKeys("c").Number, 0);
    EXPECT_EQ(own.Typed(),
              L"Sc\x03"
              L"c");
}

TEST(SendKeys, RefusesWhatIsNotInTheNotation) {
    WindowsDesktop desktop;
    for (const char* const keys : {"%", "a%", "{ENTER}", " ", "%%a", "\xE9"}) {
        EXPECT_EQ(desktop.SendKeys(keys).Number, 5) << keys;
    }
    EXPECT_EQ(desktop.SendKeys("").Number, 0);
}

}  // namespace lv
