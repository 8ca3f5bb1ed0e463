#include "commands/asked_instance.h"

#include "commands/transfer_command.h"
#include "launcher/start/main_window_load.h"
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

TEST_F(AskedInstance, AFileIsNamedByItsWholePath) {
    const auto whole = [](TextView word) { return Join("/home/me/", word); };
    const std::vector<Text> import = {"--import=mine.lv3d"};
    EXPECT_EQ(WordsForAnother(ReadCommand(import).Value, import, whole),
              (std::vector<Text>{"--import", "/home/me/mine.lv3d"}));
    const std::vector<Text> launch = {"--launch", "Quake"};
    EXPECT_EQ(WordsForAnother(ReadCommand(launch).Value, launch, whole), launch);
}

TEST_F(AskedInstance, ImportedSettingsAreShownAtOnceAndNotUnderADialog) {
    Open();
    system.Disk.AddDirectory("C:\\HOME");
    const CommandPlace place{system.Services};
    ASSERT_EQ(ExportToFile("C:\\HOME\\mine.lv3d", place).Code, exit_code::kDone);
    Save(run, kOptions, "Executables", "Only;C:\\HL\\HL.EXE");
    ASSERT_TRUE(ReloadMainWindow(launcher));
    ASSERT_EQ(window.Exe_Cbo.Items.size(), 1U);
    SuspendTopmost(run);
    EXPECT_EQ(Ask({"--import", "C:\\HOME\\mine.lv3d"}).Code, exit_code::kFailed);
    EXPECT_EQ(window.Exe_Cbo.Items.size(), 1U);
    ResumeTopmost(run);
    EXPECT_EQ(Ask({"--import", "C:\\HOME\\mine.lv3d"}).Code, exit_code::kDone);
    EXPECT_EQ(window.Exe_Cbo.Items.size(), 6U);
}

TEST_F(AskedInstance, OnlyALaunchAnImportAndWhatIsToBeOfferedAreTheWindows) {
    EXPECT_TRUE(IsForTheWindow(ReadCommand({"--launch", "Quake"}).Value));
    EXPECT_TRUE(IsForTheWindow(ReadCommand({"--setup", "Evening"}).Value));
    EXPECT_FALSE(IsForTheWindow(ReadCommand({"--launch", "Quake", "--dry-run"}).Value));
    EXPECT_FALSE(IsForTheWindow(ReadCommand({"--list", "--launch", "Quake"}).Value));
    EXPECT_TRUE(IsForTheWindow(ReadCommand({"--import", "a.lv3d"}).Value));
    EXPECT_FALSE(IsForTheWindow(ReadCommand({"--export", "a.lv3d"}).Value));
    EXPECT_FALSE(IsForTheWindow(ReadCommand({}).Value));
    EXPECT_TRUE(IsForTheWindow(ReadCommand({"C:\\D\\mod.pak"}).Value));
    EXPECT_TRUE(IsToBeOffered(ReadCommand({"--", "-mod.pak"}).Value));
    EXPECT_FALSE(IsToBeOffered(ReadCommand({"--launch", "Quake"}).Value));
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

TEST_F(AskedInstance, AFileWaitsAndTheWindowComesForward) {
    Open();
    run.MainFormLoaded = true;
    window.Visible = false;
    EXPECT_EQ(Ask({"--", "C:\\D\\mod.pak"}).Code, exit_code::kDone);
    EXPECT_EQ(launcher.Dropped.Word, "C:\\D\\mod.pak");
    EXPECT_EQ(launcher.Dropped.Count, 1U);
    EXPECT_TRUE(window.Visible);
    EXPECT_TRUE(user.Asked.empty()) << "the other start does not wait for an answer";
    const CommandResult second = Ask({"qw://host"});
    EXPECT_EQ(second.Code, exit_code::kFailed);
    EXPECT_EQ(second.Err, "The running Lorvane 3D is busy. Close the windows that are open in it, and try again.\n");
    EXPECT_EQ(launcher.Dropped.Word, "C:\\D\\mod.pak");
}

TEST_F(AskedInstance, UnderADialogAnAddressWaitsAndTheOtherStartIsTold) {
    Open();
    run.MainFormLoaded = true;
    SuspendTopmost(run);
    const CommandResult first = Ask({"qw://foo:1"});
    EXPECT_EQ(first.Code, exit_code::kDone);
    EXPECT_EQ(first.Out, "Lorvane 3D offers this as soon as the window that is open in it is closed.\n");
    EXPECT_EQ(launcher.Dropped.Word, "qw://foo:1");
    const CommandResult second = Ask({"--", "C:\\D\\ok.pak"});
    EXPECT_EQ(second.Code, exit_code::kFailed);
    EXPECT_EQ(second.Err,
              "The running Lorvane 3D has something else to offer as soon as the window that is open in it is closed. "
              "Close that first.\n");
    EXPECT_EQ(launcher.Dropped.Word, "qw://foo:1") << "it stays";
    ResumeTopmost(run);
}

TEST_F(AskedInstance, DuringALaunchOfItsOwnItIsBusy) {
    Open();
    launcher.LaunchUnderWay = true;
    const CommandResult result = Ask({"--launch", "Quake"});
    EXPECT_EQ(result.Code, exit_code::kFailed);
    EXPECT_EQ(result.Err, "The running Lorvane 3D is busy. Close the windows that are open in it, and try again.\n");
    EXPECT_TRUE(system.Programs.Started.empty());
}

class AnsweringInstance : public SingleInstance {
  public:
    bool Claim() override { return false; }
    Asked Ask(std::string_view request, int patienceMs) override {
        Request = request;
        Patience = patienceMs;
        return Is;
    }
    Asked Is;
    Text Request;
    int Patience = 0;
};

TEST_F(AskedInstance, WhatAStartWasGivenIsHandedOver) {
    AnsweringInstance other;
    system.Services.Instance = &other;
    ConnectHandOver(launcher);
    other.Is = {.IsRunning = true, .Answer = ReplyOf({})};
    EXPECT_EQ(launcher.HandOver("--launch"), "");
    EXPECT_EQ(WordsOf(other.Request), (std::vector<Text>{"--", "--launch"})) << "it is a name, whatever it looks like";
    EXPECT_EQ(other.Patience, 5000);
}

TEST_F(AskedInstance, WhatIsNotTakenIsSaid) {
    AnsweringInstance other;
    system.Services.Instance = &other;
    ConnectHandOver(launcher);
    other.Is = {.IsRunning = true, .Answer = std::nullopt};
    EXPECT_EQ(launcher.HandOver("a.pak"),
              "Lorvane 3D is running already, and does not answer. Answer what its window asks, and try again.");
    other.Is.Answer = "no reply of ours";
    EXPECT_EQ(launcher.HandOver("a.pak"),
              "Lorvane 3D is running already, and does not answer. Answer what its window asks, and try again.");
    other.Is.Answer =
        ReplyOf({exit_code::kFailed, "",
                 "The running Lorvane 3D is busy. Close the windows that are open in it, and try again.\n", ""});
    EXPECT_EQ(launcher.HandOver("a.pak"),
              "The running Lorvane 3D is busy. Close the windows that are open in it, and try again.");
}

}  // namespace
}  // namespace lv
