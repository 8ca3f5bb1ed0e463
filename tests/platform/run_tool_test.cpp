#include "platform/linux/run_tool.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

constexpr std::chrono::milliseconds kLong{20000};

std::filesystem::path Script(const ScratchDirectory& scratch, const std::string& lines) {
    WriteBytes(scratch / "tool", "#!/bin/sh\n" + lines);
    chmod((scratch / "tool").c_str(), 0755);
    return scratch / "tool";
}

}  // namespace

TEST(RunTool, GivesTheExitStatus) {
    const ScratchDirectory scratch;
    EXPECT_EQ(RunTool({Script(scratch, "exit 7"), {}, scratch.Path(), {}, kLong}).Value, 7);
    EXPECT_EQ(RunTool({Script(scratch, "kill -TERM $$"), {}, scratch.Path(), {}, kLong}).Value, 143);
}

TEST(RunTool, HandsOverArgumentsDirectoryAndEnvironmentAsTheyAre) {
    const ScratchDirectory scratch;
    const auto tool = Script(scratch, "printf '%s|' \"$@\" \"$PWD\" \"$LV_TEST\" \"$HOME\" >out\n");
    const auto status = RunTool({tool, {"a b", "$HOME", "`id`;\"'"}, scratch.Path(), {"LV_TEST=x=y"}, kLong});
    EXPECT_EQ(status.Value, 0);
    EXPECT_EQ(BytesOf(scratch / "out"),
              "a b|$HOME|`id`;\"'|" + scratch.Path().string() + "|x=y|" + std::string(std::getenv("HOME")) + "|");
}

TEST(RunTool, GivesItNothingToReadAndThrowsItsOutputAway) {
    const ScratchDirectory scratch;
    const auto tool = Script(scratch,
                             "links=$(readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2)\n"
                             "test -e /proc/$$/fd/77 && links=\"$links and more\"\n"
                             "echo \"$links\" >out\n");
    ASSERT_EQ(dup2(0, 77), 77);
    EXPECT_EQ(RunTool({tool, {}, scratch.Path(), {}, kLong}).Value, 0);
    close(77);
    EXPECT_EQ(BytesOf(scratch / "out"), "/dev/null\n/dev/null\n/dev/null\n");
}

TEST(RunTool, KillsWhatDoesNotEndAndItsChildren) {
    const ScratchDirectory scratch;
    const auto tool = Script(scratch, "(sleep 1; echo late >late) &\nsleep 60");
    const auto before = std::chrono::steady_clock::now();
    EXPECT_EQ(RunTool({tool, {}, scratch.Path(), {}, std::chrono::milliseconds(100)}).Fault.Number, 57);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(30));
    ASSERT_EQ(std::system("sleep 1.5"), 0);
    EXPECT_EQ(BytesOf(scratch / "late"), "(none)");
}

TEST(RunTool, TellsWhatCannotBeStarted) {
    const ScratchDirectory scratch;
    EXPECT_EQ(RunTool({scratch / "none", {}, scratch.Path(), {}, kLong}).Fault.Number, 53);
}

TEST(ProgramOnPath, FindsProgramsAndNothingElse) {
    const ScratchDirectory scratch;
    const std::string before = std::getenv("PATH");
    const auto tool = Script(scratch, "exit 0");
    WriteBytes(scratch / "plain", "");
    std::filesystem::create_directory(scratch / "directory");
    setenv("PATH", ("/no such directory:.::" + scratch.Path().string()).c_str(), 1);
    const auto found = ProgramOnPath("tool");
    const auto plain = ProgramOnPath("plain");
    const auto directory = ProgramOnPath("directory");
    const auto none = ProgramOnPath("none");
    setenv("PATH", before.c_str(), 1);
    EXPECT_EQ(found, tool);
    EXPECT_EQ(plain, "");
    EXPECT_EQ(directory, "");
    EXPECT_EQ(none, "");
}

}  // namespace lv
