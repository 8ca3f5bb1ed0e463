#include "platform/linux/linux_known_places.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>

#include "platform/linux/files/linux_files.h"
#include "tests/platform/scratch_directory.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

using Places = std::vector<std::string>;

/// A machine with this home and these system directories, "Z:" being all of it.
struct Machine {
    ScratchDirectory Scratch;
    fs::path HomePath = Scratch / "home/me";
    fs::path System = Scratch / "system";
    ScopedVariable Home{"HOME", HomePath.c_str()};
    ScopedVariable Config{"XDG_CONFIG_HOME", nullptr};
    ScopedVariable Data{"XDG_DATA_HOME", nullptr};
    ScopedVariable Wine{"WINEPREFIX", nullptr};
    ScopedVariable Path{"PATH", ((System / "usr/bin").string() + ":bin::" + (System / "usr/bin/").string()).c_str()};
    LinuxFiles Disk{{Scratch / "data/drives", Scratch / "none", Scratch / "program"}};
    LinuxKnownPlaces Known{Disk, System};

    void Make(const std::string& below) const { fs::create_directories(Scratch / below); }
    void Write(const std::string& below, std::string_view bytes) const {
        fs::create_directories((Scratch / below).parent_path());
        WriteBytes(Scratch / below, bytes);
    }
    /// The path on the drives of what lies below the scratch directory.
    [[nodiscard]] std::string On(const std::string& below) const {
        std::string path = "Z:" + (Scratch / below).string();
        std::replace(path.begin(), path.end(), '/', '\\');
        return path;
    }
    [[nodiscard]] Places On(const Places& below) const {
        Places paths;
        std::transform(below.begin(), below.end(), std::back_inserter(paths), [this](auto& each) { return On(each); });
        return paths;
    }
};

}  // namespace

TEST(LinuxKnownPlaces, AreNoneOnABareMachine) {
    Machine machine;
    EXPECT_EQ(machine.Known.Programs(), Places());
    EXPECT_EQ(machine.Known.Games(), Places());
    EXPECT_EQ(machine.Known.SteamRoots(), Places());
    EXPECT_EQ(machine.Known.WinePrefixes(), Places());
    EXPECT_EQ(machine.Known.NotedGames(), Places());
}

TEST(LinuxKnownPlaces, HaveProgramsInThePathFirst) {
    Machine machine;
    for (const char* const place :
         {"system/usr/bin", "system/usr/games", "system/usr/local/games", "system/opt/b/bin", "system/opt/a",
          "system/snap/bin", "system/var/lib/flatpak/exports/bin", "home/me/bin", "home/me/.local/bin",
          "home/me/Applications", "home/me/.local/share/flatpak/exports/bin"}) {
        machine.Make(place);
    }
    EXPECT_EQ(machine.Known.Programs(),
              machine.On(Places{"system/usr/bin", "system/usr/games", "system/usr/local/games", "home/me/bin",
                                "home/me/.local/bin", "home/me/Applications",
                                "home/me/.local/share/flatpak/exports/bin", "system/var/lib/flatpak/exports/bin",
                                "system/snap/bin", "system/opt", "system/opt/a", "system/opt/b", "system/opt/b/bin"}));
}

TEST(LinuxKnownPlaces, HaveTheUsersGamesBeforeTheSystems) {
    Machine machine;
    for (const char* const place :
         {"system/opt", "system/usr/share/games", "system/usr/local/share/games", "home/me/games", "home/me/Games",
          "home/me/.local/share/games", "home/me/GOG Games"}) {
        machine.Make(place);
    }
    EXPECT_EQ(machine.Known.Games(),
              machine.On(Places{"home/me/games", "home/me/Games", "home/me/.local/share/games", "home/me/GOG Games",
                                "system/usr/share/games", "system/usr/local/share/games", "system/opt"}));
}

TEST(LinuxKnownPlaces, SayADirectoryOnceWhicheverLinksLeadToIt) {
    Machine machine;
    machine.Make("home/me/games");
    fs::create_symlink("games", machine.HomePath / "Games");
    EXPECT_EQ(machine.Known.Games(), (Places{machine.On("home/me/games")}));
}

TEST(LinuxKnownPlaces, KnowWhereDataAndSettingsLie) {
    Machine machine;
    EXPECT_EQ(machine.Known.DataDirectory(), machine.On("home/me/.local/share"));
    EXPECT_EQ(machine.Known.ConfigDirectory(), machine.On("home/me/.config"));
}

TEST(LinuxKnownPlaces, SaySteamsRootsAndThePrefixesByTheDrives) {
    Machine machine;
    machine.Make("home/me/.wine/drive_c");
    machine.Make("home/me/.local/share/Steam/steamapps/compatdata/2310/pfx/drive_c");
    EXPECT_EQ(machine.Known.SteamRoots(), machine.On(Places{"home/me/.local/share/Steam"}));
    EXPECT_EQ(machine.Known.WinePrefixes(),
              machine.On(Places{"home/me/.wine", "home/me/.local/share/Steam/steamapps/compatdata/2310/pfx"}));
}

TEST(LinuxKnownPlaces, HaveOfTheNotedGamesThoseThatAreThere) {
    Machine machine;
    machine.Make("srv/heroic");
    machine.Make("srv/epic");
    machine.Make("srv/lutris");
    machine.Write("srv/file", "");
    const auto path = [&](const char* below) { return (machine.Scratch / below).string(); };
    machine.Write("home/me/.config/heroic/gog_store/installed.json",
                  R"({"installed":[{"install_path":")" + path("srv/heroic") + R"("},{"install_path":"/none"},)" +
                      R"({"install_path":")" + path("srv/file") + R"("},{"install_path":"srv"},)" +
                      R"({"install_path":")" + path("srv/x/../heroic") + R"("}]})");
    machine.Write("home/me/.var/app/com.heroicgameslauncher.hgl/config/heroic/legendaryConfig/legendary/installed.json",
                  R"({"a":{"install_path":")" + path("srv/epic") + R"("}})");
    machine.Make("home/me/.local/share/lutris");
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open(path("home/me/.local/share/lutris/pga.db").c_str(), &base), SQLITE_OK);
    sqlite3_exec(base, "CREATE TABLE games(directory, executable, installed);", nullptr, nullptr, nullptr);
    sqlite3_exec(base, ("INSERT INTO games VALUES('" + path("srv/lutris") + "', '', 1);").c_str(), nullptr, nullptr,
                 nullptr);
    sqlite3_close(base);
    EXPECT_EQ(machine.Known.NotedGames(), machine.On(Places{"srv/heroic", "srv/epic", "srv/lutris"}));
    EXPECT_EQ(std::distance(fs::directory_iterator(path("home/me/.local/share/lutris")), fs::directory_iterator()), 1);
}

}  // namespace lv
