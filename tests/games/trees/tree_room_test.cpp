#include "games/trees/tree_room.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_files.h"

namespace lv {

TEST(TreeRoom, NamesADirectoryAfterTheTree) {
    EXPECT_TRUE(LinkedTreeDirectory("Z:\\usr\\share\\games\\Quake").starts_with("c:\\lorvane3d\\quake-"));
    EXPECT_TRUE(LinkedTreeDirectory("Z:\\").starts_with("c:\\lorvane3d\\"));
}

TEST(TreeRoom, KeepsTreesOfOneNameApartAndOneTreeTogether) {
    const Text shared = LinkedTreeDirectory("Z:\\usr\\share\\games\\quake");
    EXPECT_NE(shared, LinkedTreeDirectory("Z:\\srv\\quake"));
    EXPECT_EQ(shared, LinkedTreeDirectory("z:\\USR\\share\\games\\quake\\"));
}

TEST(TreeRoom, IsKnownByItsPlace) {
    EXPECT_TRUE(IsLinkedTree(LinkedTreeDirectory("Z:\\srv\\quake")));
    EXPECT_TRUE(IsLinkedTree("C:\\LORVANE3D\\QUAKE-1"));
    EXPECT_FALSE(IsLinkedTree("C:\\quake"));
}

TEST(TreeRoom, HoldsNoSemicolonForTheCatalog) {
    EXPECT_EQ(LinkedTreeDirectory("Z:\\a;b").find(';'), Text::npos);
}

TEST(MakeLinkRoom, MakesTheDirectoryWithThoseAboveIt) {
    MemoryFiles disk;
    disk.AddDrive("C:");
    disk.AddDirectory("Z:\\quake");
    EXPECT_EQ(MakeLinkRoom(disk, "Z:\\quake", "C:\\a\\b").Number, 0);
    EXPECT_TRUE(disk.DirectoryExists("C:\\a\\b"));
    EXPECT_EQ(MakeLinkRoom(disk, "Z:\\quake", "C:\\a\\b").Number, 0);
}

TEST(MakeLinkRoom, RefusesOneInTheOther) {
    MemoryFiles disk;
    disk.AddDrive("C:");
    disk.AddDirectory("C:\\games\\quake");
    EXPECT_EQ(MakeLinkRoom(disk, "C:\\games\\quake", "C:\\games\\quake\\links").Number, 75);
    EXPECT_EQ(MakeLinkRoom(disk, "C:\\games\\quake", "C:\\games").Number, 75);
    EXPECT_FALSE(disk.DirectoryExists("C:\\games\\quake\\links"));
    EXPECT_EQ(MakeLinkRoom(disk, "C:\\games\\none", "C:\\links").Number, 76);
}

}  // namespace lv
