#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "tests/program/windows/program_run.h"
#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

using ::testing::HasSubstr;

constexpr const wchar_t* kSetupTitle = L"Lorvane 3D Setup";
constexpr const wchar_t* kOurKey = L"\"HKCU\\Software\\VB and VBA Program Settings\\Lorvane 3D";

// What the window answers to a message that the system sends when the session ends.
std::optional<DWORD_PTR> Ask(HWND window, UINT message, WPARAM first) {
    DWORD_PTR answer = 0;
    const LRESULT sent =
        SendMessageTimeoutW(window, message, first, static_cast<LPARAM>(ENDSESSION_LOGOFF), SMTO_BLOCK, 5000, &answer);
    return sent != 0 ? std::optional(answer) : std::nullopt;
}

}  // namespace

TEST(Lifecycle, ShowsTheSplashAndThenTheWindow) {
    WindowsHome home;
    home.Prepare();
    ProgramRun program;
    EXPECT_NE(program.WaitForWindow(kPlainTitle), nullptr);
    EXPECT_EQ(program.ShownWindow(), nullptr);
    EXPECT_NE(program.WaitForWindow(), nullptr);
    EXPECT_TRUE(WaitUntil([&] { return program.ShownWindow(kPlainTitle) == nullptr; }));
}

// The splash goes by itself after fifteen seconds; a box lies above it.
TEST(Lifecycle, WaitsForTheAnswerToAQuestionOfItsStart) {
    WindowsHome home;
    home.Prepare();
    home.Set("Options", "Executables", "Quake;t:\\gone\\quake.exe");
    ProgramRun program;
    ASSERT_NE(program.WaitForWindow(L"Game Not Found..."), nullptr);
    ASSERT_TRUE(WaitUntil([&] { return program.ShownWindow(kPlainTitle) == nullptr; }, 30000));
    ASSERT_TRUE(program.ActivateShown(L"Game Not Found..."));
    PressKey('G', true);
    EXPECT_NE(program.WaitForWindow(), nullptr);
}

TEST(Lifecycle, EndsByF12WithItsStateInTheRegistry) {
    WindowsHome home;
    home.Prepare();
    ProgramRun program;
    EXPECT_EQ(program.EndByF12(), 0u);
    const std::string stuff = OutputOf(L"reg query " + std::wstring(kOurKey) + L"\\LV-Stuff\" /v RunCount");
    EXPECT_THAT(stuff, ::testing::ContainsRegex("RunCount +REG_SZ +1")) << stuff;
    const std::string place = OutputOf(L"reg query " + std::wstring(kOurKey) + L"\\LV_Frm\"");
    for (const char* const key : {"Top", "Left", "Height", "Width", "WindowState"}) {
        EXPECT_THAT(place, ::testing::ContainsRegex(std::string(key) + " +REG_SZ +\\d+")) << place;
    }
}

TEST(Lifecycle, CountsEveryRun) {
    WindowsHome home;
    home.Prepare();
    for (int run = 0; run < 2; ++run) {
        ProgramRun program;
        EXPECT_EQ(program.EndByF12(), 0u);
    }
    EXPECT_EQ(home.Get("LV-Stuff", "RunCount"), "2");
}

TEST(Lifecycle, ReadsWhatRegWrote) {
    WindowsHome home;
    home.Prepare();
    OutputOf(L"reg add " + std::wstring(kOurKey) + L"\\LV-Stuff\" /v RunCount /t REG_SZ /d 41 /f");
    ProgramRun program;
    EXPECT_EQ(program.EndByF12(), 0u);
    EXPECT_EQ(home.Get("LV-Stuff", "RunCount"), "42");
}

TEST(Lifecycle, LetsTheSessionEnd) {
    WindowsHome home;
    home.Prepare();
    home.Set("Options", "ShowAll", "No");
    ProgramRun program;
    HWND window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    SetWindowPos(window, nullptr, 40, 250, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    ASSERT_TRUE(WaitUntil([&] { return PlaceOf(window).left == 40 && PlaceOf(window).top == 250; }));
    EXPECT_EQ(Ask(window, WM_QUERYENDSESSION, 0), 1u);
    EXPECT_NE(IsWindowVisible(window), 0);
    Ask(window, WM_ENDSESSION, FALSE);  // somebody else wanted to stay
    EXPECT_FALSE(program.WaitForEnd(1000));
    EXPECT_EQ(home.Get("LV_Frm", "Left"), "(none)");
    EXPECT_EQ(Ask(window, WM_QUERYENDSESSION, 0), 1u);
    Ask(window, WM_ENDSESSION, TRUE);
    // What is kept is kept when the message is answered: the system waits no longer.
    EXPECT_EQ(home.Get("LV_Frm", "Left"), "600");
    EXPECT_EQ(home.Get("LV_Frm", "Top"), "3750");
    EXPECT_EQ(home.Get("VideoProfile_Frm", "LoadAtStartup"), "0");
    EXPECT_EQ(program.WaitForEnd(), 0u);
}

TEST(Lifecycle, LetsTheSessionEndFromTheTray) {
    WindowsHome home;
    home.Prepare();
    ProgramRun program;
    HWND window = program.WaitForWindow();
    PostMessageW(window, WM_CLOSE, 0, 0);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowVisible(window) == 0; }));
    EXPECT_EQ(Ask(window, WM_QUERYENDSESSION, 0), 1u);
    Ask(window, WM_ENDSESSION, TRUE);
    EXPECT_NE(home.Get("LV_Frm", "Left"), "(none)");
    EXPECT_EQ(program.WaitForEnd(), 0u);
}

TEST(FirstRun, FindsTheGameByItsSearchAndF2LaunchesIt) {
    WindowsHome home;
    home.MakeGame();
    ProgramRun program;
    ASSERT_TRUE(Activate(program.WaitForWindow(kSetupTitle)));
    PressKey(VK_RETURN);
    ASSERT_TRUE(Activate(program.WaitForWindow(L"Verify Setup Information")));
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return program.ShownWindow(L"Verify Setup Information") == nullptr; }));
    ASSERT_TRUE(program.ActivateShown(kSetupTitle));  // the first window of that title may still be going
    PressKey(VK_SPACE);                               // ticks the first game, Quake
    Sleep(300);
    PressKey('D', true);  // "&Do An Auto-Search"
    Sleep(300);
    PressKey('O', true);  // "&OK"
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    EXPECT_EQ(home.Get("LV-Stuff", "FirstTime"), "0");
    EXPECT_THAT(home.Get("Options", "Executables"), HasSubstr("t:\\quake\\quake.exe"));
    PressKey(VK_F2);
    EXPECT_FALSE(WindowsHome::GameSaid().empty());
}

TEST(FirstRun, FindsAGameInADirectoryBeyondTheCodePageAndF2LaunchesIt) {
    WindowsHome home;
    home.MakeGame();
    const std::wstring games = L"T:\\Games\\\u0438\u0433\u0440\u044B";
    ASSERT_NE(CreateDirectoryW(L"T:\\Games", nullptr), 0);
    ASSERT_NE(CreateDirectoryW(games.c_str(), nullptr), 0);
    WriteBytes(L"T:\\QUAKE\\ID1\\PAK0.PAK", "PACK");
    ASSERT_NE(MoveFileW(L"T:\\QUAKE", (games + L"\\QUAKE").c_str()), 0);
    ProgramRun program;
    ASSERT_TRUE(Activate(program.WaitForWindow(kSetupTitle)));
    PressKey(VK_RETURN);
    ASSERT_TRUE(Activate(program.WaitForWindow(L"Verify Setup Information")));
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return program.ShownWindow(L"Verify Setup Information") == nullptr; }));
    ASSERT_TRUE(program.ActivateShown(kSetupTitle));
    Sleep(300);
    PressKey('O', true);  // "&OK": the look around has ticked Quake
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    EXPECT_THAT(home.Get("Options", "Executables"), ::testing::ContainsRegex("t:.games..+~.+.quake.quake.exe"));
    PressKey(VK_F2);
    EXPECT_THAT(LinesAfter(WindowsHome::GameSaid(games + L"\\QUAKE"), "DIRECTORY="),
                ::testing::ElementsAre(::testing::ContainsRegex("~.*QUAKE")));
}

TEST(FirstRun, StaysAFirstRunWhenItIsCancelled) {
    WindowsHome home;
    ProgramRun program;
    ASSERT_TRUE(Activate(program.WaitForWindow(kSetupTitle)));
    PressKey(VK_ESCAPE);
    HWND box = nullptr;
    ASSERT_TRUE(WaitUntil([&] {
        box = GetForegroundWindow();
        wchar_t title[32] = L"";
        GetWindowTextW(box, title, 32);
        return std::wstring(title) == kPlainTitle && FindWindowExW(box, nullptr, L"Button", L"&OK") != nullptr;
    }));
    PressKey('O', true);
    EXPECT_EQ(program.WaitForEnd(), 0u);
    EXPECT_EQ(home.Get("LV-Stuff", "FirstTime"), "(none)");
}

TEST(Placement, IsTheOneOfTheLastRun) {
    WindowsHome home;
    home.Prepare();
    home.Set("Options", "ShowAll", "No");
    RECT left{};
    {
        ProgramRun first;
        HWND window = first.WaitForWindow();
        ASSERT_TRUE(Activate(window));
        SetWindowPos(window, nullptr, 40, 250, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        ASSERT_TRUE(WaitUntil([&] { return PlaceOf(window).left == 40 && PlaceOf(window).top == 250; }));
        left = PlaceOf(window);
        ASSERT_EQ(first.EndByF12(), 0u);
    }
    EXPECT_EQ(home.Get("LV_Frm", "Left"), "600");
    EXPECT_EQ(home.Get("LV_Frm", "Top"), "3750");
    ProgramRun second;
    HWND window = second.WaitForWindow();
    EXPECT_TRUE(WaitUntil([&] {
        const RECT place = PlaceOf(window);
        return EqualRect(&place, &left) != FALSE;
    })) << PlaceOf(window).left
        << ", " << PlaceOf(window).top << ", " << PlaceOf(window).right << ", " << PlaceOf(window).bottom;
}

TEST(Placement, DoesNotWanderFromRunToRun) {
    WindowsHome home;
    home.Prepare();
    home.Set("Options", "ShowAll", "No");
    home.Set("LV_Frm", "Left", "750");
    home.Set("LV_Frm", "Top", "4500");
    for (int run = 0; run < 3; ++run) {
        ProgramRun program;
        ASSERT_EQ(program.EndByF12(), 0u);
        EXPECT_EQ(home.Get("LV_Frm", "Left"), "750");
        EXPECT_EQ(home.Get("LV_Frm", "Top"), "4500");
    }
}

TEST(SecondInstance, BringsAMinimisedWindowBack) {
    WindowsHome home;
    home.Prepare();
    ProgramRun first;
    HWND window = first.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    CloseWindow(window);
    ASSERT_TRUE(WaitUntil([&] { return IsIconic(window) != 0; }));
    ProgramRun second;
    EXPECT_EQ(second.WaitForEnd(), 0u);
    EXPECT_TRUE(WaitUntil([&] { return IsIconic(window) == 0 && GetForegroundWindow() == window; }));
    EXPECT_EQ(first.EndByF12(), 0u);
    EXPECT_EQ(home.Get("LV-Stuff", "RunCount"), "1");
}

TEST(SecondInstance, BringsAWindowBackFromTheTray) {
    WindowsHome home;
    home.Prepare();
    ProgramRun first;
    HWND window = first.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PostMessageW(window, WM_CLOSE, 0, 0);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowVisible(window) == 0; }));
    EXPECT_TRUE(first.IsRunning());
    ProgramRun second;
    EXPECT_EQ(second.WaitForEnd(), 0u);
    EXPECT_TRUE(WaitUntil([&] { return IsWindowVisible(window) != 0 && GetForegroundWindow() == window; }));
    // The program itself knows that it is shown: another close hides it again.
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitUntil([&] { return IsWindowVisible(window) == 0; }));
}

TEST(SecondInstance, IsNotKeptFromStartingByOneThatWasKilled) {
    WindowsHome home;
    home.Prepare();
    ProgramRun first;
    ASSERT_NE(first.WaitForWindow(), nullptr);
    first.Kill();
    ProgramRun second;
    EXPECT_EQ(second.EndByF12(), 0u);
}

}  // namespace lv
