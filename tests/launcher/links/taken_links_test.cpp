#include "launcher/links/taken_links.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_links.h"

namespace lv {

namespace {

class TakenLinks : public ::testing::Test {
  protected:
    MemoryPlatform system;
    MemoryDesktopLists lists;
    MemoryRegistryTrees trees{system.Registry};
};

}  // namespace

TEST_F(TakenLinks, ASystemWithoutAPlaceForThemTakesNone) {
    EXPECT_FALSE(CanTakeLinks(system.Services));
    EXPECT_FALSE(TakesLinks(system.Services));
    EXPECT_TRUE(HoldersOfLinks(system.Services).empty());
    EXPECT_TRUE(TakeLinks(system.Services));
    EXPECT_TRUE(LeaveLinks(system.Services));
}

TEST_F(TakenLinks, AreTheDesktopsOnLinux) {
    system.Services.Lists = &lists;
    lists.List = "[Default Applications]\nx-scheme-handler/qw=other.desktop\n";
    EXPECT_TRUE(CanTakeLinks(system.Services));
    EXPECT_EQ(HoldersOfLinks(system.Services), (std::vector<Text>{"qw://  other.desktop"}));
    EXPECT_FALSE(TakeLinks(system.Services));
    EXPECT_TRUE(TakesLinks(system.Services));
    EXPECT_TRUE(system.Registry.Values.empty());
    EXPECT_FALSE(LeaveLinks(system.Services));
    EXPECT_FALSE(TakesLinks(system.Services));
}

TEST_F(TakenLinks, AreTheRegistrysOnWindows) {
    system.Services.Trees = &trees;
    EXPECT_TRUE(CanTakeLinks(system.Services));
    EXPECT_FALSE(TakeLinks(system.Services));
    EXPECT_TRUE(TakesLinks(system.Services));
    EXPECT_TRUE(HoldersOfLinks(system.Services).empty());
    EXPECT_FALSE(LeaveLinks(system.Services));
    EXPECT_FALSE(TakesLinks(system.Services));
}

}  // namespace lv
