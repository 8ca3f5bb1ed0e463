#include "games/trees/link_sources.h"

#include <gtest/gtest.h>

#include "foundation/field_strings.h"
#include "foundation/settings.h"
#include "games/trees/tree_room.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

class LinkSources : public ::testing::Test {
  protected:
    LinkSources() {
        system.Disk.AddDrive("C:");
        system.Disk.AddFile("Z:\\share\\quake\\id1\\pak0.pak", "PACK0");
        system.Disk.AddFile("Z:\\share\\quake\\id1\\pak1.pak", "PACK1");
    }
    LinkedTree Make() { return MakeLinks(run, *TreeIn(system.Disk, kTree), links); }
    Text Kept() { return GetSetting(run, run.AppName, "LinkedTrees", LastPathPart(links), "(none)"); }
    bool IsThere(TextView below) { return system.Disk.FileExists(Join(links, "\\", below)); }

    static constexpr TextView kTree = "Z:\\share\\quake";
    const Text links = LinkedTreeDirectory(kTree);
    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(LinkSources, AreKeptWithTheLinks) {
    EXPECT_EQ(SourceOfLinks(run, links), "");
    EXPECT_EQ(Make().Made, 2u);
    EXPECT_EQ(Kept(), "Z:\\share\\quake");
    EXPECT_EQ(SourceOfLinks(run, UpperCase(links)), "Z:\\share\\quake");
}

TEST_F(LinkSources, AreNotKeptOfLinksThatCouldNotBeMade) {
    system.Disk.AddFile("C:\\lorvane3d");
    EXPECT_NE(Make().Fault.Number, 0);
    EXPECT_EQ(Kept(), "(none)");
}

TEST_F(LinkSources, TellOfFilesThatAreLeftOutOnceAsLongAsTheyAreTheSame) {
    for (int i = 10; i < 32; ++i) {
        system.Disk.AddSparseFile(Join(kTree, "\\id1\\", std::to_string(i), ".cfg"), "x", kLargestWholeFile + 1);
    }
    user.Expect({"Settings Left Out", "\tid1\\29.cfg\r\n\tand 2 more\r\n\r\nAll others are there."});
    EXPECT_EQ(Make().LeftOut.size(), 22u);
    Make();
    RefreshLinks(run, links);
    system.Disk.AddSparseFile(Join(kTree, "\\id1\\new.cfg"), "x", kLargestWholeFile + 1);
    user.Expect({"Settings Left Out", "and 3 more"});
    RefreshLinks(run, links);
}

TEST_F(LinkSources, AreAskedForInTheProgramsOwnDirectoryAlone) {
    Save(run, "LinkedTrees", "quake", "Z:\\share\\quake");
    EXPECT_EQ(SourceOfLinks(run, "C:\\quake"), "");
    EXPECT_EQ(RefreshLinks(run, "C:\\quake").Source, "");
    EXPECT_EQ(RefreshLinks(run, "").Source, "");
}

TEST_F(LinkSources, ATreeKeepsItsLinks) {
    EXPECT_EQ(LinksOf(run, kTree), links);
    Make();
    EXPECT_EQ(LinksOf(run, kTree), links);
    EXPECT_EQ(LinksOf(run, "z:\\SHARE\\quake"), links);
}

TEST_F(LinkSources, ATreeGetsNoOtherTreesLinks) {
    Save(run, "LinkedTrees", LastPathPart(links), "D:\\quake");
    EXPECT_EQ(LinksOf(run, kTree), links + "-2");
    Save(run, "LinkedTrees", Join(LastPathPart(links), "-2"), "E:\\quake");
    EXPECT_EQ(LinksOf(run, kTree), links + "-3");
}

TEST_F(LinkSources, ARefreshBringsWhatIsNewAndTakesAwayWhatHasGone) {
    Make();
    system.Disk.AddFile("Z:\\share\\quake\\ctf\\pak0.pak", "CTF");
    ASSERT_EQ(system.Disk.Delete("Z:\\share\\quake\\id1\\pak1.pak").Number, 0);
    const LinkRefresh refresh = RefreshLinks(run, links);
    EXPECT_EQ(refresh.Source, "Z:\\share\\quake");
    EXPECT_TRUE(refresh.SourceIsThere);
    EXPECT_EQ(refresh.Done.Made, 1u);
    EXPECT_EQ(refresh.Done.Removed, 1u);
    EXPECT_TRUE(IsThere("ctf\\pak0.pak"));
    EXPECT_TRUE(IsThere("id1\\pak0.pak"));
}

TEST_F(LinkSources, ARefreshLeavesTheUsersFiles) {
    Make();
    system.Disk.AddFile(links + "\\id1\\mine.cfg", "bind x quit");
    system.Disk.AddFile(links + "\\mymod\\progs.dat", "progs");
    system.Disk.AddFile("Z:\\share\\quake\\id1\\mine.cfg", "theirs");
    RefreshLinks(run, links);
    EXPECT_EQ(system.Disk.Bytes(links + "\\id1\\mine.cfg"), "bind x quit");
    EXPECT_EQ(system.Disk.Bytes(links + "\\mymod\\progs.dat"), "progs");
}

TEST_F(LinkSources, ARefreshLeavesAllLinksWhereTheTreeIsNotThereNow) {
    Make();
    for (const char* const gone : {"id1\\pak0.pak", "id1\\pak1.pak"}) {
        ASSERT_EQ(system.Disk.Delete(Join(kTree, "\\", gone)).Number, 0);
    }
    const Text link = links + "\\id1\\pak0.pak";
    EXPECT_FALSE(RefreshLinks(run, links).SourceIsThere);
    EXPECT_EQ(system.Disk.LeadsInto(link, kTree), "id1\\pak0.pak");
    ASSERT_EQ(system.Disk.RemoveDirectory("Z:\\share\\quake\\id1").Number, 0);
    ASSERT_EQ(system.Disk.RemoveDirectory("Z:\\share\\quake").Number, 0);
    EXPECT_FALSE(RefreshLinks(run, links).SourceIsThere);
    EXPECT_EQ(system.Disk.LeadsInto(link, kTree), "id1\\pak0.pak");
}

TEST_F(LinkSources, ARefreshEndsWhenItsTimeIsOver) {
    Make();
    system.Disk.AddFile("Z:\\share\\quake\\ctf\\pak0.pak");
    system.Time.Step = 2;
    const LinkRefresh refresh = RefreshLinks(run, links);
    EXPECT_FALSE(refresh.Done.IsWhole);
    EXPECT_EQ(refresh.Done.Fault.Number, 0);
    EXPECT_TRUE(IsThere("id1\\pak0.pak"));
}

}  // namespace lv
