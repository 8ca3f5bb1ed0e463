#include "games/trees/tree_room.h"

#include <gtest/gtest.h>

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

}  // namespace lv
