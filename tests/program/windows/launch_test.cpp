#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/program/windows/program_run.h"
#include "tests/support/test_paths.h"
#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

// What the package holds, unpacked.
std::wstring Unpacked() {
    const std::wstring built = BuiltProgram();
    return built.substr(0, built.rfind(L'\\')) + L"\\shipped\\Lorvane 3D";
}

void CopyTree(const std::wstring& from, const std::wstring& to) {
    EXPECT_NE(CreateDirectoryW(to.c_str(), nullptr), 0) << GetLastError();
    WIN32_FIND_DATAW found{};
    HANDLE find = FindFirstFileW((from + L"\\*").c_str(), &found);
    ASSERT_NE(find, INVALID_HANDLE_VALUE) << "the package was not built: target zip";
    do {
        const std::wstring name = found.cFileName;
        const bool isDirectory = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (isDirectory && name != L"." && name != L"..") {
            CopyTree(from + L"\\" + name, to + L"\\" + name);
        } else if (!isDirectory) {
            EXPECT_NE(CopyFileW((from + L"\\" + name).c_str(), (to + L"\\" + name).c_str(), TRUE), 0);
        }
    } while (FindNextFileW(find, &found) != 0);
    FindClose(find);
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
    const std::wstring place = L"T:\\Programs & g\u00E2mes (x86)";
    CopyTree(Unpacked(), place);
    ProgramRun program(place + L"\\lorvane3d.exe", L"C:\\");
    ExpectALaunch(program);
    EXPECT_TRUE(WaitUntil([&] { return BytesOf(L"T:\\QUAKE\\lv_666.pif") == BytesOf(place + L"\\lv_666.hid"); }));
    EXPECT_EQ(BytesOf(L"T:\\QUAKE\\lv_666.pif").size(), 517u);
}

TEST(Shipped, RunsFromADirectoryBeyondTheCodePage) {
    WindowsHome home;
    home.Prepare();
    const std::wstring place = L"T:\\\u0438\u0433\u0440\u044B \u65E5\u672C";
    CopyTree(Unpacked(), place);
    ProgramRun program(place + L"\\lorvane3d.exe", L"C:\\");
    ExpectALaunch(program);
    EXPECT_TRUE(WaitUntil([&] { return BytesOf(L"T:\\QUAKE\\lv_666.pif") == BytesOf(place + L"\\lv_666.hid"); }));
    EXPECT_EQ(BytesOf(L"T:\\QUAKE\\lv_666.pif").size(), 517u);
}

// Wine names what lies on no drive by such paths; the program takes them for a network's.
TEST(Shipped, RunsFromAPathWithoutADriveUnderWine) {
    WindowsHome home;
    home.Prepare();
    std::wstring place = L"\\\\?\\unix";
    for (const char c : TestBinaryDir() + "/shipped/Lorvane 3D") {
        place += c == '/' ? L'\\' : static_cast<wchar_t>(c);
    }
    ProgramRun program(place + L"\\lorvane3d.exe", L"C:\\");
    ExpectALaunch(program);
    EXPECT_TRUE(WaitUntil([&] { return BytesOf(L"T:\\QUAKE\\lv_666.pif") == BytesOf(place + L"\\lv_666.hid"); }));
    EXPECT_EQ(BytesOf(L"T:\\QUAKE\\lv_666.pif").size(), 517u);
}

TEST(Shipped, BringsItsHandbookAndTheLicences) {
    for (const wchar_t* const file :
         {L"\\handbook\\handbook.hhp", L"\\LICENSE.txt", L"\\licences\\libwxgtk3.2-dev.txt", L"\\lv_666_q2.hid"}) {
        EXPECT_NE(BytesOf(Unpacked() + file), "(none)") << file;
    }
}

}  // namespace lv
