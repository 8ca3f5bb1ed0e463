#include "commands/launch_command.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class LaunchCommand : public LauncherTest {
  protected:
    LaunchCommand() {
        AddGames();
        before_ = Written();
    }

    CommandResult Do(const std::vector<Text>& words, bool printsHostPaths = false) {
        const Result<Command> command = ReadCommand(words);
        EXPECT_TRUE(command.Ok()) << command.Fault.Text;
        before_ = Written();
        return LaunchOrRehearse(command.Value, {system.Services, {}, {}, {}, printsHostPaths});
    }

    /// What reached the settings since the last command began.
    std::vector<Text> Written() const { return system.Settings.Log; }
    std::vector<Text> WrittenSince() const {
        return {system.Settings.Log.begin() + static_cast<std::ptrdiff_t>(before_.size()), system.Settings.Log.end()};
    }

  private:
    std::vector<Text> before_;
};

TEST_F(LaunchCommand, StartsTheProgramOfThatTitle) {
    const CommandResult result = Do({"--launch", "quake 2"});
    EXPECT_EQ(result.Code, exit_code::kDone) << result.Err;
    EXPECT_EQ(result.Started, "QUAKE2.EXE");
    EXPECT_EQ(result.Out, "Started QUAKE2.EXE in c:\\quake2\r\n");
    EXPECT_EQ(system.Programs.Started, std::vector<Text>{"c:\\quake2\\lv_666.bat"});
    EXPECT_TRUE(system.Disk.Bytes("C:\\QUAKE2\\lv_666.bat").ends_with("QUAKE2.EXE -zone 512"))
        << system.Disk.Bytes("C:\\QUAKE2\\lv_666.bat");
}

TEST_F(LaunchCommand, StoresNothingButTheNumberOfLaunchesAndWhatWasPlayed) {
    (void)Do({"--launch", "Quake", "--mod", "ctf", "--map", "CTF1"});
    EXPECT_EQ(WrittenSince(),
              (std::vector<Text>{"LV-Stuff|LaunchCount|1", "Played|c:\\quake\\glquake.exe|1999-11-21 12:30:00;0;1"}));
    (void)Do({"--launch", "Quake", "--server", "10.0.0.1:26000"});
    EXPECT_EQ(Stored(kOptions, "UseServers"), "(none)");
}

TEST_F(LaunchCommand, LeavesTheMainWindowsPickAsItIs) {
    Save(run, kOptions, "ExecutablesPos", 4);
    (void)Do({"--launch", "Quake"});
    EXPECT_EQ(Stored(kOptions, "ExecutablesPos"), "4");
}

TEST_F(LaunchCommand, TakesWhatIsTickedInTheMainWindow) {
    Save(run, kOptions, "UseCustomCommandLine", 1);
    Save(run, kOptions, "CustomCommandLineText", "-novid");
    (void)Do({"--launch", "Quake 2"});
    EXPECT_TRUE(system.Disk.Bytes("C:\\QUAKE2\\lv_666.bat").ends_with("QUAKE2.EXE -zone 512 -novid"));
}

TEST_F(LaunchCommand, PlaysAModificationByItsTitleOrItsDirectoryAndItsMaps) {
    for (const Text name : {"Capture the Flag", "ctf"}) {
        const CommandResult result = Do({"--launch", "Quake", "--mod", name, "--map", "ctf1"});
        EXPECT_EQ(result.Code, exit_code::kDone) << result.Err;
        EXPECT_TRUE(system.Disk.Bytes("C:\\QUAKE\\lv_666.bat").find("-game ctf") != Text::npos);
        EXPECT_TRUE(system.Disk.Bytes("C:\\QUAKE\\CTF\\lv_666.qs").find("map ctf1\r\n") != Text::npos);
    }
}

TEST_F(LaunchCommand, JoinsAServerThatIsInNoList) {
    const CommandResult result = Do({"--launch", "QuakeWorld", "--server", "qw.example:27500"});
    EXPECT_EQ(result.Code, exit_code::kDone) << result.Err;
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\lv_666.qs"), "connect qw.example:27500\r\n");
    EXPECT_EQ(Stored(kOptions, "NetServers"), "(none)");
}

TEST_F(LaunchCommand, JoinsAListedServerWithItsPasswordByTitleAndByAddress) {
    Save(run, kOptions, "NetServers", "Club;club.example;27910;3;Secret");
    for (const Text name : {"club", "club.example:27910"}) {
        (void)Do({"--launch", "Quake 2", "--server", name});
        EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE2\\BASEQ2\\lv_666.qs"),
                  "password Secret\r\nconnect club.example:27910\r\n\r\n");
    }
}

TEST_F(LaunchCommand, AServerThatIsNoAddressStartsNothing) {
    const CommandResult result = Do({"--launch", "Quake", "--server", "x;quit"});
    EXPECT_EQ(result.Code, exit_code::kNothingCalledSo);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LaunchCommand, RunsAScriptByItsFile) {
    (void)Do({"--launch", "Quake", "--script", "MY.CFG"});
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\lv_666.qs"), "exec my.cfg\r\n");
}

TEST_F(LaunchCommand, UsesAVideoProfile) {
    Save(run, kOptions, "VideoProfileList", "Fast");
    Save(run, "Fast", "Windowed", 1);
    (void)Do({"--launch", "Quake 2", "--profile", "fast"});
    EXPECT_TRUE(system.Disk.Bytes("C:\\QUAKE2\\lv_666.bat").find("-window") != Text::npos);
}

TEST_F(LaunchCommand, WhatIsNotThereStartsNothingAndIsToldWithAHint) {
    struct Row {
        std::vector<Text> Words;
        Text Says;
    };
    const std::vector<Row> rows = {
        {{"--launch", "Quack"}, "No program is called \"Quack\". Did you mean \"Quake\"?\r\n"},
        {{"--launch", "Quake", "--mod", "cft"}, "No modification is called \"cft\".\r\n"},
        {{"--launch", "Quake", "--map", "strat"}, "No map is called \"strat\". Did you mean \"START\"?\r\n"},
        {{"--launch", "Quake", "--profile", "Bas"}, "No video profile is called \"Bas\". Did you mean \"Base\"?\r\n"},
        {{"--launch", "Quake", "--script", "me.cfg"}, "No script is called \"me.cfg\". Did you mean \"MY.CFG\"?\r\n"},
    };
    for (const Row& row : rows) {
        const CommandResult result = Do(row.Words);
        EXPECT_EQ(result.Code, exit_code::kNothingCalledSo) << row.Says;
        EXPECT_EQ(LowerCase(result.Err), LowerCase(row.Says));
    }
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\lv_666.bat"));
}

TEST_F(LaunchCommand, GameSpysBoxesAreClearedAndThatIsTold) {
    Save(run, kOptions, "LaunchQSpy", 1);
    const CommandResult result = Do({"--launch", "Quake"});
    EXPECT_EQ(result.Code, exit_code::kDone);
    EXPECT_TRUE(result.Err.find("\"Configure and Launch GameSpy\" is ticked") != Text::npos) << result.Err;
    EXPECT_EQ(Stored(kOptions, "LaunchQSpy"), "1");
}

TEST_F(LaunchCommand, WhatTheLaunchSaysIsPrinted) {
    system.Programs.Refuse = {error::kFileNotFound, "Wine is needed"};
    const CommandResult result = Do({"--launch", "Quake"});
    EXPECT_EQ(result.Code, exit_code::kFailed);
    EXPECT_TRUE(result.Err.find("Wine is needed") != Text::npos) << result.Err;
    EXPECT_TRUE(result.Err.ends_with("Nothing was started.\r\n")) << result.Err;
}

TEST_F(LaunchCommand, AQuestionGetsTheAnswerThatChangesNothing) {
    system.Disk.AddFile("C:\\QUAKE\\a+quit\\pak0.pak");
    Save(run, kOptions, "Games", "Odd;-game a+quit");
    const CommandResult result = Do({"--launch", "Quake", "--mod", "Odd"});
    EXPECT_EQ(result.Code, exit_code::kFailed) << result.Out;
    EXPECT_TRUE(result.Err.find("(Answered without asking: Don't Start)") != Text::npos) << result.Err;
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LaunchCommand, WithoutAnyGameItSaysHowToBegin) {
    Save(run, kOptions, "Executables", "");
    const CommandResult result = Do({"--launch", "Quake"});
    EXPECT_EQ(result.Code, exit_code::kFailed);
    EXPECT_TRUE(result.Err.starts_with("No games are set up yet.")) << result.Err;
}

TEST_F(LaunchCommand, ADryRunWritesAndStartsNothing) {
    const std::size_t writes = system.Disk.Log.size();
    const CommandResult result = Do({"--launch", "Quake", "--map", "start", "--dry-run"});
    EXPECT_EQ(result.Code, exit_code::kDone) << result.Out;
    EXPECT_EQ(system.Disk.Log.size(), writes);
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_TRUE(WrittenSince().empty());
    EXPECT_EQ(result.Started, "");
    for (const Text part : {"c:\\quake\\ID1\\lv_666.qs (11 bytes)", "map start", "c:\\quake\\lv_666.bat",
                            "GLQUAKE.EXE -zone 512", "c:\\quake\\lv_666.pif", "Would be started:"}) {
        EXPECT_TRUE(result.Out.find(part) != Text::npos) << part << "\n" << result.Out;
    }
}

TEST_F(LaunchCommand, WhatStopsTheLaunchStopsTheDryRunWithTheSameWords) {
    const std::vector<std::vector<Text>> all = {
        {"--launch", "Quake", "--map", "DM7"},          {"--launch", "Quake", "--map", "e1m1;quit"},
        {"--launch", "Quake", "--map", "+quit"},        {"--launch", "Quake", "--map", "a b"},
        {"--launch", "Quake", "--map", Text(200, 'x')}, {"--launch", "Quake", "--script", "gone.cfg"},
        {"--launch", "Quake", "--mod", "gone"},         {"--launch", "Quake", "--server", "x;quit"},
        {"--launch", "Quake", "--profile", "gone"},     {"--setup", "gone"},
    };
    for (std::vector<Text> words : all) {
        const CommandResult launch = Do(words);
        words.emplace_back("--dry-run");
        const CommandResult dry = Do(words);
        EXPECT_EQ(launch.Code, exit_code::kNothingCalledSo) << dry.Err;
        EXPECT_EQ(dry.Code, exit_code::kNothingCalledSo) << dry.Out;
        EXPECT_EQ(dry.Err, launch.Err);
        EXPECT_EQ(dry.Out, "");
    }
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LaunchCommand, ATerminalGetsTheHostsPaths) {
    (void)system.Disk.Delete("C:\\QUAKE\\GLQUAKE.EXE");
    const CommandResult dry = Do({"--launch", "Quake", "--dry-run"}, true);
    for (const Text part :
         {"Program     /c:/quake/glquake.exe\r\n", "The program /c:/quake/glquake.exe is not there."}) {
        EXPECT_TRUE(dry.Out.find(part) != Text::npos) << part << "\n" << dry.Out;
    }
    const Text written = Do({"--launch", "Quake 2", "--dry-run"}, true).Out;
    EXPECT_TRUE(written.find("    /c:/quake2/lv_666.bat (") != Text::npos) << written;
    EXPECT_EQ(Do({"--launch", "Quake 2"}, true).Out, "Started QUAKE2.EXE in /c:/quake2\r\n");
}

TEST_F(LaunchCommand, ADryRunOfAnUnknownGameIsRefused) {
    EXPECT_EQ(Do({"--launch", "Quack", "--dry-run"}).Code, exit_code::kNothingCalledSo);
}

TEST_F(LaunchCommand, ADryRunTellsTheProgramThatIsGone) {
    (void)system.Disk.Delete("C:\\QUAKE2\\QUAKE2.EXE");
    const CommandResult result = Do({"--launch", "Quake 2", "--dry-run"});
    EXPECT_EQ(result.Code, exit_code::kFinds);
    EXPECT_TRUE(result.Out.find("The program C:\\QUAKE2\\QUAKE2.EXE is not there.") != Text::npos) << result.Out;
}

}  // namespace
}  // namespace lv
