#include "console/checks/run_check.h"

#include <gtest/gtest.h>

#include "tests/console/files/listed_run.h"

namespace lv {
namespace {

struct CheckedDisk : GameDisk {
    CheckedDisk() {
        AddPak("ID1\\pak0.pak", {{"quake.rc", "exec default.cfg\nexec config.cfg\nexec autoexec.cfg\n"},
                                 {"default.cfg", "exec gone.cfg\nbind NOKEY x\nalias known wait\n"}});
    }
    Text Report() { return FindingReport(CheckScriptsOf(Disk, Request)); }
};

}  // namespace

TEST(CheckRun, TellsOfTheScriptsThatThePlayersExecute) {
    CheckedDisk game;
    game.Add("ID1\\config.cfg", "exec a.cfg\nexec gone.cfg\n");
    game.Add("ID1\\a.cfg", "\n\nexec config.cfg\nexec b.cfg c.cfg\n");
    EXPECT_EQ(FindingReport(CheckRun(game.Run(), Console::Quake)),
              "C:\\QUAKE\\id1\\a.cfg:3: The script config.cfg is being run already: this goes round without end.\n"
              "C:\\QUAKE\\id1\\a.cfg:4: Behind exec stands more than one name: Quake does not run b.cfg.\n"
              "C:\\QUAKE\\id1\\config.cfg:2: The script gone.cfg is not there.\n");
}

TEST(CheckScriptsOf, ChecksEachFileWithWhatAllDefine) {
    CheckedDisk game;
    game.Add("ID1\\config.cfg", "known\nmine\nexec my.cfg\nexec my.cfg\n");
    game.Add("ID1\\my.cfg", "alias mine wait\nbind NOKEY known\nnobody\n");
    EXPECT_EQ(game.Report(),
              "C:\\QUAKE\\id1\\my.cfg:2: Quake has no key NOKEY.\n"
              "C:\\QUAKE\\id1\\my.cfg:3: nobody is no command, setting or alias that is known: perhaps one of a "
              "modification.\n");
}

TEST(CheckScriptsOf, TellsOfAnUnknownWordThatIsGivenAValue) {
    CheckedDisk game;
    game.Add("ID1\\autoexec.cfg", "frobnicate 3\nwibble \"x y\"\nfov 90\nbind x wait\nx 2\nalias a \"bogus 3\"\na\n");
    const TextView rest = " is no command, setting or alias that is known: perhaps one of a modification.\n";
    EXPECT_EQ(game.Report(),
              Join("C:\\QUAKE\\id1\\autoexec.cfg:1: frobnicate", rest, "C:\\QUAKE\\id1\\autoexec.cfg:2: wibble", rest,
                   "C:\\QUAKE\\id1\\autoexec.cfg:5: x", rest, "C:\\QUAKE\\id1\\autoexec.cfg:6: bogus", rest));
}

TEST(CheckScriptsOf, KnowsSettingsOfTheGamesScriptsOfWhatItWritesAndOfSet) {
    CheckedDisk game;
    game.AddPak("ID1\\pak1.pak", {{"default.cfg", "packed 1\n"}});
    game.Add("ID1\\config.cfg", "written 1\n");
    game.Add("ID1\\autoexec.cfg", "packed 2\nwritten 2\n");
    EXPECT_EQ(game.Report(), "");
    game.Request.Given = {{"C:\\QUAKE\\ID1\\lv_666.qs", "launched 1\n", true}};
    game.Add("ID1\\autoexec.cfg", "exec lv_666.qs\nlaunched 2\n");
    EXPECT_EQ(game.Report(), "");
    game.Request.Played = {.Of = Console::Quake2, .GameKind = Game::Quake2, .Directory = "C:\\QUAKE"};
    game.Add("BASEQ2\\autoexec.cfg", "set mine 1\nmine 2\n");
    EXPECT_EQ(game.Report(), "");
}

TEST(CheckScriptsOf, TellsOfALineOnce) {
    CheckedDisk game;
    game.Add("ID1\\config.cfg", "exec my.cfg\nexec my.cfg\n");
    game.Add("ID1\\my.cfg", "exec two words.cfg\nexec gone.cfg\n");
    EXPECT_EQ(game.Report(),
              "C:\\QUAKE\\id1\\my.cfg:1: Behind exec stands more than one name: Quake does not run two.\n"
              "C:\\QUAKE\\id1\\my.cfg:2: The script gone.cfg is not there.\n");
}

TEST(CheckScriptsOf, TellsOfScriptsThatKeysAndAliasesExecute) {
    CheckedDisk game;
    game.Add("ID1\\here.cfg", "wait\n");
    game.Add("ID1\\autoexec.cfg",
             "bind x \"exec nothere.cfg\"\nalias a \"wait; exec gone.cfg\"\nbind y \"exec HERE.cfg\"\n"
             "alias b \"bind z exec; exec\"\n");
    EXPECT_EQ(game.Report(),
              "C:\\QUAKE\\id1\\autoexec.cfg:1: The script nothere.cfg is not there.\n"
              "C:\\QUAKE\\id1\\autoexec.cfg:2: The script gone.cfg is not there.\n");
    game.Request.Played.Of = Console::EzQuake;
    EXPECT_EQ(game.Report(),
              "C:\\QUAKE\\id1\\autoexec.cfg:1: The script nothere.cfg is not there.\n"
              "C:\\QUAKE\\id1\\autoexec.cfg:2: The script gone.cfg is not there.\n");
}

TEST(CheckScriptsOf, TellsNothingOfScriptsWhoseNamesNobodyKnows) {
    CheckedDisk game;
    game.Request.Played.Of = Console::DarkPlaces;
    game.Add("ID1\\autoexec.cfg", "bind x \"exec $mine.cfg\"\n");
    EXPECT_EQ(game.Report(), "");
    game.Add("ID1\\autoexec.cfg", "bind x \"exec mine*.cfg\"\n");
    EXPECT_EQ(game.Report(), "") << "a pattern";
    game.Request.Played.Of = Console::Quake;
    EXPECT_EQ(game.Report(), "C:\\QUAKE\\id1\\autoexec.cfg:1: The script mine*.cfg is not there.\n");
}

TEST(CheckScriptsOf, GoesOnInAScriptThatIsTooLongForTheGame) {
    CheckedDisk game;
    game.Add("ID1\\autoexec.cfg", Join("bind h \"say open\nexec long.cfg\nexec missing.cfg\nmine\n", Text(9000, '\n'),
                                       "alias mine wait\nexec missing.cfg\n"));
    game.Add("ID1\\long.cfg", "exec far.cfg\n");
    EXPECT_EQ(game.Report(),
              "C:\\QUAKE\\id1\\autoexec.cfg:1: The script has 9086 bytes: Quake drops those of more than 8192 as a "
              "whole.\n"
              "C:\\QUAKE\\id1\\autoexec.cfg:1: A quote is not closed: all to the end of the line belongs to it.\n"
              "C:\\QUAKE\\id1\\autoexec.cfg:3: The script missing.cfg is not there.\n"
              "C:\\QUAKE\\id1\\autoexec.cfg:9006: The script missing.cfg is not there.\n"
              "C:\\QUAKE\\id1\\long.cfg:1: The script far.cfg is not there.\n");
}

TEST(CheckScriptsOf, TellsTwoScriptsOfOneNameApart) {
    CheckedDisk game;
    game.Request.Played = {
        .Of = Console::Q2Pro, .GameKind = Game::Quake2, .Directory = "C:\\QUAKE", .Modification = "CTF"};
    game.Add("BASEQ2\\autoexec.cfg", "bind NOKEY wait\n");
    game.Add("CTF\\autoexec.cfg", "\nbind NOKEY wait\n");
    EXPECT_EQ(game.Report(),
              "C:\\QUAKE\\CTF\\autoexec.cfg:2: Q2PRO has no key NOKEY.\n"
              "C:\\QUAKE\\baseq2\\autoexec.cfg:1: Q2PRO has no key NOKEY.\n");
}

TEST(CheckScriptsOf, ChecksGivenTexts) {
    CheckedDisk game;
    game.Request.Given = {{"C:\\QUAKE\\ID1\\autoexec.cfg", "exec autoexec.cfg\nbind NOKEY wait\n"}};
    EXPECT_EQ(
        game.Report(),
        "C:\\QUAKE\\id1\\autoexec.cfg:1: The script autoexec.cfg is being run already: this goes round without end.\n"
        "C:\\QUAKE\\id1\\autoexec.cfg:2: Quake has no key NOKEY.\n");
}

TEST(CheckScriptBeside, TellsOfMissingScriptsInOneThatAnotherOfItsNameHides) {
    CheckedDisk game;
    game.Add("ID1\\here.cfg", "wait\n");
    game.Add("ID1\\autoexec.cfg", "alias mine wait\n");
    EXPECT_EQ(FindingReport(CheckScriptBeside(game.Disk, game.Request, "C:\\QUAKE\\ID1\\my.cfg",
                                              "mine\nexec here.cfg\nexec gone.cfg\n")),
              "C:\\QUAKE\\ID1\\my.cfg:3: The script gone.cfg is not there.\n");
}

}  // namespace lv
