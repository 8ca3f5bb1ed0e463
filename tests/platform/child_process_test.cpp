#include "platform/linux/child_process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

#include "tests/support/game_yard.h"

namespace lv {

namespace {

using testing::ElementsAre;
using testing::StartsWith;

using Strings = std::vector<std::string>;

}  // namespace

TEST(StartDetached, HandsOnNeitherFilesNorSignals) {
    GameYard yard("detached");
    const auto open = std::ofstream(yard.Root / "held open");
    const int leaked = dup(STDOUT_FILENO);  // without FD_CLOEXEC
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR1);
    sigprocmask(SIG_BLOCK, &blocked, &before);
    const auto handler = signal(SIGPIPE, SIG_IGN);
    const std::string script = "exec > '" + (yard.Root / "out.txt").string() +
                               "'; ls /proc/self/fd; readlink /proc/self/fd/0; "
                               "grep -E '^Sig(Blk|Ign)' /proc/self/status; echo end";
    const Error fault = StartDetached({"/bin/sh", {"-c", script}, OwnEnvironment(), ""});
    sigprocmask(SIG_SETMASK, &before, nullptr);
    signal(SIGPIPE, handler);
    close(leaked);
    ASSERT_FALSE(fault) << fault.Text;
    const Strings output = WaitForOutput(yard.Root / "out.txt");
    // "ls" itself opens 3.
    EXPECT_THAT(output, ElementsAre("0", "1", "2", "3", "/dev/null", "SigBlk:\t0000000000000000",
                                    "SigIgn:\t0000000000000000", "end"));
}

TEST(StartDetached, SaysWhatCouldNotBeStarted) {
    GameYard yard("detached_faults");
    const std::string missing = (yard.Root / "missing").string();
    const Error none = StartDetached({missing, {}, {}, ""});
    EXPECT_EQ(none.Number, 53);
    EXPECT_THAT(none.Text, StartsWith("File not found: " + missing));
    const Error nowhere = StartDetached({"/bin/true", {}, {}, missing});
    EXPECT_EQ(nowhere.Number, 76);
    EXPECT_THAT(nowhere.Text, StartsWith("Path not found: " + missing));
    const Error directory = StartDetached({yard.Root.string(), {}, {}, ""});
    EXPECT_EQ(directory.Number, 70);
    EXPECT_THAT(directory.Text, StartsWith("Permission denied: " + yard.Root.string()));
    const auto junk = yard.AddFile("junk",
                                   "\x7F"
                                   "ELF junk");
    std::filesystem::permissions(junk, std::filesystem::perms::owner_all);
    EXPECT_EQ(StartDetached({junk.string(), {}, {}, ""}).Number, 75);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

TEST(FindOnPath, TakesTheFirstThatMayBeRun) {
    GameYard yard("find_on_path");
    yard.AddFile("a/tool", "x");
    std::filesystem::create_directories(yard.Root / "tools");
    std::filesystem::copy_file("/bin/true", yard.Root / "tools/tool");
    const std::string tools = (yard.Root / "tools").string();
    EXPECT_EQ(FindOnPath("relative::" + (yard.Drive / "a").string() + ":" + tools, "tool"), tools + "/tool");
    EXPECT_EQ(FindOnPath("", "tool"), "");
    EXPECT_EQ(FindOnPath(tools, "other"), "");
    EXPECT_EQ(FindOnPath("/", "tmp"), "");
}

TEST(SetVariable, ReplacesAddsAndRemoves) {
    Strings environment = {"A=1", "AB=2"};
    SetVariable(environment, "A", "3=4");
    SetVariable(environment, "C", "5");
    SetVariable(environment, "AB", "");
    EXPECT_THAT(environment, ElementsAre("A=3=4", "C=5"));
}

TEST(VariableIn, FindsTheWholeNameOnly) {
    const Strings environment = {"AB=2", "A=1=x"};
    EXPECT_EQ(VariableIn(environment, "A"), "1=x");
    EXPECT_EQ(VariableIn(environment, "B"), "");
}

TEST(StartDetached, TakesAwayTheFileThatWasWrittenForTheProgramOnceItWasRead) {
    GameYard yard("detached_read_once");
    const auto file = yard.AddFile("cache/told.conf", "password");
    const auto out = yard.Root / "out.txt";
    const std::string script = "sleep 1; cat '" + file.string() + "' > '" + out.string() + "'; echo >> '" +
                               out.string() + "'; echo end >> '" + out.string() + "'";
    ASSERT_FALSE(StartDetached({"/bin/sh", {"-c", script}, OwnEnvironment(), "", file.string()}));
    EXPECT_TRUE(std::filesystem::exists(file));
    EXPECT_THAT(WaitForOutput(out), ElementsAre("password", "end"));
    EXPECT_TRUE(WaitUntilEmpty(file.parent_path()));
}

TEST(StartDetached, TakesAwayTheFileOfAProgramThatDoesNotStart) {
    GameYard yard("detached_read_never");
    const auto file = yard.AddFile("told.conf", "password");
    EXPECT_EQ(StartDetached({(yard.Root / "missing").string(), {}, {}, "", file.string()}).Number, 53);
    EXPECT_FALSE(std::filesystem::exists(file));
}

}  // namespace lv
