// A game's tree and its links on a real disk: letter case, rights, and links as the system keeps them.

#include "games/trees/linked_tree.h"

#include <gtest/gtest.h>

#include "tests/platform/linux_home.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

/// "Z:" of this machine leads to a tree as an old disc has it.
struct Shared {
    Home Own;
    fs::path Tree = Own.Scratch / "share/quake";
    std::string TreePath;

    Shared() {
        fs::create_directories(Tree / "Id1/MAPS");
        fs::create_directories(Tree / "ROGUE");
        WriteBytes(Tree / "Id1/PAK0.PAK", "PACK0");
        WriteBytes(Tree / "Id1/PAK1.PAK", "PACK1");
        WriteBytes(Tree / "Id1/MAPS/START.BSP", "BSP");
        WriteBytes(Tree / "ROGUE/pak0.pak", "PACKR");
        TreePath = Own.Disk.FromHost(Tree.string());
    }
    LinkedTree Link() { return LinkTree(Own.Disk, *TreeIn(Own.Disk, TreePath), "C:\\LINKED\\quake"); }
    [[nodiscard]] fs::path Linked(const std::string& below) const { return Own.C / "LINKED/quake" / below; }
};

}  // namespace

TEST(LinkedTreeOnDisk, ReadsUnderTheNamesThatTodaysEnginesLookFor) {
    Shared made;
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Fault.Number, 0) << done.Fault.Text;
    EXPECT_EQ(done.Made, 4u);
    EXPECT_EQ(BytesOf(made.Linked("id1/pak0.pak")), "PACK0");
    EXPECT_EQ(BytesOf(made.Linked("id1/pak1.pak")), "PACK1");
    EXPECT_EQ(BytesOf(made.Linked("id1/maps/start.bsp")), "BSP");
    EXPECT_EQ(BytesOf(made.Linked("rogue/pak0.pak")), "PACKR");
    EXPECT_EQ(fs::read_symlink(made.Linked("id1/pak0.pak")), made.Tree / "Id1/PAK0.PAK");
}

TEST(LinkedTreeOnDisk, FollowsNoSettingsFileThatIsALink) {
    Shared made;
    WriteBytes(made.Own.Scratch / "secret", "root");
    WriteBytes(made.Tree / "Id1/own.cfg", "bind x quit");
    fs::create_symlink(made.Own.Scratch / "secret", made.Tree / "Id1/config.cfg");
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.LeftOut, (std::vector<Text>{"Id1\\config.cfg"}));
    EXPECT_FALSE(fs::exists(made.Linked("id1/config.cfg")));
    EXPECT_EQ(BytesOf(made.Linked("id1/own.cfg")), "bind x quit");
}

TEST(LinkedTreeOnDisk, StaysAsItIsAtASecondRun) {
    Shared made;
    made.Link();
    const auto before = fs::last_write_time(made.Linked("id1"));
    const LinkedTree again = made.Link();
    EXPECT_EQ(again.Made + again.Removed + again.Kept, 0u);
    EXPECT_EQ(fs::last_write_time(made.Linked("id1")), before);
}

TEST(LinkedTreeOnDisk, FollowsATreeWhoseNamesChange) {
    Shared made;
    made.Link();
    fs::rename(made.Tree / "Id1/PAK0.PAK", made.Tree / "Id1/pak0.pak");
    fs::remove(made.Tree / "Id1/PAK1.PAK");
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Fault.Number, 0);
    EXPECT_EQ(fs::read_symlink(made.Linked("id1/pak0.pak")), made.Tree / "Id1/pak0.pak");
    EXPECT_FALSE(fs::is_symlink(made.Linked("id1/pak1.pak")));
}

TEST(LinkedTreeOnDisk, LeavesFilesAndLinksOfTheUsers) {
    Shared made;
    fs::create_directories(made.Linked("id1"));
    WriteBytes(made.Linked("id1/Pak0.pak"), "mine");
    fs::create_symlink("../elsewhere.pak", made.Linked("id1/pak1.pak"));
    fs::create_symlink(made.Tree / "ROGUE", made.Linked("rogue"));
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Fault.Number, 0);
    EXPECT_EQ(done.Kept, 3u);
    EXPECT_EQ(BytesOf(made.Linked("id1/Pak0.pak")), "mine");
    EXPECT_FALSE(fs::exists(made.Linked("id1/pak0.pak")));
    EXPECT_EQ(fs::read_symlink(made.Linked("id1/pak1.pak")), "../elsewhere.pak");
    EXPECT_EQ(std::distance(fs::directory_iterator(made.Tree / "ROGUE"), fs::directory_iterator()), 1);
}

TEST(LinkedTreeOnDisk, LinksATreeWhoseGameDirectoryIsALink) {
    Shared made;
    fs::rename(made.Tree / "Id1", made.Own.Scratch / "data1");
    fs::create_symlink(made.Own.Scratch / "data1", made.Tree / "Id1");
    EXPECT_EQ(made.Link().Made, 4u);
    EXPECT_EQ(BytesOf(made.Linked("id1/pak0.pak")), "PACK0");
    const LinkedTree again = made.Link();
    EXPECT_EQ(again.Made + again.Removed + again.Kept, 0u);
}

}  // namespace lv
