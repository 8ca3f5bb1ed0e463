#include "platform/windows/windows_registry_trees.h"

#include <gtest/gtest.h>

#include "platform/windows/system.h"
#include "platform/windows/windows_registry.h"
#include "tests/support/windows/empty_key.h"

namespace lv {

namespace {

class RegistryTreesTest : public ::testing::Test {
  protected:
    EmptyKey Test{L"Software\\Lorvane 3D test"};
    WindowsRegistry Registry;
    WindowsRegistryTrees Trees;
};

std::wstring ExpandedAt(const wchar_t* path) {
    wchar_t text[64] = L"";
    DWORD size = sizeof text;
    DWORD type = 0;
    RegGetValueW(HKEY_CURRENT_USER, path, L"", RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND, &type, text, &size);
    return type == REG_EXPAND_SZ ? text : L"(another type)";
}

}  // namespace

TEST_F(RegistryTreesTest, CopiesAndRemovesAllThatIsInAKey) {
    EXPECT_FALSE(Trees.Has("Software\\Lorvane 3D test\\a"));
    EXPECT_FALSE(Registry.Set("Software\\Lorvane 3D test\\a", "n", {kRegistryText, "x", 0}));
    EXPECT_FALSE(Registry.Set("Software\\Lorvane 3D test\\b\\old", "n", {kRegistryText, "y", 0}));
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Lorvane 3D test\\a\\shell\\open", L"", REG_EXPAND_SZ, L"%A%\\b", 14);
    EXPECT_TRUE(Trees.Has("Software\\Lorvane 3D test\\a"));
    EXPECT_FALSE(Trees.Copy("Software\\Lorvane 3D test\\a", "Software\\Lorvane 3D test\\b"));
    EXPECT_FALSE(Trees.Remove("Software\\Lorvane 3D test\\a"));
    EXPECT_FALSE(Trees.Remove("Software\\Lorvane 3D test\\a")) << "it is gone already";
    EXPECT_FALSE(Trees.Has("Software\\Lorvane 3D test\\a"));
    EXPECT_FALSE(Trees.Has("Software\\Lorvane 3D test\\b\\old"));
    EXPECT_EQ(Registry.Query("Software\\Lorvane 3D test\\b", "n").Value.Text, "x");
    EXPECT_EQ(ExpandedAt(L"Software\\Lorvane 3D test\\b\\shell\\open"), L"%A%\\b");
}

TEST_F(RegistryTreesTest, KnowsItsOwnProgram) {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::string said = Trees.ProgramFile();
    EXPECT_EQ(std::wstring(path), std::wstring(said.begin(), said.end()));
}

}  // namespace lv
