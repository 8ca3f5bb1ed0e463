// The quick look for games over a real home, with all that leads to them there.

#include <gtest/gtest.h>

#include <algorithm>

#include "games/trees/tree_search.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/linux_known_places.h"
#include "tests/platform/scratch_directory.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

using Paths = std::vector<std::string>;

/// A home whose drive C: is that of its Wine prefix.
struct Player {
    ScratchDirectory Scratch;
    fs::path Home = Scratch / "me";
    ScopedVariable HomeSet{"HOME", Home.c_str()};
    ScopedVariable Config{"XDG_CONFIG_HOME", nullptr};
    ScopedVariable Data{"XDG_DATA_HOME", nullptr};
    ScopedVariable Wine{"WINEPREFIX", nullptr};

    Player() {
        fs::create_directories(Home / ".wine/drive_c");
        fs::create_directories(Scratch / "data/drives");
        fs::create_symlink(Home / ".wine/drive_c", Scratch / "data/drives/c:");
        fs::create_symlink("/", Scratch / "data/drives/z:");
    }
    void AddArchive(const std::string& below) const {
        fs::create_directories((Scratch / below).parent_path());
        WriteBytes(Scratch / below, "PACK");
    }
    [[nodiscard]] std::string On(const std::string& below) const {
        std::string path = "Z:" + (Scratch / below).string();
        std::ranges::replace(path, '/', '\\');
        return path;
    }
    [[nodiscard]] Paths Look() const {
        LinuxFiles files({Scratch / "data/drives", Home / ".wine", Scratch / "program"});
        LinuxKnownPlaces places(files, Scratch / "system");
        Paths found;
        for (const GameTree& tree : QuickLook(files, &places)) {
            found.push_back(tree.Directory);
        }
        return found;
    }
};

}  // namespace

TEST(QuickLookOnDisk, FindsGamesInTheHomeTheSystemSteamAndThePrefix) {
    const Player player;
    player.AddArchive("me/games/quake/id1/pak0.pak");
    player.AddArchive("system/usr/share/games/quake2/baseq2/pak0.pak");
    player.AddArchive("me/.local/share/Steam/steamapps/common/Quake/Id1/PAK0.PAK");
    player.AddArchive("library/steamapps/common/Hexen 2/data1/pak0.pak");
    player.AddArchive("me/.wine/drive_c/GOG Games/Quake/id1/pak0.pak");
    player.AddArchive("me/Games/heretic/drive_c/Heretic II/base/htic2-0.pak");
    WriteBytes(player.Scratch / "me/.local/share/Steam/steamapps/libraryfolders.vdf",
               "\"libraryfolders\" { \"1\" { \"path\" \"" + (player.Scratch / "library").string() + "\" } }");
    EXPECT_EQ(player.Look(), (Paths{player.On("me/games/quake"), player.On("me/Games/heretic/drive_c/Heretic II"),
                                    player.On("system/usr/share/games/quake2"),
                                    player.On("me/.local/share/Steam/steamapps/common/Quake"),
                                    player.On("library/steamapps/common/Hexen 2"), "C:\\GOG Games\\Quake"}));
}

TEST(QuickLookOnDisk, FindsTreesInBothDirectoriesForGames) {
    const Player player;
    player.AddArchive("me/games/quake/id1/pak0.pak");
    player.AddArchive("me/Games/quake2/baseq2/pak0.pak");
    EXPECT_EQ(player.Look(), (Paths{player.On("me/games/quake"), player.On("me/Games/quake2")}));
    LinuxFiles files({player.Scratch / "data/drives", player.Home / ".wine", player.Scratch / "program"});
    const auto tree = TreeIn(files, LowerCase(player.On("me/Games/quake2")));
    ASSERT_TRUE(tree);
    EXPECT_EQ(tree->GameKind, Game::Quake2);
}

TEST(QuickLookOnDisk, FindsATreeOfTwoLinksOnce) {
    const Player player;
    player.AddArchive("me/games/quake/id1/pak0.pak");
    fs::create_symlink("quake", player.Home / "games/q");
    fs::create_symlink(player.Home / "games/quake", player.Home / ".wine/drive_c/quake");
    const Paths found = player.Look();
    EXPECT_EQ(found.size(), 1u);
}

TEST(QuickLookOnDisk, FindsNothingInABareHome) {
    EXPECT_EQ(Player().Look(), Paths());
}

}  // namespace lv
