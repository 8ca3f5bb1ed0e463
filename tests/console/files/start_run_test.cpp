#include "console/files/start_run.h"

#include <gtest/gtest.h>

#include "tests/console/files/listed_run.h"

namespace lv {
namespace {

constexpr TextView kRc = "exec default.cfg\nexec config.cfg\nexec autoexec.cfg\nstuffcmds\n";

/// As the game is sold, with a configuration of the player's.
struct QuakeDisk : GameDisk {
    QuakeDisk() {
        AddPak("id1\\pak0.pak", {{"quake.rc", Text(kRc)}, {"default.cfg", "unbindall\nbind F1 help\nfov 90\n"}});
        Add("id1\\config.cfg", "bind a +attack\nfov \"100\"\n");
    }
};

/// Quake II, in the directory of the other.
struct Quake2Disk : GameDisk {
    Quake2Disk() {
        Request.Played.Of = Console::Quake2;
        Request.Played.GameKind = Game::Quake2;
        AddPak("baseq2\\pak0.pak", {{"default.cfg", "bind a x\n"}});
    }
};

}  // namespace

TEST(RunStart, FollowsTheGamesRc) {
    QuakeDisk game;
    game.Request.Commands = {"exec lv_666.qs"};
    game.Add("id1\\lv_666.qs", "exec my.cfg\n");
    game.Add("id1\\my.cfg", "bind a impulse\nfov 110\n");
    EXPECT_EQ(Scripts(game.Run()),
              "quake.rc id1\\pak0.pak/quake.rc\n"
              " default.cfg id1\\pak0.pak/default.cfg\n"
              " config.cfg id1\\config.cfg\n"
              " autoexec.cfg (missing)\n"
              " the command line\n"
              "  lv_666.qs id1\\lv_666.qs\n"
              "   my.cfg id1\\my.cfg\n");
    EXPECT_EQ(Binds(game.Run(), "a"), "config.cfg:1 +attack, my.cfg:1 impulse");
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, config.cfg:2 100, my.cfg:2 110");
    EXPECT_EQ(Binds(game.Run(), "F1"), "default.cfg:2 help");
}

TEST(RunStart, TakesTheGamesOwnRcForGrantedWhereNoneIsFound) {
    GameDisk game;
    game.Add("id1\\autoexec.cfg", "fov 1\n");
    game.Request.Commands = {"fov 2"};
    const StartRun run = game.Run();
    EXPECT_EQ(Scripts(run),
              "quake.rc (stood in)\n default.cfg (missing)\n config.cfg (missing)\n autoexec.cfg id1\\autoexec.cfg\n"
              " the command line\n");
    EXPECT_EQ(Settings(run, "fov"), "autoexec.cfg:1 1, the command line:1 2");
    EXPECT_TRUE(run.RanCommandLine);
}

TEST(RunStart, TellsThatNobodyRanTheCommandLine) {
    GameDisk game;
    game.AddPak("id1\\pak0.pak", {{"quake.rc", "exec default.cfg\n"}});
    EXPECT_TRUE(game.Run().RanCommandLine) << "there is none";
    game.Request.Commands = {"fov 2"};
    EXPECT_FALSE(game.Run().RanCommandLine);
}

TEST(RunStart, RunsTextsInThePlaceOfFiles) {
    QuakeDisk game;
    game.Add("id1\\my.cfg", "fov 1\n");
    game.Request.Commands = {"exec my.cfg", "exec new.cfg"};
    game.Request.Given = {{"c:\\quake\\id1\\MY.CFG", "fov 2\n"}, {"C:\\QUAKE\\id1\\new.cfg", "fov 3\n"}};
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, config.cfg:2 100, my.cfg:1 2, new.cfg:1 3");
}

TEST(RunStart, RunsWhatAliasesExecute) {
    QuakeDisk game;
    game.Add("id1\\autoexec.cfg", "alias more \"exec more.cfg; bind b 2\"\nalias outer more\nouter\nbind b 3\n");
    game.Add("id1\\more.cfg", "bind b 1\n");
    EXPECT_EQ(Binds(game.Run(), "b"), "more.cfg:1 1, autoexec.cfg:3 2 by outer, autoexec.cfg:4 3");
}

TEST(RunStart, FreesKeysAndAliases) {
    QuakeDisk game;
    game.Request.Played.Of = Console::QuakeSpasm;
    game.Add("id1\\autoexec.cfg", "alias x y\nunbindall\nunaliasall\nbind F1 \"\"\n");
    EXPECT_EQ(Binds(game.Run(), "a"), "config.cfg:1 +attack, autoexec.cfg:2 -");
    EXPECT_EQ(Binds(game.Run(), "F1"), "default.cfg:2 help, autoexec.cfg:2 -, autoexec.cfg:4 -");
    EXPECT_EQ(Aliases(game.Run(), "x"), "autoexec.cfg:1 y, autoexec.cfg:3 -");
}

TEST(RunStart, NamesTheSpellingThatACallRunsAtLast) {
    QuakeDisk game;
    game.Add("id1\\autoexec.cfg", "alias go \"fov 1\"\nalias GO \"fov 2\"\nalias go \"fov 3\"\nGo\n");
    EXPECT_EQ(Aliases(game.Run(), "go"),
              "autoexec.cfg:1 fov 1, autoexec.cfg:2 fov 2, autoexec.cfg:3 fov 3, autoexec.cfg:2 fov 2");
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, config.cfg:2 100, autoexec.cfg:4 2 by GO");
    game.Request.Played.Of = Console::EzQuake;
    EXPECT_EQ(Aliases(game.Run(), "go"), "autoexec.cfg:1 fov 1, autoexec.cfg:2 fov 2, autoexec.cfg:3 fov 3");
}

TEST(RunStart, GoesOnWithTheNextCommandWhereAScriptDoesNotEnd) {
    QuakeDisk game;
    game.Add("id1\\config.cfg", "bind a +attack\nfov \"100\" // that is all");
    game.Add("id1\\autoexec.cfg", "fov 120\n");
    EXPECT_EQ(Scripts(game.Run()),
              "quake.rc id1\\pak0.pak/quake.rc\n default.cfg id1\\pak0.pak/default.cfg\n"
              " config.cfg id1\\config.cfg\n")
        << "the comment has taken the rest of the rc's line";
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, config.cfg:2 100");
    game.Request.Played.Of = Console::QuakeWorld;
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, config.cfg:2 100, autoexec.cfg:1 120");
}

TEST(RunStart, JoinsAnOpenEndWithWhatFollowsTheExec) {
    QuakeDisk game;
    game.Add("id1\\autoexec.cfg", "exec open.cfg; fov 3\nexec open.cfg\nfov 4\n");
    game.Add("id1\\open.cfg", "fov 1; exec inner.cfg; alias x ");
    game.Add("id1\\inner.cfg", "skin a; ");
    const StartRun run = game.Run();
    EXPECT_EQ(Aliases(run, "x"), "open.cfg:1 fov 3, open.cfg:1 fov 4");
    EXPECT_EQ(Settings(run, "fov"), "default.cfg:3 90, config.cfg:2 100, open.cfg:1 1, open.cfg:1 1");
}

TEST(RunStart, MarksLoopsAndRunsThemOnce) {
    QuakeDisk game;
    game.Add("id1\\autoexec.cfg", "exec a.cfg\nexec a.cfg\n");
    game.Add("id1\\a.cfg", "fov 1\nexec b.cfg\n");
    game.Add("id1\\b.cfg", "exec A.CFG\nexec b.cfg\n");
    EXPECT_EQ(Scripts(game.Run()),
              "quake.rc id1\\pak0.pak/quake.rc\n default.cfg id1\\pak0.pak/default.cfg\n"
              " config.cfg id1\\config.cfg\n autoexec.cfg id1\\autoexec.cfg\n"
              "  a.cfg id1\\a.cfg\n   b.cfg id1\\b.cfg\n    A.CFG id1\\A.CFG (loop)\n    b.cfg id1\\b.cfg (loop)\n"
              "  a.cfg id1\\a.cfg\n   b.cfg id1\\b.cfg\n    A.CFG id1\\A.CFG (loop)\n    b.cfg id1\\b.cfg (loop)\n");
}

TEST(RunStart, EndsWhateverScriptsDo) {
    QuakeDisk game;
    Text twice;
    for (int i = 0; i < 70; ++i) {
        const Text next = Join("s", std::to_string(i + 1), ".cfg");
        game.Add(Join("id1\\s", std::to_string(i), ".cfg"), Join("exec ", next, "\nexec ", next, "\n"));
    }
    game.Add("id1\\autoexec.cfg", "exec s0.cfg\n");
    const StartRun run = game.Run();
    EXPECT_TRUE(run.IsCutOff);
    EXPECT_EQ(run.Scripts.size(), 1000U);
    game.Add("id1\\autoexec.cfg", "alias x \"x; x\"\nx\nfov 1\n");
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, config.cfg:2 100, autoexec.cfg:3 1");
}

TEST(RunStart, DropsAScriptBeyondTheConsolesBuffer) {
    QuakeDisk game;
    game.Add("id1\\autoexec.cfg", Join("fov 1\n", Text(8187, '\n')));
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, config.cfg:2 100");
    EXPECT_EQ(game.Run().Scripts.back().Fate, ScriptFate::TooLong);
    game.Add("id1\\autoexec.cfg", Join("fov 1\n", Text(8186, '\n')));
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, config.cfg:2 100, autoexec.cfg:1 1");
}

TEST(RunStart, RefusesWhatExecRefuses) {
    QuakeDisk game;
    game.Add("id1\\autoexec.cfg", "exec a.cfg b.cfg\nexec ..\\..\\a.cfg\nexec \"C:\\a.cfg\"\nexec C:\\a.cfg\nexec\n");
    game.Disk.AddFile("C:\\a.cfg", "fov 1\n");
    const Text scripts = Scripts(game.Run());
    EXPECT_EQ(scripts.substr(scripts.find("  ")),
              "  a.cfg (refused)\n  ..\\..\\a.cfg (missing)\n  C:\\a.cfg (missing)\n  C (refused)\n");
}

TEST(RunStart, RunsAnotherConfigurationWhereTheEngineDoes) {
    QuakeDisk game;
    game.Request.Played.Of = Console::Ironwail;
    game.Add("id1\\ironwail.cfg", "fov 1\n");
    game.Add("id1\\vkQuake.cfg", "fov 2\n");
    game.Add("id1\\autoexec.cfg", "exec config.cfg pls\n");
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, config.cfg:2 100, config.cfg:2 100");
    game.Request.Played.Engine = "Ironwail";
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, ironwail.cfg:1 1, config.cfg:2 100");
    game.Request.Played.Engine = "vkQuake";
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:3 90, config.cfg:2 100, vkQuake.cfg:1 2, config.cfg:2 100");
}

TEST(RunStart, TakesDarkPlacesOwnOrderWithoutAnRc) {
    GameDisk game;
    game.Request.Played.Of = Console::DarkPlaces;
    game.Add("id1\\config.cfg", "fov 1\n");
    EXPECT_EQ(Scripts(game.Run()),
              "quake.rc (missing)\ndefault.cfg (missing)\nconfig.cfg id1\\config.cfg\nautoexec.cfg (missing)\n");
}

TEST(RunStart, TakesTheNearestRcOrNone) {
    GameDisk game;
    game.Request.Played.Of = Console::Fte;
    game.Request.Played.Modification = "CTF";
    game.Add("id1\\quake.rc", "fov 1\n");
    game.Add("CTF\\autoexec.cfg", "fov 2\n");
    EXPECT_EQ(Settings(game.Run(), "fov"), "quake.rc:1 1");
    game.Add("CTF\\default.cfg", "fov 3\n");
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:1 3, autoexec.cfg:1 2");
}

TEST(RunStart, RunsSetsEarlyAndOnceMoreInQuake2) {
    Quake2Disk game;
    game.Add("baseq2\\config.cfg", "set fov 100\n");
    game.Add("baseq2\\autoexec.cfg", "set fov 120\n");
    game.Request.Commands = {"set fov 90", "bind a y", "set game ctf"};
    const StartRun run = game.Run();
    EXPECT_EQ(Scripts(run),
              "the command line\ndefault.cfg baseq2\\pak0.pak/default.cfg\nconfig.cfg baseq2\\config.cfg\n"
              "the command line\nautoexec.cfg baseq2\\autoexec.cfg\nthe command line\n");
    EXPECT_EQ(Settings(run, "fov"),
              "the command line:1 90, config.cfg:1 100, the command line:1 90, autoexec.cfg:1 120");
    EXPECT_EQ(Binds(run, "a"), "default.cfg:1 x, the command line:1 y");
}

TEST(RunStart, RunsQuake2sAutoexecOfTheDirectoryThatIsPlayedAlone) {
    Quake2Disk game;
    game.Add("baseq2\\autoexec.cfg", "set fov 1\n");
    game.Request.Played.Modification = "CTF";
    game.Disk.AddDirectory("C:\\QUAKE\\CTF");
    EXPECT_EQ(Settings(game.Run(), "fov"), "");
    game.Add("CTF\\autoexec.cfg", "set fov 2\n");
    EXPECT_EQ(Settings(game.Run(), "fov"), "autoexec.cfg:1 2");
    game.AddPak("CTF\\pak0.pak", {{"autoexec.cfg", "set fov 3\n"}});
    EXPECT_EQ(Settings(game.Run(), "fov"), "autoexec.cfg:1 3") << "there is a file, but the archive counts ahead";
    EXPECT_EQ(game.Run().Scripts.back().Inner, "autoexec.cfg");
}

TEST(RunStart, JoinsTheEndOfQuake2sDefaultsWithTheNextExec) {
    Quake2Disk game;
    game.AddPak("baseq2\\pak0.pak", {{"default.cfg", "set fov 1\nbind a x"}});
    game.Add("baseq2\\config.cfg", "set fov 100\n");
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:1 1");
    EXPECT_EQ(Binds(game.Run(), "a"), "default.cfg:2 xexec config.cfg");
}

TEST(RunStart, RunsTheBasesAndTheModificationsAutoexecInQ2Pro) {
    Quake2Disk game;
    game.Request.Played.Of = Console::Q2Pro;
    game.Request.Played.Modification = "CTF";
    game.Add("baseq2\\autoexec.cfg", "set fov 1\n");
    game.Add("CTF\\autoexec.cfg", "set fov 2\n");
    game.Add("baseq2\\postexec.cfg", "set fov 3\n");
    game.Add("CTF\\postinit.cfg", "set fov 5\n");
    game.Request.Commands = {"fov 4"};
    EXPECT_EQ(Settings(game.Run(), "fov"),
              "autoexec.cfg:1 1, autoexec.cfg:1 2, postexec.cfg:1 3, the command line:1 4, postinit.cfg:1 5");
}

TEST(RunStart, RunsEzQuakesConfigurationAndNotTheGamesDefaults) {
    QuakeDisk game;
    game.Request.Played.Of = Console::EzQuake;
    game.Add("EZQUAKE\\configs\\config.cfg", "fov 1\n");
    game.Add("EZQUAKE\\configs\\other.cfg", "fov 2\n");
    game.Add("id1\\autoexec.cfg", "cfg_load other\nexec more\n");
    game.Add("QW\\more.cfg", "fov 3\n");
    EXPECT_EQ(Settings(game.Run(), "fov"), "configs/config.cfg:1 1, configs/other:1 2, more:1 3");
    game.Add("QW\\default.cfg", "fov 0\n");
    EXPECT_EQ(Settings(game.Run(), "fov"), "default.cfg:1 0, configs/config.cfg:1 1, configs/other:1 2, more:1 3");
}

TEST(RunStart, RunsHalfLifesConfigurationOnceAndThoseOfTheUsers) {
    GameDisk game;
    game.Request.Played = {.Of = Console::HalfLife, .GameKind = Game::HalfLife, .Directory = "C:\\QUAKE"};
    game.Add("valve\\valve.rc", "exec autoexec.cfg\nstuffcmds\n");
    game.Add("valve\\config.cfg", "fov 1\nexec userconfig.cfg\n");
    game.Add("valve\\userconfig.d\\b.cfg", "fov 3\n");
    game.Add("valve\\userconfig.d\\A.cfg", "fov 2\n");
    game.Request.Commands = {"fov 0"};
    EXPECT_EQ(Scripts(game.Run()),
              "valve.rc valve\\valve.rc\n autoexec.cfg (missing)\n the command line\nconfig.cfg valve\\config.cfg\n"
              " userconfig.cfg (missing)\nuserconfig.d/a.cfg valve\\userconfig.d\\a.cfg\n"
              "userconfig.d/b.cfg valve\\userconfig.d\\b.cfg\n");
    EXPECT_EQ(Settings(game.Run(), "fov"),
              "the command line:1 0, config.cfg:1 1, userconfig.d/a.cfg:1 2, userconfig.d/b.cfg:1 3");
    game.Add("valve\\valve.rc", "exec config.cfg\n");
    EXPECT_EQ(Settings(game.Run(), "fov"),
              "config.cfg:1 1, userconfig.d/a.cfg:1 2, userconfig.d/b.cfg:1 3, the command line:1 0");
}

TEST(RunStart, ReadsUnrealsInis) {
    GameDisk game;
    game.Request.Played = {.Of = Console::Unreal, .GameKind = Game::Unreal, .Directory = "C:\\QUAKE\\SYSTEM"};
    game.Add("SYSTEM\\Unreal.ini", "[URL]\nName=a\n[Engine.Input]\nF1=one\n");
    game.Add("SYSTEM\\User.ini", "[Engine.Input]\nF1=two\n");
    EXPECT_EQ(Binds(game.Run(), "F1"), "Unreal.ini:4 one, User.ini:2 two");
    game.Request.Commands = {"INI=my.ini"};
    game.Add("SYSTEM\\my.ini", "[Engine.Input]\nF1=three\n");
    EXPECT_EQ(Binds(game.Run(), "F1"), "my.ini:2 three, User.ini:2 two");
}

TEST(RunStart, LeavesPatternsAlone) {
    GameDisk game;
    game.Request.Played.Of = Console::DarkPlaces;
    game.Add("id1\\autoexec.cfg", "exec *.cfg\n");
    EXPECT_EQ(game.Run().Scripts.back().Fate, ScriptFate::IsPattern);
}

TEST(RunStart, NamesTheArchivesThatItCouldNotRead) {
    QuakeDisk game;
    game.Add("id1\\pak1.pak", "PACK, more or less");
    const StartRun run = game.Run();
    EXPECT_EQ(run.UnreadArchives, std::vector<Text>{"C:\\QUAKE\\id1\\pak1.pak"});
    EXPECT_EQ(run.Scripts.at(0).Path, "C:\\QUAKE\\id1\\pak0.pak");
}

}  // namespace lv
