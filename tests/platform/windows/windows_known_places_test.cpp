#include "platform/windows/windows_known_places.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/code_page.h"
#include "platform/windows/registry_key.h"
#include "this_system.h"

namespace lv {

TEST(WindowsKnownPlaces, HaveTheProgramsOfThePath) {
    SystemDisk made;
    EXPECT_EQ(made.Disk.MakeDirectory("T:\\bin").Number, 0);
    std::wstring before(GetEnvironmentVariableW(L"PATH", nullptr, 0), L'\0');
    before.resize(GetEnvironmentVariableW(L"PATH", before.data(), static_cast<DWORD>(before.size())));
    SetEnvironmentVariableW(L"PATH", L"\"T:\\bin\";T:\\none;bin;T:\\BIN\\");
    WindowsKnownPlaces known(made.Disk);
    EXPECT_EQ(known.Programs(), (std::vector<std::string>{"T:\\bin"}));
    SetEnvironmentVariableW(L"PATH", before.c_str());
}

TEST(WindowsKnownPlaces, HaveTheRootThatSteamHasNoted) {
    SystemDisk made;
    SystemRegistry registry;
    EXPECT_EQ(made.Disk.MakeDirectory("T:\\Steam").Number, 0);
    RegistryKeyHandle steam;
    ASSERT_EQ(steam.OpenOrMake(L"Software\\Valve", KEY_ALL_ACCESS), ERROR_SUCCESS);
    ASSERT_EQ(steam.OpenOrMake(L"Software\\Valve\\Steam", KEY_ALL_ACCESS), ERROR_SUCCESS);
    ASSERT_EQ(steam.SetText(L"SteamPath", L"t:/steam"), ERROR_SUCCESS);
    WindowsKnownPlaces known(made.Disk);
    const auto roots = known.SteamRoots();
    ASSERT_FALSE(roots.empty());
    EXPECT_TRUE(SameText(roots.front(), "T:\\Steam"));
}

TEST(WindowsKnownPlaces, HaveNoWinePrefixes) {
    SystemDisk made;
    EXPECT_TRUE(WindowsKnownPlaces(made.Disk).WinePrefixes().empty());
}

}  // namespace lv
