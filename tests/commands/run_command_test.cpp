#include "commands/run_command.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class RunCommandTest : public LauncherTest {
  protected:
    CommandResult Do(const std::vector<Text>& words) {
        const Result<Command> command = ReadCommand(words);
        EXPECT_TRUE(command.Ok()) << command.Fault.Text;
        return RunCommand(command.Value, {system.Services});
    }
};

TEST_F(RunCommandTest, EachVerbIsDone) {
    AddGames();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\bad.cfg", "bind x \"impulse 1\n");
    EXPECT_TRUE(Do({"--help"}).Out.starts_with("Lorvane 3D starts"));
    EXPECT_EQ(Do({"--version"}).Out, "Lorvane 3D 1.06.0112 <Beta>\n");
    EXPECT_TRUE(Do({"--list"}).Out.starts_with("Quake\tQuake\tC:\\QUAKE\\GLQUAKE.EXE\t\t\n"));
    EXPECT_EQ(Do({"--launch", "Quake 2"}).Out, "Started QUAKE2.EXE in c:\\quake2\n");
    EXPECT_EQ(Do({"--check", "C:\\QUAKE\\ID1\\bad.cfg"}).Code, exit_code::kFinds);
}

TEST_F(RunCommandTest, NamesOfStrangersCommandNoTerminal) {
    Save(run, kOptions, "Executables", "Ev\x1B[31mil;C:\\QUAKE\\QUAKE.EXE");
    EXPECT_EQ(Do({"--list"}).Out, "Ev?[31mil\t\tC:\\QUAKE\\QUAKE.EXE\t\t\n");
}

TEST_F(RunCommandTest, WordsThatAreNotUnderstoodEndWithTwo) {
    const CommandResult result = NotUnderstood(ReadCommand({"--lanch"}).Fault);
    EXPECT_EQ(result.Code, exit_code::kNotUnderstood);
    EXPECT_EQ(result.Err,
              "lorvane3d: There is no option \"--lanch\". Did you mean \"--launch\"?\n"
              "\"lorvane3d --help\" shows the words.\n");
}

TEST_F(RunCommandTest, OnlyHelpAndVersionNeedNothing) {
    EXPECT_TRUE(NeedsNothing(ReadCommand({"--help"}).Value));
    EXPECT_TRUE(NeedsNothing(ReadCommand({"--version"}).Value));
    EXPECT_FALSE(NeedsNothing(ReadCommand({"--list"}).Value));
}

TEST_F(RunCommandTest, WhatListsChecksRehearsesAndExportsOnlyReads) {
    for (const std::vector<Text>& words : {std::vector<Text>{"--list"},
                                           {"--list", "maps"},
                                           {"--check", "a.cfg"},
                                           {"--launch", "Quake", "--dry-run"},
                                           {"--setup", "Evening", "--dry-run"},
                                           {"--export", "a.lv3d"},
                                           {"--help"},
                                           {"--version"}}) {
        EXPECT_TRUE(OnlyReads(ReadCommand(words).Value)) << words.front();
    }
    for (const std::vector<Text>& words : {std::vector<Text>{},
                                           {"C:\\D\\mod.pak"},
                                           {"--launch", "Quake"},
                                           {"--setup", "Evening"},
                                           {"--import", "a.lv3d"}}) {
        EXPECT_FALSE(OnlyReads(ReadCommand(words).Value)) << words.size();
    }
}

}  // namespace
}  // namespace lv
