// The installer as a user's machine sees it: silent, for one user, and away again.

#include <gtest/gtest.h>

#include <array>

#include "tests/program/windows/program_run.h"
#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

constexpr const wchar_t* kPlace = L"T:\\My Games & more\\Lorvane 3D";
constexpr const wchar_t* kOtherPlace = L"T:\\Moved (100%)";
constexpr const wchar_t* kEntry = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Lorvane 3D";

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

std::optional<DWORD> Install(const std::wstring& place = kPlace) {
    return RunToEnd(L"\"" + Setup() + L"\" /S /D=" + place);
}

bool IsThere(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// "(none)" if there is none.
std::wstring EntryOf(const wchar_t* name) {
    std::array<wchar_t, 300> text{};
    DWORD size = sizeof text;
    const LSTATUS failed = RegGetValueW(HKEY_CURRENT_USER, kEntry, name, RRF_RT_REG_SZ, nullptr, text.data(), &size);
    return failed == ERROR_SUCCESS ? std::wstring(text.data()) : L"(none)";
}

void SetText(const wchar_t* key, const std::wstring& text) {
    RegSetKeyValueW(HKEY_CURRENT_USER, key, L"", REG_SZ, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

// What stands in a key of the user's classes; "(none)" if there is nothing.
std::wstring ClassOf(const std::wstring& key) {
    std::array<wchar_t, 300> text{};
    DWORD size = sizeof text;
    const LSTATUS failed = RegGetValueW(HKEY_CURRENT_USER, (L"Software\\Classes\\" + key).c_str(), L"", RRF_RT_REG_SZ,
                                        nullptr, text.data(), &size);
    return failed == ERROR_SUCCESS ? std::wstring(text.data()) : L"(none)";
}

std::wstring InDirectoryOf(const wchar_t* variable, const std::wstring& name) {
    std::array<wchar_t, MAX_PATH> directory{};
    GetEnvironmentVariableW(variable, directory.data(), static_cast<DWORD>(directory.size()));
    return std::wstring(directory.data()) + L"\\" + name;
}

std::wstring StartMenuEntry() {
    return InDirectoryOf(L"APPDATA", L"Microsoft\\Windows\\Start Menu\\Programs\\Lorvane 3D.lnk");
}

// The uninstaller goes on in a copy of itself.
void RemoveFrom(const std::wstring& place, const std::wstring& switches = L"") {
    EXPECT_EQ(RunToEnd(L"\"" + place + L"\\uninstall.exe\" /S" + switches), 0u);
    EXPECT_TRUE(WaitUntil([&] { return !IsThere(place + L"\\uninstall.exe"); }));
}

void Remove(const std::wstring& switches) {
    RemoveFrom(kPlace, switches);
    EXPECT_TRUE(WaitUntil([] { return EntryOf(L"DisplayName") == L"(none)"; }));
}

// As a link keeps the place that it leads to, in code page 1252.
bool StartMenuLeadsTo(const std::wstring& place) {
    return BytesOf(StartMenuEntry()).find(std::string(place.begin(), place.end())) != std::string::npos;
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

TEST(Installer, OpensExportedSettingsUntilItIsRemoved) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    EXPECT_EQ(ClassOf(L".lv3d"), L"Lorvane3D.Settings");
    EXPECT_EQ(ClassOf(L"Lorvane3D.Settings\\shell\\open\\command"),
              L"\"" + std::wstring(kPlace) + L"\\lorvane3d.exe\" -- \"%1\"");
    Remove(L"");
    EXPECT_TRUE(WaitUntil([] { return ClassOf(L".lv3d") == L"(none)"; }));
    EXPECT_EQ(ClassOf(L"Lorvane3D.Settings"), L"(none)");
}

TEST(Installer, GivesLinksOfGamesBackThatTheProgramHasTaken) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    const std::wstring ours = L"\"" + std::wstring(kPlace) + L"\\lorvane3d.exe\" -- \"%1\"";
    SetText(L"Software\\Classes\\qw\\shell\\open\\command", ours);
    SetText(L"Software\\Classes\\quake\\shell\\open\\command", ours);
    SetText(L"Software\\Classes\\quake2\\shell\\open\\command", L"new.exe %1");
    SetText(L"Software\\Lorvane 3D\\Links\\quake\\shell\\open\\command", L"old.exe %1");
    Remove(L"");
    EXPECT_TRUE(WaitUntil([] { return ClassOf(L"qw\\shell\\open\\command") == L"(none)"; }));
    EXPECT_EQ(ClassOf(L"quake\\shell\\open\\command"), L"old.exe %1");
    EXPECT_EQ(ClassOf(L"quake2\\shell\\open\\command"), L"new.exe %1");
    for (const wchar_t* key : {L"Software\\Classes\\quake", L"Software\\Classes\\quake2", L"Software\\Lorvane 3D"}) {
        RegDeleteTreeW(HKEY_CURRENT_USER, key);
    }
}

TEST(Installer, TakesTheSettingsAlongWhereAskedTo) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    Remove(L" /settings");
    EXPECT_TRUE(WaitUntil([&] { return home.Get("LV-Stuff", "FirstTime") == "(none)"; }));
}

TEST(Installer, TakesTheCopiesOfSettingsAndScriptsAlongWithThem) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);  // an uninstaller of a test before has come to its end meanwhile
    const std::wstring data = InDirectoryOf(L"LOCALAPPDATA", L"lorvane3d");
    for (const std::wstring& directory : {data, data + L"\\backups", data + L"\\versions", data + L"\\launchers"}) {
        CreateDirectoryW(directory.c_str(), nullptr);
    }
    const std::wstring copy = data + L"\\backups\\settings 000000001 2026-11-23 15-17-59.txt";
    const std::wstring versions = data + L"\\versions\\0123456789abcdef.txt";
    const std::wstring picture = data + L"\\launchers\\quake.ico";
    for (const std::wstring& file : {copy, versions, versions + L".damaged2", picture}) {
        WriteBytes(file, "kept");
    }
    Remove(L"");
    EXPECT_TRUE(IsThere(copy) && IsThere(versions)) << "not asked to";
    ASSERT_EQ(Install(), 0u);
    WriteBytes(data + L"\\versions\\mine.doc", "mine");
    Remove(L" /settings");
    EXPECT_TRUE(WaitUntil([&] { return !IsThere(data + L"\\launchers"); }));  // its last step
    EXPECT_FALSE(IsThere(data + L"\\backups"));
    EXPECT_FALSE(IsThere(versions) || IsThere(versions + L".damaged2"));
    EXPECT_EQ(BytesOf(data + L"\\versions\\mine.doc"), "mine");
    DeleteFileW((data + L"\\versions\\mine.doc").c_str());
    RemoveDirectoryW((data + L"\\versions").c_str());
    RemoveDirectoryW(data.c_str());
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

TEST(Installer, MovesToAnotherPlaceAndLeavesTheUsersOwnFilesInTheFirst) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    EXPECT_TRUE(StartMenuLeadsTo(kPlace));
    WriteBytes(std::wstring(kPlace) + L"\\mine.txt", "mine");
    ASSERT_EQ(Install(kOtherPlace), 0u);
    EXPECT_FALSE(IsThere(std::wstring(kPlace) + L"\\lorvane3d.exe"));
    EXPECT_FALSE(IsThere(std::wstring(kPlace) + L"\\uninstall.exe"));
    EXPECT_FALSE(IsThere(std::wstring(kPlace) + L"\\handbook"));
    EXPECT_EQ(BytesOf(std::wstring(kPlace) + L"\\mine.txt"), "mine");
    EXPECT_EQ(EntryOf(L"InstallLocation"), kOtherPlace);
    EXPECT_TRUE(StartMenuLeadsTo(kOtherPlace));
    EXPECT_EQ(home.Get("LV-Stuff", "FirstTime"), "0") << "the user's settings are gone";
    RemoveFrom(kOtherPlace);
    EXPECT_TRUE(WaitUntil([] { return EntryOf(L"DisplayName") == L"(none)"; }));
    EXPECT_FALSE(IsThere(kOtherPlace));
    EXPECT_FALSE(IsThere(StartMenuEntry()));
}

TEST(Installer, KnowsItsPlaceByAnotherSpelling) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    std::array<wchar_t, MAX_PATH> share{};
    GetEnvironmentVariableW(L"LV_TEST_SHARE", share.data(), static_cast<DWORD>(share.size()));
    const std::wstring onShare = std::wstring(share.data()) + std::wstring(kPlace).substr(2);
    ASSERT_EQ(Install(onShare), 0u);
    EXPECT_EQ(EntryOf(L"InstallLocation"), onShare);
    EXPECT_TRUE(IsThere(std::wstring(kPlace) + L"\\lorvane3d.exe"));
    EXPECT_TRUE(IsThere(std::wstring(kPlace) + L"\\uninstall.exe"));
    Remove(L"");
    EXPECT_FALSE(IsThere(StartMenuEntry()));
    EXPECT_FALSE(IsThere(kPlace));
}

TEST(Installer, MovesNothingWhileTheFirstRuns) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    {
        ProgramRun program(std::wstring(kPlace) + L"\\lorvane3d.exe", L"C:\\");
        program.WaitForWindow();
        EXPECT_EQ(Install(kOtherPlace), 2u);
    }
    EXPECT_FALSE(IsThere(kOtherPlace));
    EXPECT_EQ(EntryOf(L"InstallLocation"), kPlace);
    Remove(L"");
}

TEST(Installer, TellsOfAFirstPlaceThatItCannotRemove) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    ASSERT_NE(DeleteFileW((std::wstring(kPlace) + L"\\uninstall.exe").c_str()), 0);
    EXPECT_EQ(Install(kOtherPlace), 3u);
    EXPECT_TRUE(IsThere(std::wstring(kPlace) + L"\\lorvane3d.exe"));
    EXPECT_EQ(EntryOf(L"InstallLocation"), kOtherPlace);
    RemoveFrom(kOtherPlace);
    EXPECT_TRUE(WaitUntil([] { return EntryOf(L"DisplayName") == L"(none)"; }));
}

TEST(Installer, LeavesTheEntriesOfAnotherPlaceWhenItIsRemoved) {
    WindowsHome home;
    home.Prepare();
    ASSERT_EQ(Install(), 0u);
    const std::wstring elsewhere = L"T:\\Elsewhere";
    RegSetKeyValueW(HKEY_CURRENT_USER, kEntry, L"InstallLocation", REG_SZ, elsewhere.c_str(),
                    static_cast<DWORD>((elsewhere.size() + 1) * sizeof(wchar_t)));
    RemoveFrom(kPlace);
    EXPECT_TRUE(WaitUntil([] { return !IsThere(kPlace); }));
    EXPECT_EQ(EntryOf(L"InstallLocation"), elsewhere);
    EXPECT_TRUE(IsThere(StartMenuEntry()));
    ASSERT_EQ(Install(), 0u);
    Remove(L"");
}

}  // namespace lv
