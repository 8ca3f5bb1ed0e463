#include "platform/windows/registry_settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

#include "platform/memory/memory_platform.h"
#include "platform/windows/registry_key.h"
#include "platform/windows/system.h"
#include "this_system.h"

namespace lv {

namespace {

constexpr const wchar_t* kOptions = L"Software\\VB and VBA Program Settings\\Lorvane 3D\\Options";

// What the registry holds, by a call of the system's own; "(none)" if it is no text.
std::wstring Held(const wchar_t* key, const wchar_t* name) {
    std::wstring text(20000, L'\0');
    auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    if (RegGetValueW(HKEY_CURRENT_USER, key, name, RRF_RT_REG_SZ, nullptr, text.data(), &size) != ERROR_SUCCESS) {
        return L"(none)";
    }
    text.resize(size / sizeof(wchar_t) - 1);
    return text;
}

constexpr const wchar_t* kApplication = L"Software\\VB and VBA Program Settings\\Lorvane 3D";
constexpr const wchar_t* kProfile = L"Software\\VB and VBA Program Settings\\Lorvane 3D\\Profile";
constexpr const wchar_t* kNote = L"Unfinished Group";

bool HoldsNote() {
    return RegGetValueW(HKEY_CURRENT_USER, kApplication, kNote, RRF_RT_ANY, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

void WriteNumber(const wchar_t* path, const wchar_t* name, DWORD number) {
    RegistryKeyHandle key;
    ASSERT_EQ(key.OpenOrMake(path, KEY_SET_VALUE), ERROR_SUCCESS);
    ASSERT_EQ(key.SetNumber(name, number), ERROR_SUCCESS);
}

std::optional<DWORD> NumberIn(const wchar_t* path, const wchar_t* name) {
    DWORD number = 0;
    DWORD size = sizeof number;
    const LSTATUS read = RegGetValueW(HKEY_CURRENT_USER, path, name, RRF_RT_REG_DWORD, nullptr, &number, &size);
    return read == ERROR_SUCCESS ? std::optional(number) : std::nullopt;
}

// The exit code of programs/cut_off_group.cpp.
DWORD EndOfGroupKilledAfter(int steps) {
    wchar_t here[MAX_PATH];
    GetModuleFileNameW(nullptr, here, MAX_PATH);
    const std::wstring directory = std::wstring(here).substr(0, std::wstring(here).rfind(L'\\') + 1);
    std::wstring line = L"\"" + directory + L"lv_cut_off_group.exe\" " + std::to_wstring(steps);
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION process{};
    DWORD code = 0;
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &process) == 0) {
        return STILL_ACTIVE;
    }
    WaitForSingleObject(process.hProcess, 20000);
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

}  // namespace

TEST(RegistrySettings, LieWhereThePlatformsOwnProgramsKeepTheirs) {
    SystemSettings made;
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "Games", "Na\xEFve;-game \x80").Number, 0);
    EXPECT_EQ(Held(kOptions, L"Games"), L"Na\u00EFve;-game \u20AC");
}

TEST(RegistrySettings, ReadWhatAnotherProgramWrote) {
    SystemSettings made;
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, kOptions, &key), ERROR_SUCCESS);
    const std::wstring text = L"Quake;c:\\quake\\quake.exe";
    EXPECT_EQ(RegSetValueExW(key, L"Executables", 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                             static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
              ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(made.Store.Read("Lorvane 3D", "Options", "executables"), "Quake;c:\\quake\\quake.exe");
}

TEST(RegistrySettings, ReadATextWithoutItsTerminator) {
    SystemSettings made;
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, kOptions, &key), ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExW(key, L"Cut", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"abc"), 6), ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(made.Store.Read("Lorvane 3D", "Options", "Cut"), "abc");
}

TEST(RegistrySettings, TakeANumberForNoText) {
    SystemSettings made;
    HKEY key = nullptr;
    const DWORD number = 1;
    ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, kOptions, &key), ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExW(key, L"Dedicated", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), 4),
              ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(made.Store.Read("Lorvane 3D", "Options", "Dedicated"), std::nullopt);
}

TEST(RegistrySettings, RefuseNamesThatTheRegistryCannotHold) {
    SystemSettings made;
    const std::string withZero("a\0b", 3);
    EXPECT_EQ(made.Store.Write("Lorvane 3D", withZero, "Key", "x").Number, 57);
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Section", withZero, "x").Number, 57);
    EXPECT_EQ(made.Store.Write("Lorvane 3D", std::string(300, 's'), "Key", "x").Number, 57);
    EXPECT_EQ(made.Store.Read("Lorvane 3D", "Section", withZero), std::nullopt);
    EXPECT_EQ(made.Store.Read("Lorvane 3D", std::string(300, 's'), "Key"), std::nullopt);
}

TEST(RegistrySettings, HoldAGroupBackUntilItsOutermostEnd) {
    SystemSettings made;
    made.Store.BeginGroup();
    made.Store.BeginGroup();
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "VidCard", "2").Number, 0);
    EXPECT_EQ(made.Store.Read("lorvane 3d", "OPTIONS", "vidcard"), "2");
    EXPECT_EQ(made.Store.EndGroup().Number, 0);
    EXPECT_EQ(Held(kOptions, L"VidCard"), L"(none)");
    EXPECT_EQ(made.Store.EndGroup().Number, 0);
    EXPECT_EQ(Held(kOptions, L"VidCard"), L"2");
    EXPECT_FALSE(HoldsNote());
}

TEST(RegistrySettings, TakeTheLastOfTwoWritesInAGroup) {
    SystemSettings made;
    {
        const SettingsGroup group(made.Store);
        EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "VidCard", "1").Number, 0);
        EXPECT_EQ(made.Store.Write("Lorvane 3D", "options", "VIDCARD", "2").Number, 0);
    }
    EXPECT_EQ(Held(kOptions, L"VidCard"), L"2");
}

TEST(RegistrySettings, KeepAllOfAGroupOrNothingWhereverItIsKilled) {
    // Five values between a note that is made and one that is taken away.
    constexpr int kSteps = 7;
    for (int steps = 0; steps <= kSteps; ++steps) {
        SystemSettings made;
        EXPECT_EQ(made.Store.Write("Lorvane 3D", "Profile", "1", "old").Number, 0);
        WriteNumber(kProfile, L"3", 7);
        ASSERT_EQ(EndOfGroupKilledAfter(steps), steps == kSteps ? 0u : 9u) << steps;
        RegistrySettings again("Lorvane 3D");
        EXPECT_FALSE(HoldsNote()) << steps;
        if (steps == kSteps) {
            for (const char* key : {"0", "1", "2", "3", "4"}) {
                EXPECT_EQ(again.Read("Lorvane 3D", "Profile", key), "new") << key;
            }
            break;
        }
        EXPECT_EQ(again.Read("Lorvane 3D", "Profile", "1"), "old") << steps;
        EXPECT_EQ(NumberIn(kProfile, L"3"), 7u) << steps;
        for (const char* key : {"0", "2", "4"}) {
            EXPECT_EQ(again.Read("Lorvane 3D", "Profile", key), std::nullopt) << steps << ": " << key;
        }
    }
}

TEST(RegistrySettings, TakeBackWhatAFailedGroupHasTakenAway) {
    SystemSettings made;
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "A", "old").Number, 0);
    made.Store.BeginGroup();
    EXPECT_EQ(made.Store.Remove("Lorvane 3D", "Options", "A").Number, 0);
    EXPECT_EQ(made.Store.Write("Lorvane 3D", std::string(300, 's'), "C", "new").Number, 0);
    EXPECT_EQ(made.Store.EndGroup().Number, 57);
    EXPECT_EQ(Held(kOptions, L"A"), L"old");
}

TEST(RegistrySettings, HoldAnotherGroupUpUntilOneThatBeganAloneHasEnded) {
    SystemSettings made;
    RegistrySettings another("Lorvane 3D");
    int fault = 0;
    const auto beginAnother = [&] {
        fault = another.BeginAlone().Number;
        (void)another.EndGroup();
    };
    EXPECT_EQ(made.Store.BeginAlone().Number, 0);
    std::thread(beginAnother).join();
    EXPECT_EQ(fault, 55);
    EXPECT_EQ(made.Store.EndGroup().Number, 0);
    std::thread(beginAnother).join();
    EXPECT_EQ(fault, 0);
}

TEST(RegistrySettings, TakeBackAWholeGroupWhenOneOfItsWritesFails) {
    SystemSettings made;
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "A", "old").Number, 0);
    made.Store.BeginGroup();
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "A", "new").Number, 0);
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "B", "new").Number, 0);
    EXPECT_EQ(made.Store.Write("Lorvane 3D", std::string(300, 's'), "C", "new").Number, 0);
    EXPECT_EQ(made.Store.EndGroup().Number, 57);
    EXPECT_EQ(Held(kOptions, L"A"), L"old");
    EXPECT_EQ(Held(kOptions, L"B"), L"(none)");
    EXPECT_FALSE(HoldsNote());
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "A", "later").Number, 0);
    EXPECT_EQ(Held(kOptions, L"A"), L"later");
}

TEST(RegistrySettings, LetAGroupFailFromItsFirstFailureOn) {
    SystemSettings made;
    made.Store.BeginGroup();
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "A", "new").Number, 0);
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", std::string("a\0b", 3), "x").Number, 57);
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "B", "new").Number, 57);
    EXPECT_EQ(made.Store.EndGroup().Number, 57);
    EXPECT_EQ(Held(kOptions, L"A"), L"(none)");
    EXPECT_EQ(Held(kOptions, L"B"), L"(none)");
}

TEST(RegistrySettings, LeaveTheRegistryAloneForAGroupThatChangesNothing) {
    SystemSettings made;
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "A", "same").Number, 0);
    int steps = 0;
    made.Store.BeforeEachStep = [&steps] { ++steps; };
    made.Store.BeginGroup();
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "A", "same").Number, 0);
    EXPECT_EQ(made.Store.EndGroup().Number, 0);
    EXPECT_EQ(steps, 0);
    made.Store.BeginGroup();
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "A", "other").Number, 0);
    EXPECT_EQ(made.Store.EndGroup().Number, 0);
    EXPECT_EQ(steps, 3);
}

TEST(RegistrySettings, ThrowADamagedNoteAwayAndTouchNothing) {
    SystemSettings made;
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "A", "kept").Number, 0);
    RegistryKeyHandle key;
    ASSERT_EQ(key.OpenOrMake(kApplication, KEY_SET_VALUE), ERROR_SUCCESS);
    ASSERT_EQ(key.SetBytes(kNote, REG_BINARY, "\xFF\xFF\xFF\x7Fno note at all"), ERROR_SUCCESS);
    ASSERT_TRUE(HoldsNote());
    RegistrySettings again("Lorvane 3D");
    EXPECT_FALSE(HoldsNote());
    EXPECT_EQ(again.Read("Lorvane 3D", "Options", "A"), "kept");
}

TEST(RegistrySettings, GiveAllThatIsTextWhereverItLies) {
    SystemSettings made;
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "A", "text").Number, 0);
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Fast\\Card", "B", "in a key in a key").Number, 0);
    WriteNumber(kOptions, L"Number", 3);
    RegistryKeyHandle options;
    ASSERT_EQ(options.Open(kOptions, KEY_SET_VALUE), ERROR_SUCCESS);
    ASSERT_EQ(options.SetText(L"a\u65E5", L"a name that code page 1252 has not"), ERROR_SUCCESS);
    RegistryKeyHandle application;
    ASSERT_EQ(application.Open(kApplication, KEY_SET_VALUE), ERROR_SUCCESS);
    ASSERT_EQ(application.SetBytes(kNote, REG_BINARY, "note"), ERROR_SUCCESS);
    auto all = made.Store.All("Lorvane 3D");
    EXPECT_EQ(all.Fault.Number, 0);
    std::sort(all.Value.begin(), all.Value.end(),
              [](const StoredValue& a, const StoredValue& b) { return a.Key < b.Key; });
    EXPECT_EQ(all.Value,
              (std::vector<StoredValue>{{"Options", "A", "text"}, {"Fast\\Card", "B", "in a key in a key"}}));
}

}  // namespace lv
