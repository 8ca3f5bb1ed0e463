#include "platform/windows/windows_registry.h"

#include <gtest/gtest.h>

#include "platform/windows/system.h"
#include "this_system.h"

namespace lv {

namespace {

constexpr const char* kSettings = "Software\\Valve\\Half-Life\\Settings";
constexpr const wchar_t* kWideSettings = L"Software\\Valve\\Half-Life\\Settings";

}  // namespace

TEST(WindowsRegistry, GivesANewKeyItsClass) {
    SystemRegistry made;
    EXPECT_EQ(made.Registry.Set(kSettings, "Name", {kRegistryText, "x", 0}).Number, 0);
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, kWideSettings, 0, KEY_READ, &key), ERROR_SUCCESS);
    wchar_t name[32] = L"";
    DWORD length = 32;
    EXPECT_EQ(RegQueryInfoKeyW(key, name, &length, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                               nullptr, nullptr),
              ERROR_SUCCESS);
    EXPECT_STREQ(name, L"REG_SZ");
    RegCloseKey(key);
}

TEST(WindowsRegistry, WritesTheTerminatorBehindAText) {
    SystemRegistry made;
    EXPECT_EQ(made.Registry.Set(kSettings, "Name", {kRegistryText, "abc", 0}).Number, 0);
    DWORD size = 0;
    EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, kWideSettings, L"Name", RRF_RT_REG_SZ, nullptr, nullptr, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(size, 8u);
}

TEST(WindowsRegistry, TellsTheTypeOfWhatItDoesNotRead) {
    SystemRegistry made;
    EXPECT_EQ(made.Registry.Set(kSettings, "Name", {kRegistryText, "x", 0}).Number, 0);
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, kWideSettings, 0, KEY_WRITE, &key), ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExW(key, L"Bytes", 0, REG_BINARY, reinterpret_cast<const BYTE*>("xyz"), 3), ERROR_SUCCESS);
    RegCloseKey(key);
    const auto read = made.Registry.Query(kSettings, "Bytes");
    EXPECT_EQ(read.Fault.Number, 0);
    EXPECT_EQ(read.Value.Type, static_cast<std::uint32_t>(REG_BINARY));
    EXPECT_EQ(read.Value.Text, "");
    EXPECT_EQ(made.Registry.Set(kSettings, "Bytes", {REG_BINARY, "x", 0}).Number, 5);
}

}  // namespace lv
