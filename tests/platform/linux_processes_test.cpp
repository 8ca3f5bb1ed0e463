#include "platform/linux/linux_processes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "tests/support/game_yard.h"

namespace lv {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

using Strings = std::vector<std::string>;

// A directory for SearchPath that holds nothing.
std::string EmptyPath(const GameYard& yard) {
    std::filesystem::create_directories(yard.Root / "no tools");
    return (yard.Root / "no tools").string();
}

// A directory for SearchPath that holds programs of these names.
std::string PathWith(const GameYard& yard, const Strings& names) {
    const auto directory = yard.Root / "tools";
    std::filesystem::create_directories(directory);
    for (const std::string& name : names) {
        std::filesystem::copy_file("/bin/true", directory / name);
    }
    return directory.string();
}

std::string WindowsProgram() {
    return "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0PE\0\0", 8);
}

}  // namespace

TEST(NativeRoad, StartsTheGameInItsDirectoryWithItsArguments) {
    GameYard yard("native_arguments");
    yard.AddGame("show_native", "quake/glquake");
    yard.AddBatch("quake",
                  {"C:", "cd C:\\QUAKE", "GLQUAKE -zone 512 \"a b\" \"\" \\\"q\\\" $(id) ; & * +exec lv_666.qs"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    const Error fault = processes.StartBatch("C:\\QUAKE", "lv_666.bat");
    ASSERT_FALSE(fault) << fault.Text;
    const Strings output = WaitForOutput(yard.Drive / "quake/output.txt");
    EXPECT_THAT(LinesAfter(output, "DIRECTORY="), ElementsAre((yard.Drive / "quake").string()));
    EXPECT_THAT(LinesAfter(output, "PROGRAM="), ElementsAre((yard.Drive / "quake/glquake").string()));
    EXPECT_THAT(LinesAfter(output, "ARGUMENT="),
                ElementsAre("-zone", "512", "a b", "", "\"q\"", "$(id)", ";", "&", "*", "+exec", "lv_666.qs"));
}

TEST(NativeRoad, SetsTheEnvironmentAsItStands) {
    const ScopedVariable removed("LV_TEST_REMOVED", "there");
    const ScopedVariable kept("LV_TEST_KEPT", "kept");
    GameYard yard("native_environment");
    yard.AddGame("show_native", "quake/glquake");
    yard.AddBatch("quake", {"SET LV_TEST_A= a \"b c\" %PATH% & ; = $HOME ", "SET LV_TEST_B=1", "SET LV_TEST_B=2",
                            "SET LV_TEST_REMOVED=", "SET LV_TEST_C=\xE9\x80", "C:", "cd C:\\QUAKE", "GLQUAKE"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    ASSERT_FALSE(processes.StartBatch("C:\\QUAKE", "lv_666.bat"));
    const Strings output = WaitForOutput(yard.Drive / "quake/output.txt");
    EXPECT_THAT(LinesAfter(output, "LV_TEST_A="), ElementsAre(" a \"b c\" %PATH% & ; = $HOME "));
    EXPECT_THAT(LinesAfter(output, "LV_TEST_B="), ElementsAre("2"));
    EXPECT_THAT(LinesAfter(output, "LV_TEST_C="), ElementsAre("é€"));
    EXPECT_THAT(LinesAfter(output, "LV_TEST_KEPT="), ElementsAre("kept"));
    EXPECT_THAT(LinesAfter(output, "LV_TEST_REMOVED="), ElementsAre());
}

TEST(NativeRoad, StartsAGameInADirectoryWithBlanksAndAccents) {
    GameYard yard("native_blanks");
    yard.AddGame("show_native", "My Gamés/The Game/my game");
    yard.AddBatch("My Gamés/The Game", {"C:", "cd \"C:\\MY GAM\xC9S\\THE GAME\"", "MY GAME -a \xE9"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    ASSERT_FALSE(processes.StartBatch("C:\\MY GAM\xC9S\\THE GAME", "lv_666.bat"));
    const Strings output = WaitForOutput(yard.Drive / "My Gamés/The Game/output.txt");
    EXPECT_THAT(LinesAfter(output, "DIRECTORY="), ElementsAre((yard.Drive / "My Gamés/The Game").string()));
    EXPECT_THAT(LinesAfter(output, "ARGUMENT="), ElementsAre("-a", "é"));
}

TEST(NativeRoad, GivesTheGameWhatALineEndHasCutOff) {
    GameYard yard("native_broken_line");
    yard.AddGame("show_native", "hl/hl.exe");
    yard.AddBatch("hl", {"C:", "cd C:\\HL", "HL.EXE +password x", "connect 1.2.3.4:27015"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    ASSERT_FALSE(processes.StartBatch("C:\\HL", "lv_666.bat"));
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "hl/output.txt"), "ARGUMENT="),
                ElementsAre("+password", "x", "connect", "1.2.3.4:27015"));
}

TEST(NativeRoad, KeepsEachGivenWordOneArgument) {
    GameYard yard("native_given");
    yard.AddGame("show_native", "quake/quake");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE -game x +connect evil.example -a \"b c\""});
    LinuxProcesses processes(yard.Disk, yard.Places);
    ASSERT_FALSE(processes.StartBatch(
        "C:\\QUAKE", "lv_666.bat", {"QUAKE", {GivenIn(yard.Drive / "quake/lv_666.bat", "x +connect evil.example")}}));
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "quake/output.txt"), "ARGUMENT="),
                ElementsAre("-game", "x +connect evil.example", "-a", "b c"));
}

TEST(NativeRoad, TakesNoOtherFileForTheProgramThatIsNamed) {
    GameYard yard("native_named");
    yard.AddGame("show_native", "quake/my game");
    yard.AddFile("quake/my.bat", "echo pwned > pwned.txt\r\n");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "MY GAME -a"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    ASSERT_FALSE(processes.StartBatch("C:\\QUAKE", "lv_666.bat", {"MY GAME", {}}));
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "quake/output.txt"), "ARGUMENT="), ElementsAre("-a"));
}

TEST(NativeRoad, RefusesAGivenWordWithALineEnd) {
    GameYard yard("native_line_end");
    yard.AddGame("show_native", "quake/quake");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE -game x\ny"});
    const auto plan =
        LinuxProcesses(yard.Disk, yard.Places)
            .PlanBatch("C:\\QUAKE", "lv_666.bat", {"QUAKE", {GivenIn(yard.Drive / "quake/lv_666.bat", "x\ny")}});
    EXPECT_EQ(plan.Fault.Number, 75);
    EXPECT_EQ(plan.Fault.Text, "A command line would not read this as one word of text, and nothing was started: x\ny");
}

TEST(NativeRoad, KeepsAGivenWordOneArgumentThatReadsLikeWhatStandsAheadOfIt) {
    GameYard yard("native_given_alike");
    yard.AddGame("show_native", "quake/quake");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "qlaunch quakeudp.dll QUAKE -zone 512 -game 512 -game -a"});
    const std::size_t at = ReadBytes(yard.Drive / "quake/lv_666.bat").rfind("512 -game");
    LinuxProcesses processes(yard.Disk, yard.Places);
    ASSERT_FALSE(processes.StartBatch("C:\\QUAKE", "lv_666.bat", {"QUAKE", {{at, "512 -game", "512 -game"}}}));
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "quake/output.txt"), "ARGUMENT="),
                ElementsAre("-zone", "512", "-game", "512 -game", "-a"));
}

TEST(NativeRoad, RefusesABatchThatIsNotAsItWasWritten) {
    GameYard yard("native_changed");
    yard.AddGame("show_native", "quake/quake");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE -game x y"});
    const GivenWord word = GivenIn(yard.Drive / "quake/lv_666.bat", "x y");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE -a -game x y"});
    const auto plan = LinuxProcesses(yard.Disk, yard.Places).PlanBatch("C:\\QUAKE", "lv_666.bat", {"QUAKE", {word}});
    EXPECT_EQ(plan.Fault.Number, 75);
    EXPECT_EQ(plan.Fault.Text, "The batch is not as it was written, and nothing was started: C:\\QUAKE\\lv_666.bat");
}

TEST(ReaderOf, IsNobodyButForBatchesAndDosPrograms) {
    GameYard yard("reader_of");
    yard.AddGame("show_native", "quake/native");
    yard.AddFile("quake/windows.exe", WindowsProgram());
    yard.AddFile("quake/dos.exe", "MZ");
    yard.AddFile("quake/go.bat", "@echo off\r\n");
    yard.AddFile("quake/quake.exe", WindowsProgram());
    LinuxProcesses processes(yard.Disk, yard.Places);
    EXPECT_EQ(processes.ReaderOf("C:\\QUAKE", "NATIVE -a", "NATIVE"), LineReader::kNobody);
    EXPECT_EQ(processes.ReaderOf("C:\\QUAKE", "WINDOWS.EXE -a", "WINDOWS.EXE"), LineReader::kNobody);
    EXPECT_EQ(processes.ReaderOf("C:\\QUAKE", "DOS.EXE -a", "DOS.EXE"), LineReader::kDosShell);
    EXPECT_EQ(processes.ReaderOf("C:\\QUAKE", "GO.BAT -a", "GO.BAT"), LineReader::kBatch);
    EXPECT_EQ(processes.ReaderOf("C:\\QUAKE", "NONE.EXE -a", "NONE.EXE"), LineReader::kNobody);
    const std::string wrapped = "qlaunch quakeudp.dll QUAKE.EXE -a";
    EXPECT_EQ(processes.ReaderOf("C:\\QUAKE", wrapped, "QUAKE.EXE"), LineReader::kNobody);
    yard.AddFile("quake/qlaunch.exe", "MZ");
    EXPECT_EQ(processes.ReaderOf("C:\\QUAKE", wrapped, "QUAKE.EXE"), LineReader::kDosShell);
}

TEST(NativeRoad, PassesOverTheNetworkWrapper) {
    GameYard yard("native_wrapper");
    yard.AddGame("show_native", "quake/quake.exe");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "qlaunch quakeudp.dll QUAKE.EXE -noipx -zone 512"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    ASSERT_FALSE(processes.StartBatch("C:\\QUAKE", "lv_666.bat"));
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "quake/output.txt"), "ARGUMENT="),
                ElementsAre("-noipx", "-zone", "512"));
    EXPECT_THAT(ReadBytes(yard.Drive / "quake/lv_666.bat"),
                EndsWith("qlaunch quakeudp.dll QUAKE.EXE -noipx -zone 512"));
}

TEST(NativeRoad, RunsAScriptByItsFirstLine) {
    GameYard yard("native_script");
    const auto script = yard.AddFile("quake/start", "#!/bin/sh\nprintf '%s\\nend\\n' \"$1\" > output.txt\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "START \"; touch oops\""});
    LinuxProcesses processes(yard.Disk, yard.Places);
    ASSERT_FALSE(processes.StartBatch("C:\\QUAKE", "lv_666.bat"));
    EXPECT_THAT(WaitForOutput(yard.Drive / "quake/output.txt"), ElementsAre("; touch oops", "end"));
    EXPECT_FALSE(std::filesystem::exists(yard.Drive / "quake/oops"));
}

TEST(NativeRoad, LeavesAGameThatOutlivesItsStarter) {
    GameYard yard("native_outlives");
    yard.AddGame("show_native", "quake/quake.exe");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE -wait 500"});
    const pid_t starter = fork();
    if (starter == 0) {
        setsid();
        LinuxProcesses processes(yard.Disk, yard.Places);
        const Error fault = processes.StartBatch("C:\\QUAKE", "lv_666.bat");
        if (!fault) {
            kill(0, SIGKILL);  // the whole session of the starter
        }
        _exit(1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(starter, &status, 0), starter);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_FALSE(std::filesystem::exists(yard.Drive / "quake/output.txt"));
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "quake/output.txt"), "ARGUMENT="), ElementsAre("-wait", "500"));
}

TEST(NativeRoad, LeavesNoChildAndNoOpenFileBehind) {
    GameYard yard("native_no_zombie");
    yard.AddGame("show_native", "quake/quake.exe");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    const auto openFiles = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    const auto before = openFiles();
    LinuxProcesses processes(yard.Disk, yard.Places);
    ASSERT_FALSE(processes.StartBatch("C:\\QUAKE", "lv_666.bat"));
    EXPECT_EQ(openFiles(), before);
    ASSERT_FALSE(WaitForOutput(yard.Drive / "quake/output.txt").empty());
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST(StartBatch, SaysHowToMendAFileThatMayNotBeRun) {
    GameYard yard("not_executable");
    const auto game = yard.AddGame("show_native", "quake/quake");
    std::filesystem::permissions(game, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    const Error fault = processes.StartBatch("C:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(fault.Number, 70);
    EXPECT_EQ(fault.Text, "The file may not be run as a program: " + game.string() +
                              ". Allow it in the file manager's properties, or with chmod +x.");
}

TEST(StartBatch, NamesAMissingProgram) {
    GameYard yard("missing_program");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE -zone 512"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    const Error fault = processes.StartBatch("C:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(fault.Number, 53);
    EXPECT_EQ(fault.Text, "File not found: C:\\QUAKE\\QUAKE.EXE");
}

TEST(StartBatch, NamesAMissingBatchAndAMissingDirectory) {
    GameYard yard("missing_batch");
    yard.AddBatch("quake", {"C:", "cd C:\\NOWHERE", "QUAKE.EXE"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    const Error noBatch = processes.StartBatch("C:\\QUAKE", "lv_667.bat");
    EXPECT_EQ(noBatch.Number, 53);
    EXPECT_EQ(noBatch.Text, "File not found: C:\\QUAKE\\lv_667.bat");
    const Error noDirectory = processes.StartBatch("C:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(noDirectory.Number, 76);
    EXPECT_EQ(noDirectory.Text, "Path not found: C:\\NOWHERE");
}

TEST(StartBatch, RefusesABatchWithoutACommand) {
    GameYard yard("no_command");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    const Error fault = processes.StartBatch("C:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(fault.Number, 5);
    EXPECT_EQ(fault.Text, "There is no command in C:\\QUAKE\\lv_666.bat");
}

TEST(StartBatch, RefusesAFileOfNoKnownKind) {
    GameYard yard("unknown_kind");
    yard.AddFile("quake/quake.exe", "hello");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    const Error fault = processes.StartBatch("C:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(fault.Number, 75);
    EXPECT_EQ(fault.Text, "This is no program for Linux, Windows or DOS: C:\\QUAKE\\QUAKE.EXE");
}

TEST(StartBatch, SaysWhichPackageHoldsWine) {
    GameYard yard("no_wine");
    yard.Places.SearchPath = EmptyPath(yard);
    yard.AddFile("quake/quake.exe", WindowsProgram());
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    const Error fault = processes.StartBatch("C:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(fault.Number, 53);
    EXPECT_EQ(fault.Text, "Wine is needed to start this Windows program. Install the Debian package \"wine\".");
}

TEST(StartBatch, SaysWhichPackageHoldsDosBox) {
    GameYard yard("no_dosbox");
    yard.Places.SearchPath = EmptyPath(yard);
    yard.AddFile("quake/quake.exe", "MZ");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    const Error fault = processes.StartBatch("C:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(fault.Number, 53);
    EXPECT_EQ(fault.Text, "DOSBox is needed to start this DOS program. Install the Debian package \"dosbox\".");
}

TEST(StartBatch, SaysWhichPackageHoldsATerminal) {
    GameYard yard("no_terminal");
    yard.Places.SearchPath = EmptyPath(yard);
    yard.AddGame("show_native", "quake/quake.exe");
    yard.AddBatch("quake", {"SET", "PAUSE", "C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    LinuxProcesses processes(yard.Disk, yard.Places);
    const Error fault = processes.StartBatch("C:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(fault.Number, 53);
    EXPECT_EQ(fault.Text, "A terminal is needed to show the environment. Install the Debian package \"xterm\".");
}

TEST(PlanBatch, ShowsTheEnvironmentOfANativeGameInATerminal) {
    GameYard yard("native_pause");
    yard.Places.SearchPath = PathWith(yard, {"xterm", "x-terminal-emulator"});
    const std::string game = yard.AddGame("show_native", "quake/quake.exe").string();
    yard.AddBatch("quake", {"SET LV_TEST_A=1", "SET", "PAUSE", "C:", "cd C:\\QUAKE", "QUAKE.EXE -a \"b c\""});
    const auto plan = LinuxProcesses(yard.Disk, yard.Places).PlanBatch("C:\\QUAKE", "lv_666.bat");
    ASSERT_TRUE(plan.Ok()) << plan.Fault.Text;
    EXPECT_EQ(plan.Value.Program, yard.Places.SearchPath + "/xterm");
    EXPECT_THAT(plan.Value.Arguments, ElementsAre("-e", yard.Places.PauseHelper.string(), game, "-a", "b c"));
    EXPECT_THAT(plan.Value.Environment, Contains("LV_TEST_A=1"));
    EXPECT_EQ(plan.Value.Directory, (yard.Drive / "quake").string());
}

TEST(PlanBatch, TakesAnotherTerminalWithoutXterm) {
    GameYard yard("other_terminal");
    yard.Places.SearchPath = PathWith(yard, {"x-terminal-emulator", "wine"});
    yard.AddFile("quake/quake.exe", WindowsProgram());
    yard.AddBatch("quake", {"SET", "PAUSE", "C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    const auto plan = LinuxProcesses(yard.Disk, yard.Places).PlanBatch("C:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(plan.Value.Program, yard.Places.SearchPath + "/x-terminal-emulator");
    EXPECT_THAT(plan.Value.Arguments,
                ElementsAre("-e", yard.Places.PauseHelper.string(), yard.Places.SearchPath + "/wine",
                            (yard.Drive / "quake/quake.exe").string()));
}

TEST(PlanBatch, SendsABatchOfTheUsersOwnToWine) {
    GameYard yard("user_batch");
    yard.Places.SearchPath = PathWith(yard, {"wine"});
    yard.AddFile("quake/go.bat", "@echo off\r\n");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "GO.BAT -a"});
    const auto plan = LinuxProcesses(yard.Disk, yard.Places).PlanBatch("C:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(plan.Value.Program, yard.Places.SearchPath + "/wine");
}

TEST(PlanProgram, FindsANameOnThePath) {
    GameYard yard("program_by_name");
    yard.Places.SearchPath = PathWith(yard, {"gedit"});
    yard.AddFile("quake/id1/my.cfg", "x");
    const auto plan =
        LinuxProcesses(yard.Disk, yard.Places).PlanProgram("gedit", {"C:\\QUAKE\\ID1\\MY.CFG", "C:\\NONE", "-a b"});
    ASSERT_TRUE(plan.Ok()) << plan.Fault.Text;
    EXPECT_EQ(plan.Value.Program, yard.Places.SearchPath + "/gedit");
    EXPECT_THAT(plan.Value.Arguments, ElementsAre((yard.Drive / "quake/id1/my.cfg").string(), "C:\\NONE", "-a b"));
}

TEST(PlanProgram, TakesADrivePathAndAHostPath) {
    GameYard yard("program_by_path");
    const std::string game = yard.AddGame("show_native", "bin/show").string();
    EXPECT_EQ(LinuxProcesses(yard.Disk, yard.Places).PlanProgram("C:\\BIN\\SHOW", {}).Value.Program, game);
    EXPECT_EQ(LinuxProcesses(yard.Disk, yard.Places).PlanProgram(game, {}).Value.Program, game);
}

TEST(PlanProgram, GivesAWindowsProgramToWine) {
    GameYard yard("windows_program");
    yard.Places.SearchPath = PathWith(yard, {"wine"});
    const std::string spy = yard.AddFile("spy/gamespy.exe", WindowsProgram()).string();
    const auto plan = LinuxProcesses(yard.Disk, yard.Places).PlanProgram("C:\\SPY\\GAMESPY.EXE", {"a b"});
    EXPECT_EQ(plan.Value.Program, yard.Places.SearchPath + "/wine");
    EXPECT_THAT(plan.Value.Arguments, ElementsAre(spy, "a b"));
}

TEST(PlanProgram, RefusesAnArgumentThatABatchWouldMisread) {
    GameYard yard("batch_program");
    yard.Places.SearchPath = PathWith(yard, {"wine"});
    yard.AddFile("bin/edit.bat", "@echo off\r\n");
    LinuxProcesses processes(yard.Disk, yard.Places);
    EXPECT_TRUE(processes.PlanProgram("C:\\BIN\\EDIT.BAT", {"C:\\QUAKE\\my best.cfg"}).Ok());
    for (const std::string word : {"my&evil&.cfg", "%windir%", "a|b", "a\"b"}) {
        EXPECT_EQ(processes.PlanProgram("C:\\BIN\\EDIT.BAT", {word}).Fault.Text,
                  "The command processor would not read this as one word of text, and nothing was started: " + word);
    }
}

TEST(PlanProgram, LeavesAnUnknownWindowsNameToWine) {
    GameYard yard("notepad");
    yard.Places.SearchPath = PathWith(yard, {"wine"});
    const std::string file = yard.AddFile("quake/my.cfg", "x").string();
    const auto plan = LinuxProcesses(yard.Disk, yard.Places).PlanProgram("notepad.exe", {"C:\\QUAKE\\MY.CFG"});
    ASSERT_EQ(plan.Value.Arguments.size(), 2u);
    EXPECT_EQ(plan.Value.Arguments[0], "notepad.exe");
    EXPECT_THAT(plan.Value.Arguments[1], StartsWith("Z:\\"));
    EXPECT_THAT(plan.Value.Arguments[1], EndsWith("\\drive\\quake\\my.cfg"));
}

TEST(StartProgram, StartsAProgram) {
    GameYard yard("start_program");
    const std::string game = yard.AddGame("show_native", "bin/show").string();
    LinuxProcesses processes(yard.Disk, yard.Places);
    ASSERT_FALSE(processes.StartProgram("C:\\BIN\\SHOW", {"a b", "\xE9"}));
    EXPECT_THAT(LinesAfter(WaitForOutput(yard.Drive / "output.txt"), "ARGUMENT="), ElementsAre("a b", "é"));
}

TEST(StartProgram, NamesAMissingProgram) {
    GameYard yard("missing_named_program");
    yard.Places.SearchPath = EmptyPath(yard);
    LinuxProcesses processes(yard.Disk, yard.Places);
    for (const std::string name : {"nothing", "C:\\NOTHING.EXE", "/nothing"}) {
        const Error fault = processes.StartProgram(name, {});
        EXPECT_EQ(fault.Number, 53);
        EXPECT_EQ(fault.Text, "File not found: " + name);
    }
}

}  // namespace lv
