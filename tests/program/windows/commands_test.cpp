// Names of strangers on Windows, where the command processor reads the batch of a launch.
// tests/engines/commands_test.cpp has the roads of Linux.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/program/windows/program_run.h"
#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

using ::testing::IsSupersetOf;

// The texts of all controls of a window, by the message that reads them in another program too.
std::wstring TextsIn(HWND window) {
    std::wstring texts;
    const auto add = [](HWND control, LPARAM all) -> BOOL {
        wchar_t text[4096] = {};
        DWORD_PTR length = 0;
        SendMessageTimeoutW(control, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG,
                            2000, &length);
        reinterpret_cast<std::wstring*>(all)->append(text).append(L"\n");
        return TRUE;
    };
    EnumChildWindows(window, add, reinterpret_cast<LPARAM>(&texts));
    return texts;
}

void MakeModification(const std::wstring& name) {
    const std::wstring directory = L"T:\\QUAKE\\" + name;
    ASSERT_NE(CreateDirectoryW(directory.c_str(), nullptr), 0) << GetLastError();
    ASSERT_NE(CreateDirectoryW((directory + L"\\maps").c_str(), nullptr), 0) << GetLastError();
}

}  // namespace

TEST(Commands, NoModificationIsOne) {
    for (const std::string name : {"m&md pwned&", "%windir%", "x +connect evil.example", "m^n"}) {
        WindowsHome home;
        home.Prepare();
        CreateDirectoryW(L"T:\\QUAKE\\ID1", nullptr);
        const std::wstring wide(name.begin(), name.end());
        MakeModification(wide);
        home.Set("Options", "Games", "Bad;-game " + name);
        home.Set("Options", "UseGames", "1");
        ProgramRun program;
        ASSERT_TRUE(Activate(program.WaitForWindow()));
        PressKey(VK_F2);
        HWND box = program.WaitForWindow(kPlainTitle);
        ASSERT_NE(box, nullptr);
        EXPECT_TRUE(WaitUntil([&] {
            return TextsIn(box).find(L"The modification \"" + wide + L"\" comes from the directories of the game.") !=
                   std::wstring::npos;
        })) << name;
        Sleep(2000);  // for what must not happen
        EXPECT_EQ(BytesOf(L"T:\\QUAKE\\lv_666.bat"), "(none)");
        EXPECT_EQ(BytesOf(L"T:\\QUAKE\\output.txt"), "(none)");
        EXPECT_EQ(GetFileAttributesW(L"T:\\QUAKE\\pwned"), INVALID_FILE_ATTRIBUTES);
    }
}

TEST(Commands, AModificationOfOneWordStarts) {
    WindowsHome home;
    home.Prepare();
    CreateDirectoryW(L"T:\\QUAKE\\ID1", nullptr);
    MakeModification(L"q~1!#$(x)");
    home.Set("Options", "Games", "Good;-game q~1!#$(x)");
    home.Set("Options", "UseGames", "1");
    ProgramRun program;
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    PressKey(VK_F2);
    EXPECT_THAT(LinesAfter(WindowsHome::GameSaid(), "ARGUMENT="), IsSupersetOf({"-game", "q~1!#$(x)"}));
}

TEST(Commands, TheUsersOwnAdditionsRemainTheUsers) {
    WindowsHome home;
    home.Prepare();
    home.Set("Options", "UseCustomCommandLine", "1");
    home.Set("Options", "CustomCommandLineText", "+name \"a & b\" & md own");
    ProgramRun program;
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    PressKey(VK_F2);
    EXPECT_THAT(LinesAfter(WindowsHome::GameSaid(), "ARGUMENT="), IsSupersetOf({"+name", "a & b"}));
    EXPECT_TRUE(WaitUntil([] { return GetFileAttributesW(L"T:\\QUAKE\\own") != INVALID_FILE_ATTRIBUTES; }));
}

}  // namespace lv
