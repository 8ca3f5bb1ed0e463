#include "console/files/played_of_run.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

class PlayedOfRunTest : public ::testing::Test {
  protected:
    PlayedOfRunTest() {
        run.DefaultGameDirectory = "C:\\QUAKE";
        run.BaseGameDir = "ID1";
        run.CurrentGameDir = "id1";
    }
    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(PlayedOfRunTest, OfTheGamesOwnProgram) {
    const PlayedGame played = PlayedOfRun(run, nullptr, "C:\\QUAKE\\QWCL.EXE", Game::Quake, true);
    EXPECT_EQ(played.Of, Console::QuakeWorld);
    EXPECT_EQ(played.GameKind, Game::Quake);
    EXPECT_EQ(played.Directory, "C:\\QUAKE");
    EXPECT_EQ(played.Base, "ID1");
    EXPECT_EQ(played.Modification, "") << "the base directory is none";
    EXPECT_EQ(played.Engine, "");
    EXPECT_EQ(played.UserHome, "C:\\HOME");
}

TEST_F(PlayedOfRunTest, OfAnEngineAndAModification) {
    run.CurrentGameDir = "ctf";
    Engine engine;
    engine.Name = "DarkPlaces";
    const PlayedGame played = PlayedOfRun(run, &engine, "quakespasm", Game::Quake, false);
    EXPECT_EQ(played.Of, Console::DarkPlaces);
    EXPECT_EQ(played.Engine, "DarkPlaces");
    EXPECT_EQ(played.Modification, "ctf");
}

}  // namespace lv
