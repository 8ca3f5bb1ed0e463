#include "wizard/disk_walk.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {

namespace {

std::vector<Text> Walked(DiskWalk& walk, TextView drive) {
    std::vector<Text> paths;
    walk.Enter(drive);
    while (const auto step = walk.Next()) {
        paths.push_back(step->Path);
    }
    return paths;
}

struct Disk {
    MemoryFiles Files;
    Disk() {
        for (const char* path : {"C:\\b\\z", "C:\\b\\A", "C:\\B2", "C:\\a"}) {
            Files.AddDirectory(path);
        }
        Files.AddFile("C:\\b\\file.txt");
    }
};

using Paths = std::vector<Text>;

}  // namespace

TEST(DiskWalk, GoesDepthFirstInSortedOrder) {
    Disk disk;
    DiskWalk walk(disk.Files);
    EXPECT_EQ(Walked(walk, "C:"), (Paths{"C:\\", "C:\\a", "C:\\b", "C:\\b\\A", "C:\\b\\z", "C:\\B2"}));
}

TEST(DiskWalk, GivesEachDirectorysEntries) {
    Disk disk;
    DiskWalk walk(disk.Files);
    walk.Enter("C:");
    walk.Next();
    walk.Next();
    const auto step = walk.Next();
    ASSERT_TRUE(step);
    EXPECT_EQ(step->Path, "C:\\b");
    EXPECT_EQ(step->Entries.back().Name, "file.txt");
}

TEST(DiskWalk, ListsEachDirectoryOnce) {
    Disk disk;
    DiskWalk walk(disk.Files);
    const Paths paths = Walked(walk, "C:");
    EXPECT_EQ(disk.Files.Listed, paths);
}

TEST(DiskWalk, NeverGoesInCircles) {
    Disk disk;
    disk.Files.AddLink("C:\\b\\up", "C:\\");
    disk.Files.AddLink("C:\\B2\\again", "C:\\b");
    DiskWalk walk(disk.Files);
    EXPECT_EQ(Walked(walk, "C:"), (Paths{"C:\\", "C:\\a", "C:\\b", "C:\\b\\A", "C:\\b\\z", "C:\\B2"}));
}

TEST(DiskWalk, ReachesADirectoryThroughALinkOnce) {
    Disk disk;
    disk.Files.AddLink("C:\\a\\link", "C:\\B2");
    DiskWalk walk(disk.Files);
    EXPECT_EQ(Walked(walk, "C:"), (Paths{"C:\\", "C:\\a", "C:\\a\\link", "C:\\b", "C:\\b\\A", "C:\\b\\z"}));
}

TEST(DiskWalk, PassesOverWhatCannotBeRead) {
    Disk disk;
    disk.Files.Unreadable.insert("c:\\b");
    DiskWalk walk(disk.Files);
    EXPECT_EQ(Walked(walk, "C:"), (Paths{"C:\\", "C:\\a", "C:\\B2"}));
}

TEST(DiskWalk, AnUnreadableRootIsAnEmptyDisk) {
    Disk disk;
    disk.Files.Unreadable.insert("c:");
    DiskWalk walk(disk.Files);
    EXPECT_EQ(Walked(walk, "C:"), Paths());
}

TEST(DiskWalk, DoesNotMeetAgainWhatAnotherDriveShowed) {
    Disk disk;
    disk.Files.AddDirectory("Z:\\x");
    disk.Files.AddLink("Z:\\c", "C:\\");
    DiskWalk walk(disk.Files);
    Walked(walk, "C:");
    EXPECT_EQ(Walked(walk, "Z:"), (Paths{"Z:\\", "Z:\\x"}));
}

TEST(DiskWalk, GoesVeryDeep) {
    MemoryFiles files;
    Text path = "C:";
    for (int i = 0; i < 500; ++i) {
        path += "\\d";
    }
    files.AddDirectory(path);
    DiskWalk walk(files);
    const Paths paths = Walked(walk, "C:");
    EXPECT_EQ(paths.size(), 501u);
    EXPECT_EQ(paths.back(), path);
}

}  // namespace lv
