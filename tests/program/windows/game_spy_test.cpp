#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/windows/wide_text.h"
#include "tests/program/windows/program_run.h"
#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

using ::testing::Contains;
using ::testing::ContainsRegex;

constexpr const wchar_t* kSpyClass = L"Afx:400000:8:10008:0:0";
constexpr const wchar_t* kFetchTitle = L"Error Getting GameSpy Data";

std::wstring StandIn() {
    const std::wstring built = BuiltProgram();
    return built.substr(0, built.rfind(L'\\')) + L"\\standins\\game_spy.exe";
}

HWND SpyWindow() {
    const HWND window = FindWindowW(kSpyClass, nullptr);
    return IsWindowVisible(window) != 0 ? window : nullptr;
}

/// The stand-in for GameSpy 3D with its window open; gone when this goes.
class GameSpy {
  public:
    GameSpy(const std::wstring& title, std::string_view copied) {
        WriteBytes(L"T:\\copied.txt", copied);
        std::wstring line = L"\"" + StandIn() + L"\" \"" + title + L"\" T:\\copied.txt";
        STARTUPINFOW how{};
        how.cb = sizeof how;
        EXPECT_NE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &process_),
                  0);
        EXPECT_TRUE(WaitUntil([] { return SpyWindow() != nullptr; })) << "the stand-in did not come up";
    }
    ~GameSpy() {
        TerminateProcess(process_.hProcess, 0);
        WaitForSingleObject(process_.hProcess, 10000);
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }
    GameSpy(const GameSpy&) = delete;
    GameSpy& operator=(const GameSpy&) = delete;

  private:
    PROCESS_INFORMATION process_{};
};

/// A Quake that joins the server that GameSpy shows.
void PrepareToJoin(WindowsHome& home) {
    home.Prepare();
    MoveFileW(L"T:\\QUAKE\\QUAKE.EXE", L"T:\\QUAKE\\GLQUAKE.EXE");
    home.Set("Options", "Executables", "Quake;t:\\quake\\glquake.exe");
    home.Set("Options", "UseDemos", "0");
    home.Set("Options", "Qspy", "1");
}

void PressLaunch(ProgramRun& program) {
    const HWND window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    // What the window manager says of the focus may be late, and would take it from GameSpy 3D again.
    Sleep(2000);
    ASSERT_TRUE(Activate(window));
    PressKey(VK_F2);
}

void ExpectJoined(ProgramRun& program, const std::string& server) {
    const std::string call = "connect " + server + "\r\n";
    EXPECT_TRUE(WaitUntil([&] { return BytesOf(L"T:\\QUAKE\\ID1\\lv_666.qs") == call; }, 20000))
        << FromWideLossy(TextOfBox(program.ShownWindow(kFetchTitle)));
    EXPECT_THAT(LinesAfter(WindowsHome::GameSaid(), "ARGUMENT="), Contains("lv_666.qs"));
}

void ExpectNoAddressIn(std::string_view copied) {
    WindowsHome home;
    PrepareToJoin(home);
    const GameSpy spy(L"GameSpy 3D 2.20", copied);
    ProgramRun program;
    PressLaunch(program);
    const HWND box = program.WaitForWindow(kFetchTitle);
    ASSERT_TRUE(Activate(box));
    EXPECT_EQ(TextOfBox(box), L"Could not assemble IP address from data");
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitUntil([&] { return program.ShownWindow(kFetchTitle) == nullptr; }));
    EXPECT_EQ(program.EndByF12(), 0u);
    EXPECT_EQ(BytesOf(L"T:\\QUAKE\\ID1\\lv_666.qs"), "(none)");
    EXPECT_EQ(BytesOf(L"T:\\QUAKE\\output.txt"), "(none)");
}

}  // namespace

TEST(GameSpy, TheServerInItsWindowIsJoined) {
    WindowsHome home;
    PrepareToJoin(home);
    const GameSpy spy(L"GameSpy 3D 2.20", "43      10.0.0.1        27500 Home");
    ProgramRun program;
    PressLaunch(program);
    ExpectJoined(program, "10.0.0.1:27500");
    EXPECT_EQ(IsIconic(SpyWindow()), 0);
}

TEST(GameSpy, TheServerInTheWindowOfVersionOneIsJoined) {
    WindowsHome home;
    PrepareToJoin(home);
    const GameSpy spy(L"[UNREGISTERED] GameSpy 3D 1.52", "10.0.0.2:7777");
    ProgramRun program;
    PressLaunch(program);
    ExpectJoined(program, "10.0.0.2:7777");
}

TEST(GameSpy, AnIconicWindowGoesBackToItsIcon) {
    WindowsHome home;
    PrepareToJoin(home);
    const GameSpy spy(L"GameSpy 3D 2.20", "43      10.0.0.3        27501 Away");
    const HWND window = SpyWindow();
    CloseWindow(window);
    ASSERT_TRUE(WaitUntil([&] { return IsIconic(window) != 0; }));
    ProgramRun program;
    PressLaunch(program);
    ExpectJoined(program, "10.0.0.3:27501");
    EXPECT_NE(IsIconic(window), 0);
}

TEST(GameSpy, AnEmptyClipboardIsToldAndStartsNothing) {
    ExpectNoAddressIn("");
}

TEST(GameSpy, ATextThatIsNoAddressIsToldAndStartsNothing) {
    ExpectNoAddressIn("no address here");
}

TEST(GameSpyRegistry, StandsUnderHkcuAsRegSz) {
    const EmptyKey theirs(L"Software\\GameSpy");
    WindowsHome home;
    home.Prepare();
    CreateDirectoryW(L"T:\\QUAKE2", nullptr);
    CreateDirectoryW(L"T:\\QUAKE2\\BASEQ2", nullptr);
    CreateDirectoryW(L"T:\\GAMESPY", nullptr);
    ASSERT_NE(CopyFileW(L"T:\\QUAKE\\QUAKE.EXE", L"T:\\QUAKE2\\QUAKE2.EXE", TRUE), 0);
    ASSERT_NE(CopyFileW(StandIn().c_str(), L"T:\\GAMESPY\\GAMESPY.EXE", TRUE), 0);
    home.Set("Options", "Executables", "Quake;t:\\quake\\quake.exe;Quake II;t:\\quake2\\quake2.exe");
    home.Set("Options", "LaunchQSpy", "1");
    home.Set("Options", "GameSpyLocation", "T:\\GAMESPY\\gamespy.exe");
    ProgramRun program;
    PressLaunch(program);
    ASSERT_TRUE(Activate(program.WaitForWindow(L"Configure Game Spy")));
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitUntil([] { return SpyWindow() != nullptr; })) << "GameSpy 3D was not started";
    const std::string quake = OutputOf(L"reg query \"HKCU\\Software\\GameSpy\\GameSpy 3D\\qspy quake\"");
    EXPECT_THAT(quake, ContainsRegex("workdir +REG_SZ +\\\\\r?\n"));
    EXPECT_THAT(quake, ContainsRegex("cmdline +REG_SZ +QSL1_666.bat\r?\n"));
    const std::string quake2 = OutputOf(L"reg query \"HKCU\\Software\\GameSpy\\GameSpy 3D\\quake2\"");
    EXPECT_THAT(quake2, ContainsRegex("workdir +REG_SZ +t:\\\\quake2\\\\\r?\n"));
    EXPECT_THAT(quake2, ContainsRegex("cmdline +REG_SZ +QSL4_666.bat\r?\n"));
    PostMessageW(SpyWindow(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitUntil([] { return SpyWindow() == nullptr; }));
}

}  // namespace lv
