#include "commands/asked_instance.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class AskedInstance : public LauncherTest {
  protected:
    void Open() {
        AddGames();
        Load();
        window.Visible = true;
        window.EverShown = true;
    }
    CommandResult Ask(const std::vector<Text>& words) {
        return DoForAnother(launcher, {system.Services}, RequestOf(words));
    }
};

TEST_F(AskedInstance, WordsComeBackAsTheyWere) {
    for (const std::vector<Text>& words : {std::vector<Text>{}, {""}, {"--launch", "Half Life", "", "\xE9;\n"}}) {
        EXPECT_EQ(WordsOf(RequestOf(words)), words);
    }
}

TEST_F(AskedInstance, AResultComesBackAsItWas) {
    const auto result = ResultOf(ReplyOf({4, "out\n", "", "QUAKE.EXE"}));
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->Code, 4);
    EXPECT_EQ(result->Out, "out\n");
    EXPECT_EQ(result->Err, "");
    EXPECT_EQ(result->Started, "QUAKE.EXE");
}

TEST_F(AskedInstance, WhatIsNoAnswerIsNone) {
    const Text reply = ReplyOf({0, "a", "b", "c"});
    for (std::size_t length = 0; length < reply.size(); ++length) {
        EXPECT_FALSE(ResultOf(TextView(reply).substr(0, length)).has_value()) << length;
    }
    EXPECT_FALSE(ResultOf(reply + reply).has_value());
}

TEST_F(AskedInstance, OnlyALaunchIsTheWindows) {
    EXPECT_TRUE(IsForTheWindow(ReadCommand({"--launch", "Quake"}).Value));
    EXPECT_TRUE(IsForTheWindow(ReadCommand({"--setup", "Evening"}).Value));
    EXPECT_FALSE(IsForTheWindow(ReadCommand({"--launch", "Quake", "--dry-run"}).Value));
    EXPECT_FALSE(IsForTheWindow(ReadCommand({"--list", "--launch", "Quake"}).Value));
    EXPECT_FALSE(IsForTheWindow(ReadCommand({}).Value));
}

TEST_F(AskedInstance, TheWindowLaunchesAndGoesOutOfTheWay) {
    Open();
    const CommandResult result = Ask({"--launch", "Quake 2"});
    EXPECT_EQ(result.Code, exit_code::kDone) << result.Err;
    EXPECT_EQ(result.Out, "Started QUAKE2.EXE in c:\\quake2\n");
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(launcher.LastGame.Name, "QUAKE2.EXE");
    EXPECT_EQ(launcher.LastGame.Path, "C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_EQ(Stored("Played", "c:\\quake2\\quake2.exe"), "1999-11-21 12:30:00;0;1") << "counted once";
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 0) << "its own pick stays";
}

TEST_F(AskedInstance, UnderADialogTheWindowStays) {
    Open();
    SuspendTopmost(run);
    EXPECT_EQ(Ask({"--launch", "Quake 2"}).Code, exit_code::kDone);
    EXPECT_TRUE(window.Visible);
}

TEST_F(AskedInstance, ALaunchThatFailsLeavesTheWindowAsItIs) {
    Open();
    EXPECT_EQ(Ask({"--launch", "Quack"}).Code, exit_code::kNothingCalledSo);
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(launcher.LastGame.Name, "");
}

TEST_F(AskedInstance, NothingButALaunchIsDoneForAnother) {
    Open();
    EXPECT_EQ(Ask({"--list"}).Code, exit_code::kFailed);
    EXPECT_EQ(Ask({"--nonsense"}).Code, exit_code::kNotUnderstood);
    EXPECT_EQ(Ask({}).Code, exit_code::kFailed);
}

TEST_F(AskedInstance, DuringALaunchOfItsOwnItIsBusy) {
    Open();
    launcher.LaunchUnderWay = true;
    const CommandResult result = Ask({"--launch", "Quake"});
    EXPECT_EQ(result.Code, exit_code::kFailed);
    EXPECT_EQ(result.Err, "The running Lorvane 3D is busy.\n");
    EXPECT_TRUE(system.Programs.Started.empty());
}

}  // namespace
}  // namespace lv
