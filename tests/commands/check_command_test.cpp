#include "commands/check_command.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class CheckCommand : public LauncherTest {
  protected:
    CheckCommand() { AddGames(); }
    CommandResult Check(const std::vector<Text>& words) { return CheckAt(words, {system.Services}); }
    CommandResult Check(TextView path) { return Check({"--check", Text(path)}); }
    CommandResult CheckAt(const std::vector<Text>& words, const CommandPlace& place) {
        const Result<Command> command = ReadCommand(words);
        EXPECT_TRUE(command.Ok()) << command.Fault.Text;
        return CheckOneScript(command.Value, place);
    }
    static constexpr TextView kOddQuote = "bind x \"impulse 1\n";
};

TEST_F(CheckCommand, AFindingStandsWithItsFileAndLine) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\bad.cfg", "sensitivity 3\nbind x \"impulse 1\nexec gone.cfg\n");
    const CommandResult result = Check("C:\\QUAKE\\ID1\\bad.cfg");
    EXPECT_EQ(result.Code, exit_code::kFinds);
    EXPECT_TRUE(result.Out.find("bad.cfg:2: ") != Text::npos) << result.Out;
    EXPECT_TRUE(result.Out.find("gone.cfg") != Text::npos) << result.Out;
}

TEST_F(CheckCommand, AScriptInOrderSaysNothing) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\good.cfg", "sensitivity 3\nbind x \"impulse 1\"\n");
    const CommandResult result = Check("C:\\QUAKE\\ID1\\good.cfg");
    EXPECT_EQ(result.Code, exit_code::kDone) << result.Out;
    EXPECT_EQ(result.Out, "");
}

TEST_F(CheckCommand, OnlyItsOwnFindingsAreTold) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\autoexec.cfg", "bind y \"impulse 2\n");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\good.cfg", "sensitivity 3\n");
    EXPECT_EQ(Check("C:\\QUAKE\\ID1\\good.cfg").Out, "");
}

TEST_F(CheckCommand, AScriptOutsideOfAGameIsCheckedByItsEnding) {
    struct Row {
        Text File;
        Text Judge;
    };
    const std::vector<Row> rows = {
        {"bad.q2s", "Quake II reads it, as its ending says"}, {"bad.hs", "Hexen II reads it, as its ending says"},
        {"bad.sns", "Sin reads it, as its ending says"},      {"bad.qs", "Quake reads it, as its ending says"},
        {"bad.cfg", "Quake reads it, as it lies in no game"}, {"bad.txt", "Quake reads it, as it lies in no game"},
    };
    for (const Row& row : rows) {
        system.Disk.AddFile(Join("C:\\MINE\\", row.File), kOddQuote);
        const CommandResult result = Check(Join("C:\\MINE\\", row.File));
        EXPECT_EQ(result.Code, exit_code::kFinds);
        EXPECT_EQ(result.Err, Join("Checked as the console of ", row.Judge,
                                   ". \"--launch TITLE\" behind the script names another program.\r\n"));
    }
}

TEST_F(CheckCommand, AScriptInAGameIsReadByThatGamesConsoleHoweverDeepItLies) {
    for (const Text path : {"C:\\HL\\bad.cfg", "C:\\HL\\VALVE\\bad.cfg", "C:\\HL\\VALVE\\duel\\old\\bad.cfg"}) {
        system.Disk.AddFile(path, kOddQuote);
        const CommandResult result = Check(path);
        EXPECT_TRUE(result.Err.starts_with("Checked as the console of Half-Life reads it, as it lies in that game."))
            << result.Err;
    }
}

TEST_F(CheckCommand, AScriptDeepInAGameKnowsWhatItsOtherScriptsDefine) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\autoexec.cfg", "alias mine \"impulse 1\"\n");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\duel\\good.cfg", "mine\n");
    EXPECT_EQ(Check("C:\\QUAKE\\ID1\\duel\\good.cfg").Out, "");
}

TEST_F(CheckCommand, AProgramMayBeNamedWhoseConsoleJudges) {
    system.Disk.AddFile("C:\\MINE\\bad.cfg", kOddQuote);
    const CommandResult result = Check({"--check", "C:\\MINE\\bad.cfg", "--launch", "quake 2"});
    EXPECT_EQ(result.Code, exit_code::kFinds);
    EXPECT_EQ(result.Err, "Checked as the console of Quake II reads it, as that program does.\r\n");
}

TEST_F(CheckCommand, AProgramThatIsInNoListIsToldWithAHint) {
    system.Disk.AddFile("C:\\MINE\\bad.cfg", kOddQuote);
    const CommandResult result = Check({"--check", "C:\\MINE\\bad.cfg", "--launch", "quack"});
    EXPECT_EQ(result.Code, exit_code::kNothingCalledSo);
    EXPECT_EQ(result.Err, "No program is called \"quack\". Did you mean \"Quake\"?");
}

TEST_F(CheckCommand, WhatHasBytesOfNoTextIsNoScript) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\ok.cfg", TextView("bind x y\n\0bind", 14));
    system.Disk.AddFile("C:\\QUAKE\\ID1\\ok.pak", TextView("PACK\x0C\0\0\0\0\0\0\0", 12));
    system.Disk.AddFile("C:\\MINE\\ok.pk3", TextView("PK\x03\x04\x14\0\0\0", 8));
    system.Disk.AddSparseFile("C:\\MINE\\huge.pak", TextView("PACK\0\0\0\0", 8), 2U << 30U);
    for (const Text path :
         {"C:\\QUAKE\\ID1\\ok.cfg", "C:\\QUAKE\\ID1\\ok.pak", "C:\\MINE\\ok.pk3", "C:\\MINE\\huge.pak"}) {
        const CommandResult result = Check(path);
        EXPECT_EQ(result.Code, exit_code::kNothingCalledSo) << path;
        EXPECT_EQ(result.Err, Join("\"", path, "\" is no script: it has bytes that no text has."));
        EXPECT_EQ(result.Out, "");
    }
}

TEST_F(CheckCommand, ATerminalGetsTheHostsPath) {
    system.Disk.AddFile("C:\\MINE\\bad.cfg", kOddQuote);
    const CommandPlace place{system.Services, {}, {}, {}, true};
    EXPECT_TRUE(CheckAt({"--check", "C:\\MINE\\bad.cfg"}, place).Out.starts_with("/c:/mine/bad.cfg:1: "));
}

TEST_F(CheckCommand, AScriptThatIsNotThere) {
    const CommandResult result = Check("C:\\QUAKE\\ID1\\gone\x1B.cfg");
    EXPECT_EQ(result.Code, exit_code::kNothingCalledSo);
    EXPECT_EQ(result.Err, "\"C:\\QUAKE\\ID1\\gone?.cfg\": File not found");
}

TEST_F(CheckCommand, ALargeFileIsNotRead) {
    system.Disk.AddSparseFile("C:\\QUAKE\\ID1\\huge.cfg", Text(5000, 'x'), 2U << 30U);
    EXPECT_EQ(Check("C:\\QUAKE\\ID1\\huge.cfg").Code, exit_code::kFailed);
}

TEST_F(CheckCommand, TheFileIsWhatTheWordNames) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\bad.cfg", "bind x \"impulse 1\n");
    const CommandPlace place{system.Services, {}, [](TextView word) { return Join("C:\\QUAKE\\ID1\\", word); }, {}};
    EXPECT_EQ(CheckAt({"--check", "bad.cfg"}, place).Code, exit_code::kFinds);
}

}  // namespace
}  // namespace lv
