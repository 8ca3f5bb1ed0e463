// The installer as a user's machine sees it: silent, for one user, and away again.

#include <gtest/gtest.h>

#include <array>

#include "tests/program/windows/program_run.h"
#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

constexpr const wchar_t* kPlace = L"T:\\My Games & more\\Lorvane 3D";

std::wstring BuildDirectory() {
    const std::wstring built = BuiltProgram();
    return built.substr(0, built.rfind(L'\\'));
}

std::wstring Setup() {
    WIN32_FIND_DATAW found{};
    HANDLE find = FindFirstFileW((BuildDirectory() + L"\\lorvane3d-*-setup.exe").c_str(), &found);
    EXPECT_NE(find, INVALID_HANDLE_VALUE) << "the installer was not built: target installer";
    FindClose(find);
    return BuildDirectory() + L"\\" + static_cast<const wchar_t*>(found.cFileName);
}

std::optional<DWORD> Install() {
    return RunToEnd(L"\"" + Setup() + L"\" /S /D=" + kPlace);
}

bool IsThere(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// "(none)" if there is none.
std::wstring EntryOf(const wchar_t* name) {
    std::array<wchar_t, 300> text{};
    DWORD size = sizeof text;
    const LSTATUS failed =
        RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Lorvane 3D", name,
                     RRF_RT_REG_SZ, nullptr, text.data(), &size);
    return failed == ERROR_SUCCESS ? std::wstring(text.data()) : L"(none)";
}

std::wstring StartMenuEntry() {
    std::array<wchar_t, MAX_PATH> roaming{};
    GetEnvironmentVariableW(L"APPDATA", roaming.data(), static_cast<DWORD>(roaming.size()));
    return std::wstring(roaming.data()) + L"\\Microsoft\\Windows\\Start Menu\\Programs\\Lorvane 3D.lnk";
}

// The uninstaller goes on in a copy of itself.
void Remove(const std::wstring& switches) {
    EXPECT_EQ(RunToEnd(L"\"" + std::wstring(kPlace) + L"\\uninstall.exe\" /S" + switches), 0u);
    EXPECT_TRUE(WaitUntil([] { return EntryOf(L"DisplayName") == L"(none)"; }));
    EXPECT_TRUE(WaitUntil([] { return !IsThere(std::wstring(kPlace) + L"\\uninstall.exe"); }));
}

}  // namespace

TEST(Installer, InstallsWhatRunsAndTakesItAwayAgain) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    EXPECT_EQ(EntryOf(L"DisplayName"), L"Lorvane 3D");
    EXPECT_EQ(EntryOf(L"InstallLocation"), kPlace);
    EXPECT_TRUE(IsThere(StartMenuEntry()));
    EXPECT_TRUE(IsThere(std::wstring(kPlace) + L"\\handbook\\index.html"));
    {
        ProgramRun program(std::wstring(kPlace) + L"\\lorvane3d.exe", L"C:\\");
        ExpectALaunch(program);
    }
    Remove(L"");
    EXPECT_FALSE(IsThere(kPlace));
    EXPECT_FALSE(IsThere(StartMenuEntry()));
    EXPECT_EQ(home.Get("LV-Stuff", "LaunchCount"), "1") << "the user's settings are gone";
}

TEST(Installer, TakesTheSettingsAlongWhereAskedTo) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    Remove(L" /settings");
    EXPECT_TRUE(WaitUntil([&] { return home.Get("LV-Stuff", "FirstTime") == "(none)"; }));
}

TEST(Installer, LeavesTheUsersOwnFilesInItsDirectory) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    WriteBytes(std::wstring(kPlace) + L"\\handbook\\mine.txt", "mine");
    Remove(L"");
    EXPECT_EQ(BytesOf(std::wstring(kPlace) + L"\\handbook\\mine.txt"), "mine");
    EXPECT_FALSE(IsThere(std::wstring(kPlace) + L"\\lorvane3d.exe"));
}

TEST(Installer, ReplacesNothingUnderAProgramThatRuns) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    {
        ProgramRun program(std::wstring(kPlace) + L"\\lorvane3d.exe", L"C:\\");
        program.WaitForWindow();
        EXPECT_EQ(Install(), 2u);
    }
    EXPECT_EQ(Install(), 0u);
    Remove(L"");
}

}  // namespace lv
