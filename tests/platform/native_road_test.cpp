#include "platform/linux/starting/native_road.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "platform/linux/linux_processes.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

using Strings = std::vector<std::string>;

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

}  // namespace lv
