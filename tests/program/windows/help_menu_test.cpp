#include <gtest/gtest.h>

#include "tests/program/windows/program_run.h"
#include "tests/support/windows/own_pages.h"
#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

void PickWebSite(ProgramRun& program) {
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    PressKey('H', true);
    Sleep(300);
    for (const WORD key :
         std::initializer_list<WORD>{VK_UP, VK_UP, VK_RETURN}) {  // from below: about the program, its page
        PressKey(key);
        Sleep(100);
    }
}

}  // namespace

TEST(WebSite, ThatFailsToLoadIsTold) {
    WindowsHome home;
    home.Prepare();
    OwnPages own;
    WriteBytes(L"T:\\BROWSER.EXE", "no program at all");
    own.OpenWith(L"T:\\BROWSER.EXE");
    ProgramRun program;
    PickWebSite(program);
    const HWND box = program.WaitForWindow(L"Hmmmmmmm...");
    EXPECT_EQ(TextOfBox(box), L"The URL\r\nhttps://lorvane3d.example/\r\nfailed to load. Try again later.");
    EXPECT_NE(FindWindowExW(box, nullptr, L"Button", L"OK"), nullptr);
}

TEST(WebSite, WithoutABrowserIsTold) {
    WindowsHome home;
    home.Prepare();
    const OwnPages own;
    ProgramRun program;
    PickWebSite(program);
    const HWND box = program.WaitForWindow(L"Error Opening Browser");
    EXPECT_EQ(TextOfBox(box), L"The default browser (if there is one) could not be started.");
    EXPECT_NE(FindWindowExW(box, nullptr, L"Button", L"DOH!"), nullptr);
}

}  // namespace lv
