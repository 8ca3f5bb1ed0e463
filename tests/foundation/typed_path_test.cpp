#include "foundation/typed_path.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

struct TypedPaths : public ::testing::Test {
    TypedPaths() { system.Disk.Home = "Z:\\home\\me"; }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

}  // namespace

TEST_F(TypedPaths, ThePathOfADriveStaysAsItIsTyped) {
    EXPECT_EQ(TypedPath(run, " C:\\Quake\\ID1 "), "C:\\Quake\\ID1");
    EXPECT_EQ(TypedPath(run, "c:/quake"), "c:/quake");
    EXPECT_EQ(TypedPath(run, "id1"), "id1");
    EXPECT_EQ(TypedPath(run, "progra~1"), "progra~1");
    EXPECT_EQ(TypedPath(run, "  "), "");
}

TEST_F(TypedPaths, TheSystemsOwnPathIsTheOneOnItsDrive) {
    EXPECT_EQ(TypedPath(run, " ~"), "Z:\\home\\me");
    EXPECT_EQ(TypedPath(run, "~/games/quake "), "Z:\\home\\me\\games\\quake");
    EXPECT_EQ(TypedPath(run, "/home/me/quake"), "Z:\\home\\me\\quake");
}

TEST_F(TypedPaths, ANameIsCutOutOfTheSystemsPathAlone) {
    EXPECT_EQ(TypedName(run, "~/quake/ctf", "z:\\HOME\\me\\quake"), "ctf");
    EXPECT_EQ(TypedName(run, "~/quake/ctf/maps", "z:\\HOME\\me\\quake"), "ctf\\maps");
    EXPECT_EQ(TypedName(run, "~/quake", "z:\\HOME\\me\\quake"), "Z:\\home\\me\\quake");
    EXPECT_EQ(TypedName(run, "~/quake2/ctf", "z:\\HOME\\me\\quake"), "Z:\\home\\me\\quake2\\ctf");
    EXPECT_EQ(TypedName(run, " ctf ", "C:\\QUAKE"), "ctf");
    EXPECT_EQ(TypedName(run, "C:\\QUAKE\\CTF", "C:\\QUAKE"), "C:\\QUAKE\\CTF");
}

TEST(NameBelow, IsWhatStandsBehindTheDirectory) {
    EXPECT_EQ(NameBelow("c:\\quake", "C:\\QUAKE\\CTF"), "CTF");
    EXPECT_EQ(NameBelow("c:\\quake\\", "C:\\QUAKE\\CTF"), "CTF");
    EXPECT_EQ(NameBelow("C:\\", "C:\\QUAKE"), "QUAKE");
    EXPECT_EQ(NameBelow("C:\\QUAKE", "C:\\QUAKE"), "");
    EXPECT_EQ(NameBelow("C:\\QUAKE", "C:\\QUAKE\\"), "");
    EXPECT_EQ(NameBelow("C:\\QUAKE", "C:\\QUAKE2\\CTF"), "");
}

}  // namespace lv
