#include "platform/linux/user_directories.h"

#include <gtest/gtest.h>

#include "tests/support/game_yard.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

/// A home and nothing else.
struct PlainUser {
    ScopedVariable Home{"HOME", "/home/me"};
    ScopedVariable Config{"XDG_CONFIG_HOME", nullptr};
    ScopedVariable Data{"XDG_DATA_HOME", nullptr};
    ScopedVariable Cache{"XDG_CACHE_HOME", nullptr};
    ScopedVariable State{"XDG_STATE_HOME", nullptr};
    ScopedVariable Wine{"WINEPREFIX", nullptr};
};

}  // namespace

TEST(UserDirectories, LieInTheHomeByDefault) {
    const PlainUser user;
    EXPECT_EQ(HomeDirectory(), fs::path("/home/me"));
    EXPECT_EQ(ConfigDirectory(), fs::path("/home/me/.config/lorvane3d"));
    EXPECT_EQ(DataDirectory(), fs::path("/home/me/.local/share/lorvane3d"));
    EXPECT_EQ(CacheDirectory(), fs::path("/home/me/.cache/lorvane3d"));
    EXPECT_EQ(StateDirectory(), fs::path("/home/me/.local/state/lorvane3d"));
    EXPECT_EQ(WinePrefix(), fs::path("/home/me/.wine"));
}

TEST(UserDirectories, LieWhereTheEnvironmentSays) {
    const PlainUser user;
    const ScopedVariable config("XDG_CONFIG_HOME", "/c");
    const ScopedVariable data("XDG_DATA_HOME", "/d");
    const ScopedVariable cache("XDG_CACHE_HOME", "/e");
    const ScopedVariable state("XDG_STATE_HOME", "/s");
    const ScopedVariable wine("WINEPREFIX", "/w");
    EXPECT_EQ(ConfigDirectory(), fs::path("/c/lorvane3d"));
    EXPECT_EQ(DataDirectory(), fs::path("/d/lorvane3d"));
    EXPECT_EQ(CacheDirectory(), fs::path("/e/lorvane3d"));
    EXPECT_EQ(StateDirectory(), fs::path("/s/lorvane3d"));
    EXPECT_EQ(WinePrefix(), fs::path("/w"));
}

TEST(HomePlace, LiesWhereTheEnvironmentHasPutItsBase) {
    const PlainUser user;
    EXPECT_EQ(HomePlace("games"), fs::path("/home/me/games"));
    EXPECT_EQ(HomePlace(".config/heroic"), fs::path("/home/me/.config/heroic"));
    EXPECT_EQ(HomePlace(".local/share/games"), fs::path("/home/me/.local/share/games"));
    const ScopedVariable config("XDG_CONFIG_HOME", "/c");
    const ScopedVariable data("XDG_DATA_HOME", "/d");
    EXPECT_EQ(HomePlace(".config/heroic"), fs::path("/c/heroic"));
    EXPECT_EQ(HomePlace(".local/share/games"), fs::path("/d/games"));
    EXPECT_EQ(HomePlace("games"), fs::path("/home/me/games"));
}

TEST(UserDirectories, DoNotHeedARelativePathNorAnEmptyOne) {
    const PlainUser user;
    const ScopedVariable config("XDG_CONFIG_HOME", "config");
    const ScopedVariable data("XDG_DATA_HOME", "");
    EXPECT_EQ(ConfigDirectory(), fs::path("/home/me/.config/lorvane3d"));
    EXPECT_EQ(DataDirectory(), fs::path("/home/me/.local/share/lorvane3d"));
}

TEST(UserDirectories, LieInTheHomeThatTheSystemKnowsWithoutAVariable) {
    for (const char* const value : {static_cast<const char*>(nullptr), ""}) {
        const ScopedVariable home("HOME", value);
        EXPECT_TRUE(HomeDirectory().is_absolute());
    }
}

TEST(ProgramFileDirectory, IsWhereThisProgramLies) {
    EXPECT_EQ(ProgramFileDirectory(), fs::read_symlink("/proc/self/exe").parent_path());
    EXPECT_TRUE(fs::is_directory(ProgramFileDirectory()));
}

}  // namespace lv
