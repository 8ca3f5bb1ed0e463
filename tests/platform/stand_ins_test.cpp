#include "platform/stand_ins.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_files.h"

namespace lv {

TEST(StandIns, AreFoundInAnyLetterCaseAndWithEitherSeparator) {
    StandIns standIns;
    standIns.Set("C:\\Quake\\engine", "Z:\\usr\\games\\engine");
    for (const char* path : {"c:\\quake\\ENGINE", "C:/QUAKE/engine", "c:\\quake\\\\engine"}) {
        ASSERT_NE(standIns.Of(path), nullptr) << path;
        EXPECT_EQ(*standIns.Of(path), "Z:\\usr\\games\\engine");
    }
    EXPECT_EQ(standIns.Of("C:\\QUAKE\\engine2"), nullptr);
}

TEST(StandIns, GoWithAnEmptyProgram) {
    StandIns standIns;
    standIns.Set("C:\\QUAKE\\ENGINE", "Z:\\ENGINE");
    standIns.Set("c:\\quake\\engine", "");
    EXPECT_EQ(standIns.Of("C:\\QUAKE\\ENGINE"), nullptr);
}

TEST(StandIns, AreAskedForAndOpenedButNeverDeletedOrWritten) {
    MemoryFiles disk;
    disk.AddDirectory("C:\\QUAKE");
    disk.AddFile("C:\\BIN\\engine", "a program");
    EXPECT_TRUE(disk.StandIn("C:\\QUAKE\\engine", "C:\\BIN\\engine"));
    EXPECT_TRUE(disk.FileExists("c:\\quake\\ENGINE"));
    EXPECT_TRUE(disk.Open("C:\\QUAKE\\engine").Ok());
    EXPECT_EQ(disk.ToHost("C:\\QUAKE\\engine"), disk.ToHost("C:\\BIN\\engine"));
    EXPECT_EQ(disk.Delete("C:\\QUAKE\\engine").Number, error::kFileNotFound);
    EXPECT_FALSE(disk.Replace("C:\\QUAKE\\engine", "a file of the user's"));
    EXPECT_EQ(disk.Bytes("C:\\BIN\\engine"), "a program");
}

// ezQuake makes a directory of its own name where it plays.
TEST(StandIns, ADirectoryOfTheNameIsNoProgram) {
    MemoryFiles disk;
    disk.AddFile("C:\\BIN\\engine", "real");
    disk.AddDirectory("C:\\QUAKE\\engine");
    EXPECT_TRUE(disk.StandIn("C:\\QUAKE\\engine", "C:\\BIN\\engine"));
    EXPECT_TRUE(disk.FileExists("C:\\QUAKE\\engine"));
    EXPECT_TRUE(disk.DirectoryExists("C:\\QUAKE\\engine"));
    EXPECT_EQ(disk.Open("C:\\QUAKE\\engine").Value->Read(0, 20).Value, "real");
}

TEST(StandIns, AFileThatIsThereCountsAheadOfOne) {
    MemoryFiles disk;
    disk.AddFile("C:\\QUAKE\\engine", "the tree's own");
    disk.AddFile("C:\\BIN\\engine");
    disk.StandIn("C:\\QUAKE\\engine", "C:\\BIN\\engine");
    EXPECT_EQ(disk.Open("C:\\QUAKE\\engine").Value->Read(0, 20).Value, "the tree's own");
}

TEST(StandIns, AreNoneWhereTheProgramHasGone) {
    MemoryFiles disk;
    disk.AddDirectory("C:\\QUAKE");
    disk.StandIn("C:\\QUAKE\\engine", "C:\\BIN\\engine");
    EXPECT_FALSE(disk.FileExists("C:\\QUAKE\\engine"));
}

}  // namespace lv
