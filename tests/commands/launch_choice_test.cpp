#include "commands/launch_choice.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class LaunchChoice : public LauncherTest {
  protected:
    std::vector<Missing> Say(const std::vector<Text>& words) {
        const Result<Command> command = ReadCommand(words);
        EXPECT_TRUE(command.Ok()) << command.Fault.Text;
        return Choose(launcher, command.Value, notes);
    }
    void Open() {
        AddGames();
        Load();
    }
    Text notes;
};

TEST_F(LaunchChoice, WhatIsNamedIsPickedAndTicked) {
    Open();
    EXPECT_TRUE(Say({"--launch", "Quake", "--mod", "CTF", "--script", "flag.cfg", "--map", "ctf1"}).empty());
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 0);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_EQ(window.Box(Option::Script_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 1);
    EXPECT_EQ(window.Map_Cbo.Selected(), "CTF1");
}

TEST_F(LaunchChoice, TheProgramMayBeNamedByItsPath) {
    Open();
    EXPECT_TRUE(Say({"--launch", "c:\\quake2\\quake2.exe"}).empty());
    EXPECT_EQ(run.GameKind, Game::Quake2);
}

TEST_F(LaunchChoice, AServerExcludesWhatTheWindowExcludes) {
    Open();
    Click(Option::Demo_Chk, 1);
    EXPECT_TRUE(Say({"--launch", "Quake", "--server", "10.0.0.1:26000"}).empty());
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Demo_Chk).Value, 0);
}

TEST_F(LaunchChoice, AnUnknownProgramEndsTheChoice) {
    Open();
    const std::vector<Missing> missing = Say({"--launch", "Quack", "--map", "nowhere"});
    ASSERT_EQ(missing.size(), 1U);
    EXPECT_FALSE(missing[0].GoesOn);
}

TEST_F(LaunchChoice, AnUnknownMapCanStillBeAskedOfTheGame) {
    Open();
    const std::vector<Missing> missing = Say({"--launch", "Quake", "--map", "DM7"});
    ASSERT_EQ(missing.size(), 1U);
    EXPECT_TRUE(missing[0].GoesOn);
    EXPECT_EQ(window.Map_Cbo.Selected(), "DM7");
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 1);
}

TEST_F(LaunchChoice, TheWindowIsNotLeftAfterTheLaunch) {
    Open();
    Click(Option::EndOnLaunch_Chk, 1);
    (void)Say({"--launch", "Quake"});
    EXPECT_EQ(window.Box(Option::EndOnLaunch_Chk).Value, 0);
}

}  // namespace
}  // namespace lv
