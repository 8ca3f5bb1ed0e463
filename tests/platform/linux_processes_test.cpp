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

TEST(HasRunnerFor, LooksForWhatTheProgramNeeds) {
    GameYard yard("has_runner_for");
    yard.AddGame("show_native", "quake/native");
    yard.AddFile("quake/windows.exe", WindowsProgram());
    yard.AddFile("quake/dos.exe", "MZ");
    yard.AddFile("quake/go.bat", "@echo off\r\n");
    yard.AddFile("quake/empty.exe", "");
    LinuxProcesses bare(yard.Disk, [&yard] {
        HostPlaces places = yard.Places;
        places.SearchPath = EmptyPath(yard);
        return places;
    }());
    EXPECT_TRUE(bare.HasRunnerFor("C:\\QUAKE\\NATIVE"));
    EXPECT_FALSE(bare.HasRunnerFor("C:\\QUAKE\\WINDOWS.EXE"));
    EXPECT_FALSE(bare.HasRunnerFor("C:\\QUAKE\\DOS.EXE"));
    EXPECT_FALSE(bare.HasRunnerFor("C:\\QUAKE\\GO.BAT"));
    EXPECT_TRUE(bare.HasRunnerFor("C:\\QUAKE\\EMPTY.EXE"));
    EXPECT_TRUE(bare.HasRunnerFor("C:\\QUAKE\\NONE.EXE"));
    HostPlaces withDosBox = yard.Places;
    withDosBox.SearchPath = PathWith(yard, {"dosbox"});
    EXPECT_TRUE(LinuxProcesses(yard.Disk, withDosBox).HasRunnerFor("C:\\QUAKE\\DOS.EXE"));
    EXPECT_FALSE(LinuxProcesses(yard.Disk, withDosBox).HasRunnerFor("C:\\QUAKE\\WINDOWS.EXE"));
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

TEST(PlanStart, SaysWhatWouldBeStartedAndLeavesNothing) {
    GameYard yard("plan_start");
    yard.AddGame("show_native", "quake/native");
    yard.AddBatch("quake", {"SET LV_OWN=1", "C:", "cd C:\\QUAKE", "native -zone 512"});
    LinuxProcesses programs(yard.Disk, yard.Places);
    const auto plan = programs.PlanStart(yard.Disk, "C:\\QUAKE", "lv_666.bat", {});
    ASSERT_TRUE(plan.Ok()) << plan.Fault.Text;
    EXPECT_THAT(plan.Value.Words, ElementsAre((yard.Drive / "quake/native").string(), "-zone", "512"));
    EXPECT_EQ(plan.Value.Directory, (yard.Drive / "quake").string());
    EXPECT_THAT(plan.Value.Environment, ElementsAre("LV_OWN=1"));
}

TEST(PlanStart, OfADosProgramLeavesNoFile) {
    GameYard yard("plan_start_dos");
    yard.AddFile("quake/dos.exe", "MZ");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "dos.exe"});
    yard.Places.SearchPath = PathWith(yard, {"dosbox"});
    const auto plan = LinuxProcesses(yard.Disk, yard.Places).PlanStart(yard.Disk, "C:\\QUAKE", "lv_666.bat", {});
    ASSERT_TRUE(plan.Ok()) << plan.Fault.Text;
    EXPECT_THAT(plan.Value.Words[0], EndsWith("/dosbox"));
    EXPECT_FALSE(std::filesystem::exists(yard.Places.Cache / "dry_run/dosbox_lv_666.conf"));
    EXPECT_FALSE(std::filesystem::exists(yard.Places.Cache / "dosbox_lv_666.conf"));
}

TEST(PlanStart, SaysWhyNothingWouldBeStarted) {
    GameYard yard("plan_start_none");
    yard.AddFile("quake/windows.exe", WindowsProgram());
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "windows.exe"});
    yard.Places.SearchPath = EmptyPath(yard);
    const auto plan = LinuxProcesses(yard.Disk, yard.Places).PlanStart(yard.Disk, "C:\\QUAKE", "lv_666.bat", {});
    EXPECT_EQ(plan.Fault.Number, error::kFileNotFound);
}

}  // namespace lv
