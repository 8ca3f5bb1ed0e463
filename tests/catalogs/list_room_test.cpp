#include "catalogs/list_room.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

class ListRoom : public ::testing::Test {
  protected:
    void Expect(bool notAgain = false) { user.Expect({"More Than a List Shows", "", 0, notAgain}); }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
    Text told;
};

TEST_F(ListRoom, TellsWhatTheListLeavesOutAndWhatHelps) {
    user.Expect({"More Than a List Shows",
                 "There are more maps than the list can show in\r\nc:\\quake\\id1\\maps\r\n\r\n"
                 "It shows the first 4096 of them. Move those that you do not need\r\nto another directory.",
                 0, false, true});
    TellListIsFull(run, told, "c:\\quake\\id1\\maps", "maps", 4096);
    EXPECT_EQ(told, "c:\\quake\\id1\\maps");
}

TEST_F(ListRoom, TellsOfADirectoryOnceInARow) {
    Expect();
    TellListIsFull(run, told, "c:\\quake", "maps", 4096);
    TellListIsFull(run, told, "c:\\quake", "maps", 4096);
    EXPECT_EQ(user.Asked.size(), 1U);
}

TEST_F(ListRoom, TellsOfADirectoryAgainAfterAnotherOne) {
    for (const char* directory : {"c:\\quake", "c:\\hexen2", "c:\\quake"}) {
        Expect();
        TellListIsFull(run, told, directory, "maps", 4096);
    }
    EXPECT_EQ(user.Asked.size(), 3U);
}

TEST_F(ListRoom, SaysNothingMoreWhereTheUserWishesNotToHearOfIt) {
    Expect(true);
    TellListIsFull(run, told, "c:\\quake", "maps", 4096);
    EXPECT_EQ(system.Settings.Read("Lorvane 3D", "ShowMessage", "ListIsFull").value_or("(none)"), "0");
    TellListIsFull(run, told, "c:\\hexen2", "scripts", 1024);
    EXPECT_EQ(user.Asked.size(), 1U);
}

TEST_F(ListRoom, IsThisMuch) {
    EXPECT_EQ(kMostLooseMaps, 4096U);
    EXPECT_EQ(kMostFoundScripts, 1024U);
}

}  // namespace
}  // namespace lv
