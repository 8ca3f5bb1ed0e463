#include "games/engines/playing_directory.h"

#include <gtest/gtest.h>

#include "games/trees/link_sources.h"
#include "games/trees/tree_room.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"
#include "tests/support/shipped_engines.h"

namespace lv {

class PlayingDirectoryTest : public ::testing::Test {
  protected:
    void AddQuake(TextView directory, bool isFull) {
        disk.AddFile(Join(directory, "\\id1\\pak0.pak"));
        if (isFull) {
            disk.AddFile(Join(directory, "\\id1\\pak1.pak"));
        }
    }
    Text Of(TextView engine, TextView directory) {
        const Result<Text> found = PlayingDirectory(run, ShippedEngine(engine), directory);
        return found.Ok() ? found.Value : Join("error ", std::to_string(found.Fault.Number));
    }

    MemoryPlatform system;
    MemoryFiles& disk = system.Disk;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(PlayingDirectoryTest, IsTheTreeWhereItCanBeWritten) {
    AddQuake("C:\\QUAKE", true);
    EXPECT_EQ(Of("QuakeSpasm", "C:\\QUAKE"), "C:\\QUAKE");
    EXPECT_EQ(Of("DarkPlaces", "C:\\QUAKE"), "C:\\QUAKE");
}

TEST_F(PlayingDirectoryTest, IsOneOfLinksWhereItCannot) {
    AddQuake("Z:\\QUAKE", true);
    disk.AddDrive("C:");
    disk.ReadOnly.insert("z:\\quake");
    const Text links = LinkedTreeDirectory("Z:\\QUAKE");
    EXPECT_EQ(Of("DarkPlaces", "Z:\\QUAKE"), links);
    EXPECT_TRUE(disk.FileExists(links + "\\id1\\pak1.pak"));
    EXPECT_EQ(SourceOfLinks(run, links), "Z:\\QUAKE");
}

TEST_F(PlayingDirectoryTest, IsOneOfLinksForSharewareAndAnEngineThatReadsItsAutoexecAlone) {
    AddQuake("C:\\QUAKE", false);
    EXPECT_EQ(Of("QuakeSpasm", "C:\\QUAKE"), LinkedTreeDirectory("C:\\QUAKE"));
    EXPECT_EQ(Of("DarkPlaces", "C:\\QUAKE"), "C:\\QUAKE");
}

TEST_F(PlayingDirectoryTest, IsTheLinksThemselvesAndNoLinksToThem) {
    const Text links = LinkedTreeDirectory("Z:\\QUAKE");
    AddQuake(links, false);
    EXPECT_EQ(Of("QuakeSpasm", links), links);
}

TEST_F(PlayingDirectoryTest, IsNoneWithoutAGame) {
    disk.AddDirectory("C:\\EMPTY");
    EXPECT_EQ(Of("QuakeSpasm", "C:\\EMPTY"), "error 76");
}

TEST_F(PlayingDirectoryTest, IsOneOfLinksWhereNoListCouldHoldItsPath) {
    AddQuake("C:\\A;B", true);
    EXPECT_EQ(Of("DarkPlaces", "C:\\A;B"), LinkedTreeDirectory("C:\\A;B"));
}

}  // namespace lv
