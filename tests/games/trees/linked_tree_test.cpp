#include "games/trees/linked_tree.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/memory/memory_platform.h"

namespace lv {

namespace {

using Names = std::vector<Text>;

constexpr TextView kTree = "Z:\\share\\quake";
constexpr TextView kOwn = "C:\\LINKED\\QUAKE";

/// A tree of Quake where nothing can be written, with the spelling of the old discs.
struct OldTree {
    MemoryFiles Disk;

    OldTree() {
        Disk.AddDrive("C:");
        Disk.AddFile("Z:\\share\\quake\\QUAKE.EXE", "MZ");
        Disk.AddFile("Z:\\share\\quake\\ID1\\PAK0.PAK", "PACK0");
        Disk.AddFile("Z:\\share\\quake\\ID1\\PAK1.PAK", "PACK1");
        Disk.AddFile("Z:\\share\\quake\\ID1\\MAPS\\START.BSP", "BSP");
        Disk.AddFile("Z:\\share\\quake\\Hipnotic\\PAK0.PAK", "PACKH");
        Disk.ReadOnly = {"z:\\share\\quake", "z:\\share\\quake\\id1", "z:\\share\\quake\\id1\\maps"};
    }
    LinkedTree Link() {
        const auto tree = TreeIn(Disk, kTree);
        return LinkTree(Disk, tree.value_or(GameTree{.GameKind = Game::Quake, .Directory = Text(kTree)}), kOwn);
    }
    Names In(const Text& directory) {
        Names names;
        for (const DirectoryEntry& entry : Disk.List(directory).Value) {
            if (!entry.Name.starts_with('.')) {
                names.push_back(entry.Name);
            }
        }
        std::ranges::sort(names);
        return names;
    }
};

}  // namespace

TEST(LinkTree, LinksEveryFileOfTheGameDirectoriesInLowerCase) {
    OldTree made;
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Fault.Number, 0) << done.Fault.Text;
    EXPECT_EQ(done.Made, 4u);
    EXPECT_TRUE(done.IsWhole);
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE"), (Names{"hipnotic", "id1"}));
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\id1"), (Names{"maps", "pak0.pak", "pak1.pak"}));
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\id1\\maps"), (Names{"start.bsp"}));
    EXPECT_EQ(made.Disk.Bytes("C:\\LINKED\\QUAKE\\id1\\pak1.pak"), "PACK1");
    EXPECT_EQ(TreeIn(made.Disk, kOwn)->GameKind, Game::Quake);
    EXPECT_TRUE(TreeIn(made.Disk, kOwn)->IsSpelledForToday);
}

TEST(LinkTree, KeepsTheSpellingOfUnreal) {
    OldTree made;
    made.Disk.AddFile("Z:\\unreal\\System\\Unreal.exe");
    made.Disk.AddFile("Z:\\unreal\\Maps\\Vortex2.unr");
    LinkTree(made.Disk, *TreeIn(made.Disk, "Z:\\unreal"), "C:\\UNREAL");
    EXPECT_EQ(made.In("C:\\UNREAL"), (Names{"Maps", "System"}));
    EXPECT_EQ(made.In("C:\\UNREAL\\System"), (Names{"Unreal.exe"}));
}

TEST(LinkTree, ChangesNothingWhenItRunsAgain) {
    OldTree made;
    made.Link();
    made.Disk.Log.clear();
    const LinkedTree again = made.Link();
    EXPECT_EQ(again.Made, 0u);
    EXPECT_EQ(again.Removed, 0u);
    EXPECT_EQ(again.Kept, 0u);
    EXPECT_EQ(again.Fault.Number, 0);
    EXPECT_EQ(made.Disk.Log, Names());
}

TEST(LinkTree, LeavesWhatIsTheUsers) {
    OldTree made;
    made.Disk.AddFile("C:\\LINKED\\QUAKE\\id1\\PAK1.PAK", "mine");
    made.Disk.AddFile("C:\\LINKED\\QUAKE\\id1\\autoexec.cfg", "bind x quit");
    made.Disk.AddFile("D:\\other.pak", "other");
    made.Disk.AddFileLink("C:\\LINKED\\QUAKE\\id1\\pak0.pak", "D:\\other.pak");
    made.Disk.AddFileLink("C:\\LINKED\\QUAKE\\id1\\gone.pak", "D:\\gone.pak");
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Kept, 2u);
    EXPECT_EQ(done.Removed, 0u);
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\id1"), (Names{"PAK1.PAK", "autoexec.cfg", "gone.pak", "maps", "pak0.pak"}));
    EXPECT_EQ(made.Disk.Bytes("C:\\LINKED\\QUAKE\\id1\\PAK1.PAK"), "mine");
    EXPECT_EQ(made.Disk.Bytes("C:\\LINKED\\QUAKE\\id1\\autoexec.cfg"), "bind x quit");
    EXPECT_EQ(made.Disk.Bytes("C:\\LINKED\\QUAKE\\id1\\pak0.pak"), "other");
}

TEST(LinkTree, LeavesAFileThatStandsWhereADirectoryWould) {
    OldTree made;
    made.Disk.AddFile("C:\\LINKED\\QUAKE\\hipnotic", "mine");
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Kept, 1u);
    EXPECT_EQ(done.Fault.Number, 0);
    EXPECT_EQ(made.Disk.Bytes("C:\\LINKED\\QUAKE\\hipnotic"), "mine");
    EXPECT_TRUE(made.Disk.FileExists("C:\\LINKED\\QUAKE\\id1\\pak0.pak"));
}

TEST(LinkTree, DoesNotGoIntoADirectoryThatIsALink) {
    OldTree made;
    made.Disk.AddFile("D:\\mine\\a.cfg");
    made.Disk.AddLink("C:\\LINKED\\QUAKE\\id1", "D:\\mine");
    made.Disk.AddLink("C:\\LINKED\\QUAKE\\own", "D:\\mine");
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Kept, 1u);
    EXPECT_EQ(made.In("D:\\mine"), (Names{"a.cfg"}));
}

TEST(LinkTree, FollowsNoLinkOutOfTheTreeButToAGameDirectory) {
    OldTree made;
    made.Disk.AddFile("Z:\\home\\letter.txt");
    made.Disk.AddFile("Z:\\home\\deep\\pak0.pak");
    made.Disk.AddLink("Z:\\share\\quake\\self", "Z:\\home");
    made.Disk.AddLink("Z:\\share\\quake\\circle", "Z:\\share\\quake");
    made.Disk.AddLink("Z:\\share\\quake\\ID1\\circle", "Z:\\share\\quake\\ID1");
    made.Disk.AddFile("Z:\\elsewhere\\rogue\\PAK0.PAK", "PACKR");
    made.Disk.AddLink("Z:\\share\\quake\\rogue", "Z:\\elsewhere\\rogue");
    const LinkedTree done = made.Link();
    EXPECT_TRUE(done.IsWhole);
    EXPECT_EQ(made.In(Text(kOwn)), (Names{"hipnotic", "id1", "rogue"}));
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\id1"), (Names{"maps", "pak0.pak", "pak1.pak"}));
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\rogue"), (Names{"pak0.pak"}));
}

TEST(LinkTree, BringsALinkUpToDate) {
    OldTree made;
    made.Disk.AddFileLink("C:\\LINKED\\QUAKE\\id1\\pak0.pak", "Z:\\share\\quake\\hipnotic\\pak0.pak");
    made.Disk.AddFileLink("C:\\LINKED\\QUAKE\\id1\\PAK1.PAK", "Z:\\share\\quake\\id1\\pak1.pak");
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Kept, 0u);
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\id1"), (Names{"maps", "pak0.pak", "pak1.pak"}));
    EXPECT_EQ(made.Disk.Bytes("C:\\LINKED\\QUAKE\\id1\\pak0.pak"), "PACK0");
}

TEST(LinkTree, RemovesLinksToWhatHasGone) {
    OldTree made;
    made.Disk.AddFile("Z:\\share\\quake\\mod\\sound\\a.wav");
    made.Link();
    made.Disk.AddFile("C:\\LINKED\\QUAKE\\hipnotic\\save.sav");
    for (const char* const gone :
         {"id1\\pak1.pak", "id1\\maps\\start.bsp", "hipnotic\\pak0.pak", "mod\\sound\\a.wav"}) {
        EXPECT_EQ(made.Disk.Delete(Join(kTree, "\\", gone)).Number, 0) << gone;
    }
    EXPECT_EQ(made.Disk.RemoveDirectory("Z:\\share\\quake\\hipnotic").Number, 0);
    EXPECT_EQ(made.Disk.RemoveDirectory("Z:\\share\\quake\\mod\\sound").Number, 0);
    EXPECT_EQ(made.Disk.RemoveDirectory("Z:\\share\\quake\\mod").Number, 0);
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Removed, 4u);
    EXPECT_EQ(done.Made, 0u);
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE"), (Names{"hipnotic", "id1"}));
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\id1"), (Names{"maps", "pak0.pak"}));
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\hipnotic"), (Names{"save.sav"}));
    EXPECT_EQ(made.Link().Removed, 0u);
}

TEST(LinkTree, LinksWhatHasBeenAdded) {
    OldTree made;
    made.Link();
    made.Disk.AddFile("Z:\\share\\quake\\Mod\\Progs.dat");
    EXPECT_EQ(made.Link().Made, 1u);
    EXPECT_TRUE(made.Disk.FileExists("C:\\LINKED\\QUAKE\\mod\\progs.dat"));
}

TEST(LinkTree, CopiesOnceWhatAGameWritesOver) {
    OldTree made;
    for (const char* const name : {"CONFIG.CFG", "s0.sav", "mine.qs", "mine.hs", "a.q2s", "b.sns", "c.gip", "d.ssv",
                                   "e.sv2", "f.usa", "g.ini"}) {
        made.Disk.AddFile(Join("Z:\\share\\quake\\ID1\\", name), "theirs");
    }
    EXPECT_EQ(made.Link().Copied, 11u);
    EXPECT_FALSE(made.Disk.IsLinkTo("C:\\LINKED\\QUAKE\\id1\\config.cfg", "Z:\\share\\quake\\ID1\\CONFIG.CFG"));
    EXPECT_EQ(made.Disk.Replace("C:\\LINKED\\QUAKE\\id1\\config.cfg", "mine").Number, 0);
    EXPECT_EQ(made.Disk.Bytes("Z:\\share\\quake\\ID1\\CONFIG.CFG"), "theirs");
    const LinkedTree again = made.Link();
    EXPECT_EQ(again.Copied + again.Kept, 0u);
    EXPECT_EQ(made.Disk.Bytes("C:\\LINKED\\QUAKE\\id1\\config.cfg"), "mine");
}

TEST(LinkTree, LeavesOutSettingsThatCannotBeCopiedAndLinksTheRest) {
    OldTree made;
    made.Disk.AddSparseFile("Z:\\share\\quake\\ID1\\A.CFG", "x", kLargestWholeFile + 1);
    made.Disk.AddFile("Z:\\share\\quake\\ID1\\B.CFG", "bind x quit");
    made.Disk.AddFileLink("Z:\\share\\quake\\ID1\\gone.cfg", "D:\\gone.cfg");
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Fault.Number, 0) << done.Fault.Text;
    EXPECT_TRUE(done.IsWhole);
    EXPECT_EQ(done.LeftOut, (Names{"ID1\\A.CFG"}));
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\id1"), (Names{"b.cfg", "maps", "pak0.pak", "pak1.pak"}));
    EXPECT_TRUE(made.Disk.FileExists("C:\\LINKED\\QUAKE\\hipnotic\\pak0.pak"));
}

TEST(LinkTree, FollowsNoSettingsFileThatIsALink) {
    OldTree made;
    made.Disk.AddFile("Z:\\etc\\passwd", "root");
    made.Disk.AddFileLink("Z:\\share\\quake\\ID1\\config.cfg", "Z:\\etc\\passwd");
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.LeftOut, (Names{"ID1\\config.cfg"}));
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\id1"), (Names{"maps", "pak0.pak", "pak1.pak"}));
}

TEST(LinkTree, EndsWhereACopyHasNoRoom) {
    OldTree made;
    made.Disk.AddFile("Z:\\share\\quake\\ID1\\config.cfg");
    made.Disk.Refused["c:\\linked\\quake\\id1\\config.cfg"] = MakeError(61);
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Fault.Number, 61);
    EXPECT_EQ(done.LeftOut, Names());
}

TEST(LinkTree, LeavesTheRereleaseToItself) {
    OldTree made;
    made.Disk.AddFile("Z:\\share\\quake\\rerelease\\id1\\pak0.pak");
    made.Link();
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE"), (Names{"hipnotic", "id1"}));
}

TEST(LinkTree, PassesOverDevices) {
    OldTree made;
    made.Disk.AddDevice("Z:\\share\\quake\\ID1\\pipe");
    EXPECT_EQ(made.Link().Fault.Number, 0);
    EXPECT_FALSE(made.Disk.FileExists("C:\\LINKED\\QUAKE\\id1\\pipe"));
}

TEST(LinkTree, RefusesADirectoryWithinTheOther) {
    OldTree made;
    const GameTree tree = *TreeIn(made.Disk, kTree);
    EXPECT_EQ(LinkTree(made.Disk, tree, "Z:\\share\\quake").Fault.Number, 75);
    EXPECT_EQ(LinkTree(made.Disk, tree, "Z:\\share\\quake\\own\\deep").Fault.Number, 75);
    EXPECT_EQ(LinkTree(made.Disk, tree, "Z:\\share").Fault.Number, 75);
    made.Disk.AddLink("C:\\way", "Z:\\share\\quake");
    EXPECT_EQ(LinkTree(made.Disk, tree, "C:\\way\\own").Fault.Number, 75);
    EXPECT_EQ(LinkTree(made.Disk, tree, "Z:\\share\\quake2").Fault.Number, 0);
}

TEST(LinkTree, SaysThatTheTreeIsNotThere) {
    OldTree made;
    const LinkedTree done = LinkTree(made.Disk, {.GameKind = Game::Quake, .Directory = "Z:\\none"}, kOwn);
    EXPECT_EQ(done.Fault.Number, 76);
    EXPECT_FALSE(made.Disk.DirectoryExists(kOwn));
}

TEST(LinkTree, StopsAtTheFirstErrorAndTellsIt) {
    OldTree made;
    made.Disk.AddDirectory("C:\\LINKED\\QUAKE\\id1");
    made.Disk.ReadOnly.insert("c:\\linked\\quake\\id1");
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Fault.Number, 70);
}

TEST(LinkTree, GoesIntoNoCircleOfLinks) {
    OldTree made;
    made.Disk.AddLink("Z:\\share\\quake\\ID1\\round", "Z:\\share\\quake\\ID1");
    const LinkedTree done = made.Link();
    EXPECT_TRUE(done.IsWhole);
    EXPECT_EQ(done.Fault.Number, 0);
    EXPECT_TRUE(made.Disk.FileExists("C:\\LINKED\\QUAKE\\id1\\pak0.pak"));
    EXPECT_FALSE(made.Disk.DirectoryExists("C:\\LINKED\\QUAKE\\id1\\round"));
}

TEST(LinkTree, PassesOverALinkToWhatHasGone) {
    OldTree made;
    made.Disk.AddFileLink("Z:\\share\\quake\\ID1\\music.pak", "D:\\music.pak");
    const LinkedTree done = made.Link();
    EXPECT_EQ(done.Fault.Number, 0) << done.Fault.Text;
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\id1"), (Names{"maps", "pak0.pak", "pak1.pak"}));
}

TEST(LinkTree, LeavesTheLinksToADirectoryThatCannotBeRead) {
    OldTree made;
    made.Link();
    ASSERT_EQ(made.Disk.Delete("Z:\\share\\quake\\hipnotic\\pak0.pak").Number, 0);
    made.Disk.Unreadable.insert("z:\\share\\quake\\hipnotic");
    const LinkedTree done = made.Link();
    EXPECT_FALSE(done.IsWhole);
    EXPECT_EQ(done.Removed, 0u);
    EXPECT_EQ(made.In("C:\\LINKED\\QUAKE\\hipnotic"), (Names{"pak0.pak"}));
}

TEST(LinkTree, EndsWhereItIsNotToGoOn) {
    OldTree made;
    made.Disk.AddFileLink("C:\\LINKED\\QUAKE\\mod\\gone.pak", "Z:\\share\\quake\\mod\\gone.pak");
    int asked = 0;
    const LinkedTree done = LinkTree(made.Disk, *TreeIn(made.Disk, kTree), kOwn, [&asked] { return ++asked < 4; });
    EXPECT_FALSE(done.IsWhole);
    EXPECT_EQ(done.Made, 1u);
    EXPECT_EQ(done.Removed, 0u);
    EXPECT_EQ(asked, 4);
    EXPECT_EQ(done.Fault.Number, 0);
}

}  // namespace lv
