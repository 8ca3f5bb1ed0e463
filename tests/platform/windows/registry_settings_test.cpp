#include "platform/windows/registry_settings.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
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

TEST(RegistrySettings, ShowEachWriteOfAGroupAtOnceToEveryone) {
    SystemSettings made;
    const SettingsGroup group(made.Store);
    EXPECT_EQ(made.Store.Write("Lorvane 3D", "Options", "VidCard", "2").Number, 0);
    EXPECT_EQ(Held(kOptions, L"VidCard"), L"2");
}

}  // namespace lv
