#include "foundation/link_question.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

class LinkQuestion : public ::testing::Test {
  protected:
    LinkQuestion() {
        run.DefaultGameDirectory = "c:\\quake";
        run.GameKind = Game::Quake;
        system.Disk.AddDirectory("C:\\QUAKE\\ID1");
    }
    void Expect(int answer) {
        user.Expect({.Title = "Link To Another Place",
                     .Text_ = "The file -->\r\n\r\n\t\"C:\\QUAKE\\ID1\\my.cfg\"\r\n\r\n"
                              "is a link that leads out of the game, to -->\r\n\r\n"
                              "\t\"c:\\etc\\passwd\"\r\n\r\n"
                              "If it came in an archive from somebody else, leave that file alone.",
                     .Answer = answer,
                     .Whole = true,
                     .Buttons = "&Leave It Alone,&Change That File"});
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(LinkQuestion, IsNotAskedOfPlainFiles) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\my.cfg");
    EXPECT_TRUE(MayWriteThroughLinks(run, "C:\\QUAKE\\ID1\\my.cfg"));
    EXPECT_TRUE(MayWriteThroughLinks(run, "C:\\QUAKE\\ID1\\new.cfg"));
}

TEST_F(LinkQuestion, IsNotAskedWithinTheHomeAndTheGame) {
    system.Disk.AddFileLink("C:\\QUAKE\\ID1\\home.cfg", "C:\\HOME\\dotfiles\\quake.cfg");
    system.Disk.AddFileLink("C:\\QUAKE\\ID1\\game.cfg", "C:\\QUAKE\\CTF\\game.cfg");
    EXPECT_TRUE(MayWriteThroughLinks(run, "C:\\QUAKE\\ID1\\home.cfg"));
    EXPECT_TRUE(MayWriteThroughLinks(run, "C:\\QUAKE\\ID1\\game.cfg"));
}

TEST_F(LinkQuestion, IsAskedElsewhere) {
    system.Disk.AddFileLink("C:\\QUAKE\\ID1\\my.cfg", "C:\\ETC\\PASSWD");
    Expect(0);
    EXPECT_FALSE(MayWriteThroughLinks(run, "C:\\QUAKE\\ID1\\my.cfg"));
    Expect(1);
    EXPECT_TRUE(MayWriteThroughLinks(run, "C:\\QUAKE\\ID1\\my.cfg"));
}

TEST_F(LinkQuestion, KnowsTheGamesTree) {
    EXPECT_EQ(GameTreeOf(run, "C:\\Quake\\ID1\\my.cfg"), "c:\\quake");
    EXPECT_EQ(GameTreeOf(run, "C:\\QUAKE2\\BASEQ2\\my.cfg"), "C:\\QUAKE2\\BASEQ2\\");
    run.GameKind = Game::Unreal;
    run.DefaultGameDirectory = "c:\\unreal\\System";
    EXPECT_EQ(GameTreeOf(run, "C:\\UNREAL\\SYSTEM\\unreal.ini"), "c:\\unreal");
    run.DefaultGameDirectory = "";
    EXPECT_EQ(GameTreeOf(run, "C:\\Q\\my.cfg"), "C:\\Q\\");
}

// Files of the program's own

TEST_F(LinkQuestion, OfADirectoryIsAskedOnceForEachPlace) {
    system.Disk.AddDirectory("C:\\ETC");
    system.Disk.AddLink("C:\\QUAKE\\CTF", "C:\\ETC");
    const auto expect = [this](int answer) {
        user.Expect({.Title = "Link To Another Place",
                     .Text_ = "The directory -->\r\n\r\n\t\"C:\\QUAKE\\CTF\"\r\n\r\n"
                              "is a link that leads out of the game, to -->\r\n\r\n\t\"c:\\etc\"\r\n\r\n"
                              "If it came in an archive from somebody else, leave that directory alone.",
                     .Answer = answer,
                     .Whole = true,
                     .Buttons = "&Leave It Alone,&Write There"});
    };
    EXPECT_FALSE(PutsOwnFileInside(run, "C:\\QUAKE\\CTF\\lv_666.qs", "C:\\QUAKE"));
    expect(0);
    EXPECT_FALSE(MayPutOwnFile(run, "C:\\QUAKE\\CTF\\lv_666.qs", "C:\\QUAKE"));
    expect(1);
    EXPECT_TRUE(MayPutOwnFile(run, "C:\\QUAKE\\CTF\\lv_666.qs", "C:\\QUAKE"));
    EXPECT_TRUE(MayPutOwnFile(run, "C:\\QUAKE\\CTF\\nsrl_666.qs", "C:\\QUAKE"));
    EXPECT_TRUE(PutsOwnFileInside(run, "C:\\QUAKE\\CTF\\lv_666.qs", "C:\\QUAKE"));
    system.Disk.AddDirectory("C:\\ETC2");
    system.Disk.AddLink("C:\\QUAKE\\MOD", "C:\\ETC2");
    EXPECT_FALSE(PutsOwnFileInside(run, "C:\\QUAKE\\MOD\\lv_666.qs", "C:\\QUAKE"));
}

TEST_F(LinkQuestion, OfADirectoryIsNotAskedWithinTheHomeAndTheGame) {
    system.Disk.AddDirectory("C:\\HOME\\MODS");
    system.Disk.AddLink("C:\\QUAKE\\CTF", "C:\\HOME\\MODS");
    system.Disk.AddLink("C:\\QUAKE\\MOD", "C:\\QUAKE\\ID1");
    system.Disk.AddFileLink("C:\\QUAKE\\ID1\\lv_666.qs", "C:\\ETC\\passwd");  // replaced, not followed
    for (const char* const directory : {"CTF", "MOD", "ID1", "NONE"}) {
        EXPECT_TRUE(MayPutOwnFile(run, Join("C:\\QUAKE\\", directory, "\\lv_666.qs"), "C:\\QUAKE")) << directory;
    }
}

TEST_F(LinkQuestion, OfAPlaceThatNoListCanHoldIsAskedAgain) {
    system.Disk.AddDirectory("C:\\A;C:\\ETC");
    system.Disk.AddLink("C:\\QUAKE\\CTF", "C:\\A;C:\\ETC");
    for (int i = 0; i < 2; ++i) {
        user.Expect({.Title = "Link To Another Place", .Text_ = "", .Answer = 1});
        EXPECT_TRUE(MayPutOwnFile(run, "C:\\QUAKE\\CTF\\lv_666.qs", "C:\\QUAKE"));
    }
}

}  // namespace
}  // namespace lv
