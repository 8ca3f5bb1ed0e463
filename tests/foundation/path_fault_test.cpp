#include "foundation/path_fault.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

TEST(FaultAt, NamesThePathWhereAccessWasRefused) {
    MemoryFiles disk;
    EXPECT_EQ(FaultAt(disk, "C:\\A.QS", MakeError(70)).Text, "Permission denied: C:\\A.QS");
    EXPECT_EQ(FaultAt(disk, "C:\\A.QS", MakeError(75)).Text, "Path/File access error: C:\\A.QS");
    EXPECT_EQ(FaultAt(disk, "C:\\A.QS", MakeError(75)).Number, 75);
}

TEST(FaultAt, NamesThePathOfAFileThatIsMissing) {
    MemoryFiles disk;
    EXPECT_EQ(FaultAt(disk, "C:\\A.QS", MakeError(53)).Text, "File not found: C:\\A.QS");
}

TEST(FaultAt, TellsADirectoryAsSuch) {
    MemoryFiles disk;
    disk.AddDirectory("C:\\A.QS");
    EXPECT_EQ(FaultAt(disk, "C:\\A.QS", MakeError(75)).Text,
              "Path/File access error: C:\\A.QS is a directory. Rename it, or remove it.");
}

TEST(FaultAt, NamesNoPathTwice) {
    MemoryFiles disk;
    EXPECT_EQ(FaultAt(disk, "C:\\A.QS", {75, "C:\\A.QS is no script"}).Text, "C:\\A.QS is no script");
}

TEST(FaultAt, LeavesOtherErrorsAsTheyAre) {
    MemoryFiles disk;
    EXPECT_EQ(FaultAt(disk, "C:\\A.QS", MakeError(61)).Text, "Disk full");
    EXPECT_EQ(FaultAt(disk, "C:\\A.QS", {}).Number, 0);
    EXPECT_EQ(FaultAt(disk, "C:\\A.QS", {}).Text, "");
}

}  // namespace
}  // namespace lv
