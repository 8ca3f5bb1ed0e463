#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/program/windows/program_run.h"
#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

// What is shipped, copied to a directory of its own; the program in it.
std::wstring ShippedTo(const std::wstring& directory) {
    CreateDirectoryW(directory.c_str(), nullptr);
    const std::wstring built = BuiltProgram();
    const std::wstring from = built.substr(0, built.rfind(L'\\'));
    for (const wchar_t* const name : {L"\\lorvane3d.exe", L"\\lv_666.hid", L"\\lv_666_q2.hid"}) {
        EXPECT_NE(CopyFileW((from + name).c_str(), (directory + name).c_str(), FALSE), 0) << GetLastError();
    }
    return directory + L"\\lorvane3d.exe";
}

void ExpectALaunch(ProgramRun& program) {
    HWND window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey(VK_F2);
    EXPECT_THAT(LinesAfter(WindowsHome::GameSaid(), "DIRECTORY="), ElementsAre("t:\\QUAKE"));
}

}  // namespace

TEST(Launch, StartsTheGameInItsDirectoryWithArgumentsAndEnvironment) {
    WindowsHome home;
    home.Prepare();
    home.Set("Options", "UseCustomCommandLine", "1");
    home.Set("Options", "CustomCommandLineText", "+skill 3");
    home.Set("Options", "VidCard", "2");
    MoveFileW(L"T:\\QUAKE\\QUAKE.EXE", L"T:\\QUAKE\\GLQUAKE.EXE");
    home.Set("Options", "Executables", "Quake;t:\\quake\\glquake.exe");
    ProgramRun program;
    HWND window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey(VK_F2);
    const std::vector<std::string> lines = WindowsHome::GameSaid();
    EXPECT_THAT(LinesAfter(lines, "DIRECTORY="), ElementsAre("t:\\QUAKE"));
    EXPECT_THAT(LinesAfter(lines, "ARGUMENT="),
                ElementsAre("-zone", "512", "-heapsize", "16384", "+skill", "3", "+exec", "lv_666.qs"));
    EXPECT_THAT(lines, Contains("SSTV2_GRXCLK=90"));
    EXPECT_TRUE(WaitUntil([&] { return home.Get("LV-Stuff", "LaunchCount") == "1"; }));
    EXPECT_TRUE(WaitUntil([&] { return IsWindowVisible(window) == 0; }));
    EXPECT_TRUE(program.IsRunning());
    EXPECT_THAT(BytesOf(L"T:\\QUAKE\\lv_666.bat"), HasSubstr("SET SSTV2_GRXCLK=90\r\n"));
    const std::wstring built = BuiltProgram();
    EXPECT_EQ(BytesOf(L"T:\\QUAKE\\lv_666.pif"), BytesOf(built.substr(0, built.rfind(L'\\')) + L"\\lv_666.hid"));
}

TEST(Launch, LeavesTheGameRunningWhenTheProgramEnds) {
    WindowsHome home;
    home.Prepare();
    home.Set("Options", "EndOnLaunch", "1");
    ProgramRun program;
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    PressKey(VK_F2);
    EXPECT_EQ(program.WaitForEnd(), 0u);
    EXPECT_FALSE(WindowsHome::GameSaid().empty());
}

TEST(Shipped, RunsFromADirectoryOfAnyName) {
    WindowsHome home;
    home.Prepare();
    ProgramRun program(ShippedTo(L"T:\\Programs & g\u00E2mes (x86)"), L"C:\\");
    ExpectALaunch(program);
    EXPECT_NE(BytesOf(L"T:\\QUAKE\\lv_666.pif"), "(none)");
    EXPECT_EQ(BytesOf(L"T:\\QUAKE\\lv_666.pif"), BytesOf(L"T:\\Programs & g\u00E2mes (x86)\\lv_666.hid"));
}

}  // namespace lv
