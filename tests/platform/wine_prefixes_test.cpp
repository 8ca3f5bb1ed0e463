#include "platform/linux/wine_prefixes.h"

#include <gtest/gtest.h>

#include "platform/known_places.h"
#include "tests/platform/scratch_directory.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

using Paths = std::vector<std::string>;

/// A home with nothing in it, and the environment of one who has set nothing.
struct BareHome {
    ScratchDirectory Scratch;
    fs::path Me = Scratch / "me";
    ScopedVariable Home{"HOME", Me.c_str()};
    ScopedVariable Config{"XDG_CONFIG_HOME", nullptr};
    ScopedVariable Data{"XDG_DATA_HOME", nullptr};
    ScopedVariable Wine{"WINEPREFIX", nullptr};

    void Make(const std::string& below) const { fs::create_directories(Scratch / below); }
    void MakePrefix(const std::string& below) const { Make(below + "/drive_c"); }
    void Write(const std::string& below, std::string_view bytes) const {
        fs::create_directories((Scratch / below).parent_path());
        WriteBytes(Scratch / below, bytes);
    }
    /// As they lie below the scratch directory.
    [[nodiscard]] Paths Below(const std::vector<fs::path>& paths) const {
        Paths below;
        for (const fs::path& path : paths) {
            below.push_back(path.lexically_relative(Scratch.Path()).string());
        }
        return below;
    }
    [[nodiscard]] Paths Prefixes(const std::vector<fs::path>& steamRoots = {}) const {
        return Below(FindWinePrefixes(steamRoots));
    }
};

}  // namespace

TEST(SteamRoots, AreNoneInABareHome) {
    const BareHome home;
    EXPECT_EQ(home.Below(FindSteamRoots()), Paths());
}

TEST(SteamRoots, AreThoseOfEachPackageAndEachOnce) {
    const BareHome home;
    for (const char* const place :
         {"me/.local/share/Steam", "me/.steam", "me/.steam/debian-installation",
          "me/.var/app/com.valvesoftware.Steam/.local/share/Steam", "me/.var/app/com.valvesoftware.Steam/.steam",
          "me/.var/app/com.valvesoftware.Steam/data/Steam", "me/snap/steam/common/.local/share/Steam",
          "me/snap/steam/common/.steam/steam"}) {
        home.Make(place);
    }
    fs::create_symlink("../.local/share/Steam", home.Me / ".steam/steam");
    fs::create_symlink("../.local/share/Steam", home.Me / ".steam/root");
    fs::create_symlink("../none", home.Me / ".var/app/com.valvesoftware.Steam/.steam/steam");
    EXPECT_EQ(home.Below(FindSteamRoots()),
              (Paths{"me/.local/share/Steam", "me/.steam/debian-installation",
                     "me/.var/app/com.valvesoftware.Steam/.local/share/Steam",
                     "me/.var/app/com.valvesoftware.Steam/data/Steam", "me/snap/steam/common/.local/share/Steam",
                     "me/snap/steam/common/.steam/steam"}));
}

TEST(SteamRoots, AreDirectories) {
    const BareHome home;
    home.Write("me/.local/share/Steam", "a file");
    EXPECT_EQ(home.Below(FindSteamRoots()), Paths());
}

TEST(LutrisFiles, AreInTheHomeAndInFlatpaks) {
    const BareHome home;
    EXPECT_EQ(home.Below(LutrisSettings()), (Paths{"me/.config/lutris/games", "me/.local/share/lutris/games",
                                                   "me/.var/app/net.lutris.Lutris/config/lutris/games",
                                                   "me/.var/app/net.lutris.Lutris/data/lutris/games"}));
    EXPECT_EQ(home.Below(LutrisDatabases()),
              (Paths{"me/.local/share/lutris/pga.db", "me/.var/app/net.lutris.Lutris/data/lutris/pga.db"}));
}

TEST(LutrisFiles, AreWhereTheEnvironmentSays) {
    const BareHome home;
    const ScopedVariable config("XDG_CONFIG_HOME", (home.Scratch / "config").c_str());
    const ScopedVariable data("XDG_DATA_HOME", (home.Scratch / "data").c_str());
    EXPECT_EQ(home.Below(LutrisSettings()).at(0), "config/lutris/games");
    EXPECT_EQ(home.Below(LutrisSettings()).at(1), "data/lutris/games");
    EXPECT_EQ(home.Below(LutrisDatabases()).at(0), "data/lutris/pga.db");
}

TEST(WinePrefixes, AreNoneInABareHome) {
    const BareHome home;
    EXPECT_EQ(home.Prefixes(), Paths());
}

TEST(WinePrefixes, AreTheOneInUseAndThenThoseOfOthers) {
    const BareHome home;
    for (const char* const prefix :
         {"mine", "me/.wine", "me/Games/quake", "srv/lutris", "me/Games/Heroic/Prefixes/default/Quake/pfx",
          "me/.local/share/bottles/bottles/Games", "me/.var/app/com.usebottles.bottles/data/bottles/bottles/Flat",
          "me/.PlayOnLinux/wineprefix/Unreal", "steam/steamapps/compatdata/2310/pfx"}) {
        home.MakePrefix(prefix);
    }
    home.Make("me/Games/native");
    home.Write("me/.config/lutris/games/unreal-1.yml",
               "game:\n  prefix: " + (home.Scratch / "srv/lutris").string() + "\n");
    home.Write("me/.config/lutris/games/gone-1.yml", "game:\n  prefix: /none/at/all\n");
    const ScopedVariable wine("WINEPREFIX", (home.Scratch / "mine").c_str());
    EXPECT_EQ(
        home.Prefixes({home.Scratch / "steam"}),
        (Paths{"mine", "me/Games/quake", "srv/lutris", "me/Games/Heroic/Prefixes/default/Quake/pfx",
               "me/.local/share/bottles/bottles/Games", "me/.var/app/com.usebottles.bottles/data/bottles/bottles/Flat",
               "me/.PlayOnLinux/wineprefix/Unreal", "steam/steamapps/compatdata/2310/pfx"}));
}

TEST(WinePrefixes, AreTheUsualOneWhereNoneIsSet) {
    const BareHome home;
    home.MakePrefix("me/.wine");
    EXPECT_EQ(home.Prefixes(), Paths{"me/.wine"});
}

TEST(WinePrefixes, AreEachSaidOnceWhicheverLinksLeadThere) {
    const BareHome home;
    home.MakePrefix("me/.wine");
    home.Make("me/Games");
    fs::create_symlink("../.wine", home.Me / "Games/linked");
    home.Write("me/.config/lutris/games/a.yml", "game:\n  prefix: " + (home.Me / ".wine").string() + "\n");
    EXPECT_EQ(home.Prefixes(), Paths{"me/.wine"});
}

TEST(WinePrefixes, OfLutrisAreReadFromItsSettingsAlone) {
    const BareHome home;
    home.MakePrefix("srv/lutris");
    home.Write("me/.config/lutris/games/a.txt", "game:\n  prefix: " + (home.Scratch / "srv/lutris").string() + "\n");
    EXPECT_EQ(home.Prefixes(), Paths());
}

TEST(WinePrefixes, AreNoMoreThanIsSensible) {
    const BareHome home;
    for (int i = 0; i < 1100; ++i) {
        home.MakePrefix("me/Games/p" + std::to_string(i));
    }
    EXPECT_EQ(FindWinePrefixes({}).size(), 1000u);
    EXPECT_EQ(kMostKnownPlaces, 1000u);
}

}  // namespace lv
