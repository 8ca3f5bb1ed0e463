#include "launcher/window/lv_events.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using LvEvents = LauncherTest;

void Select(ListBox& list, TextView title) {
    for (std::size_t i = 0; i < list.Items.size(); ++i) {
        if (TextView(list.Items[i]).starts_with(title)) {
            list.ListIndex = static_cast<int>(i);
            return;
        }
    }
    FAIL() << "no row " << title;
}

TEST_F(LvEvents, AClickWritesItsKeyAtOnce) {
    Click(Option::NOLAN_Chk, 1);
    EXPECT_EQ(Stored(kOptions, "NoLAN"), "1");
    Click(Option::NOLAN_Chk, 0);
    EXPECT_EQ(Stored(kOptions, "NoLAN"), "0");
}

TEST_F(LvEvents, QspyIsFoundUnderItsOtherSpelling) {
    Click(Option::QSpy_Chk, 1);
    EXPECT_EQ(system.Settings.Log.back(), "Options|Qspy|1");
    EXPECT_EQ(Stored(kOptions, "QSpy"), "1");
}

TEST_F(LvEvents, ABoxWithoutAKeyWritesNothing) {
    const std::size_t before = system.Settings.Log.size();
    Click(Option::nosound_chk, 1);
    EXPECT_EQ(system.Settings.Log.size(), before);
}

TEST_F(LvEvents, SettingAServerRoleClearsTheOthersAndTheirKeys) {
    Click(Option::Dedicated_Chk, 1);
    Click(Option::Server_Chk, 1);
    EXPECT_EQ(window.Box(Option::Dedicated_Chk).Value, 0);
    EXPECT_EQ(Stored(kOptions, "Dedicated"), "0");
    EXPECT_EQ(Stored(kOptions, "UseServers"), "1");
}

TEST_F(LvEvents, ClearingABoxLeavesTheOthersAlone) {
    window.Box(Option::Listen_Chk).Value = 1;
    Click(Option::Server_Chk, 0);
    EXPECT_EQ(window.Box(Option::Listen_Chk).Value, 1);
}

TEST_F(LvEvents, MapWithoutASelectedMapClearsItselfAndLeavesTheOthersAlone) {
    window.Box(Option::Server_Chk).Value = 1;
    Click(Option::Map_Chk, 1);
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 0);
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 1);
}

TEST_F(LvEvents, MapWithASelectedMapClearsTheServer) {
    window.Map_Cbo.Items = {"START"};
    window.Map_Cbo.ListIndex = 0;
    window.Box(Option::Server_Chk).Value = 1;
    Click(Option::Map_Chk, 1);
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 0);
}

TEST_F(LvEvents, GameSpyDisablesTheViewOfTheLaunchFilesAndTheirCreationAlone) {
    window.Box(Option::Server_Chk).Value = 1;
    Click(Option::LaunchQspy_Chk, 1);
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 0);
    EXPECT_EQ(Stored(kOptions, "LaunchQSpy"), "1");
    EXPECT_TRUE(window.DoIt_Cmd[0].Enabled);
    EXPECT_FALSE(window.DoIt_Cmd[1].Enabled);
    EXPECT_FALSE(window.DoIt_Cmd[2].Enabled);
}

TEST_F(LvEvents, WithoutGameSpyTheLaunchFilesCanBeViewedAgain) {
    Click(Option::LaunchQspy_Chk, 1);
    Click(Option::LaunchQspy_Chk, 0);
    EXPECT_EQ(Stored(kOptions, "LaunchQSpy"), "0");
    EXPECT_TRUE(window.DoIt_Cmd[1].Enabled);
    EXPECT_TRUE(window.DoIt_Cmd[2].Enabled);
}

TEST_F(LvEvents, AServerClearsGameSpyAndBringsTheButtonsBack) {
    Click(Option::LaunchQspy_Chk, 1);
    Click(Option::Server_Chk, 1);
    EXPECT_EQ(window.Box(Option::LaunchQspy_Chk).Value, 0);
    EXPECT_TRUE(window.DoIt_Cmd[1].Enabled);
    EXPECT_TRUE(window.DoIt_Cmd[2].Enabled);
}

TEST_F(LvEvents, AModificationWithoutASelectedRowSaysSoAndClearsItself) {
    user.Expect({"Lorvane 3D", "No Modification Subdirectory is selected.", 0, false, true, "&OK"});
    Click(Option::Game_Chk, 1);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 0);
}

TEST_F(LvEvents, AModificationBringsItsDirectoryScriptsAndMaps) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_EQ(run.CurrentGameDir, "ID1");
    Select(window.Game_Cbo, "Capture the Flag");
    Click(Option::Game_Chk, 1);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_EQ(window.PlayerScript_Pan.Caption, "Player Script - (Capture the Flag)");
    EXPECT_TRUE(window.Script_Cbo.Selected().ends_with("c:\\quake\\ctf\\flag.cfg"));
    EXPECT_EQ(window.Map_Cbo.Items, (std::vector<Text>{"CTF1", "START"}));
    EXPECT_EQ(Stored(kOptions, "UseGames"), "1");
}

TEST_F(LvEvents, WithoutTheModificationTheBaseDirectoryIsBack) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    Select(window.Game_Cbo, "Capture the Flag");
    Click(Option::Game_Chk, 1);
    Click(Option::Game_Chk, 0);
    EXPECT_EQ(run.CurrentGameDir, "ID1");
    EXPECT_EQ(window.PlayerScript_Pan.Caption, "Player Script");
    EXPECT_TRUE(window.Script_Cbo.Selected().ends_with("c:\\quake\\id1\\my.cfg"));
    EXPECT_EQ(window.Map_Cbo.Items, (std::vector<Text>{"START"}));
    EXPECT_EQ(Stored(kOptions, "UseGames"), "0");
}

TEST_F(LvEvents, PickingAModificationFollowsOnlyATickedBox) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    Select(window.Game_Cbo, "Capture the Flag");
    Game_Cbo_Click(launcher);
    EXPECT_EQ(run.CurrentGameDir, "ID1");
    EXPECT_EQ(Stored(kOptions, "GamesPos"), std::to_string(window.Game_Cbo.ListIndex));
    Click(Option::Game_Chk, 1);
    Select(window.Game_Cbo, "Base");
    Game_Cbo_Click(launcher);
    EXPECT_EQ(run.CurrentGameDir, "ID1");
    EXPECT_EQ(window.Map_Cbo.Items.front(), "START");
}

TEST_F(LvEvents, TheCheckOfTheOldModificationIsDroppedWhenTheKindChanges) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Game_Chk, 1);
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 0);
    EXPECT_EQ(run.CurrentGameDir, "BASEQ2");
}

TEST_F(LvEvents, AModificationThatAChangeOfKindDroppedStaysDropped) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Game_Chk, 1);
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 0);
    EXPECT_EQ(run.CurrentGameDir, "BASEQ2");
    EXPECT_EQ(Stored(kOptions, "UseGames"), "0");
}

TEST_F(LvEvents, AQuakeWorldPlayerTicksAModification) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\QWCL.EXE");
    Select(window.Game_Cbo, "Capture the Flag");
    Game_Cbo_Click(launcher);
    Click(Option::Game_Chk, 1);
    EXPECT_TRUE(window.Box(Option::Game_Chk).Enabled);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
}

TEST_F(LvEvents, TheCheckOfTheModificationStaysWhenTheKindIsTheSame) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    Select(window.Game_Cbo, "Capture the Flag");
    Game_Cbo_Click(launcher);
    Click(Option::Game_Chk, 1);
    PickExe("C:\\QUAKE\\QUAKE.EXE");
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
}

TEST_F(LvEvents, ASecondPickOfTheSameRowRunsEverythingAgain) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\later.bsp");
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_EQ(window.Map_Cbo.Items, (std::vector<Text>{"START", "LATER"}));
}

TEST_F(LvEvents, PickingAGameSavesItsPosition) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_EQ(Stored(kOptions, "ExecutablesPos"), "3");
    EXPECT_EQ(run.GameKind, Game::Quake2);
}

TEST_F(LvEvents, AChangeOfGameLoadsTheProfileIntoAClosedWindow) {
    AddGames();
    Load();
    run.VideoProfileSection = "Fresh";
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_FALSE(launcher.VideoProfile.VideoProfileWindowOpen);
    EXPECT_EQ(Stored("Fresh", "Q2_ResolutionsPos_Content"), "640x480");
    EXPECT_EQ(launcher.VideoProfile.Caption, "Video Profile - 'Fresh'");
}

TEST_F(LvEvents, AProfileThatIsBrokenEndsTheChangeOfGame) {
    AddGames();
    Load();
    Save(run, kOptions, "Bits", "short");
    user.Expect({"Lorvane 3D", " experienced a probable registry error."});
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_TRUE(run.Ended);
}

TEST_F(LvEvents, GameSpyIsOutOfReachForHalfLifeAndHeretic2) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_TRUE(window.Box(Option::LaunchQspy_Chk).Enabled);
    PickExe("C:\\HL\\HL.EXE");
    EXPECT_FALSE(window.Box(Option::LaunchQspy_Chk).Enabled);
}

TEST_F(LvEvents, EachModificationRemembersItsOwnScript) {
    AddGames();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\other.cfg");
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    Select(window.Script_Cbo, "other.cfg");
    Script_Cbo_Click(launcher);
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_TRUE(window.Script_Cbo.Selected().ends_with("c:\\quake\\id1\\other.cfg"));
}

TEST_F(LvEvents, PickingInTheListsSavesTheirPositions) {
    window.Mem_Cbo.ListIndex = 3;
    Mem_Cbo_Click(launcher);
    window.Demo_Cbo.ListIndex = 4;
    Demo_Cbo_Click(launcher);
    window.Server_Cbo.ListIndex = 5;
    Server_Cbo_Click(launcher);
    EXPECT_EQ(Stored(kOptions, "MemoryPos"), "3");
    EXPECT_EQ(Stored(kOptions, "DemoPos"), "4");
    EXPECT_EQ(Stored(kOptions, "ServerPos"), "5");
}

TEST_F(LvEvents, TheCommandLineAdditionsAreSavedAtEachChange) {
    window.CommandLineAdditions_Txt.Text = "+developer 1";
    CommandLineAdditions_Txt_Change(launcher);
    EXPECT_EQ(Stored(kOptions, "CustomCommandLineText"), "+developer 1");
}

TEST_F(LvEvents, ListenWarnsOnceAboutHalfLifesConsole) {
    run.GameKind = Game::HalfLife;
    user.Expect({"Half-Life Console Warning", "Click the button to launch the listen server.", 0, true});
    Click(Option::Listen_Chk, 1);
    EXPECT_EQ(Stored("ShowMessage", "HL_Listen_Server"), "0");
    Click(Option::Listen_Chk, 0);
    Click(Option::Listen_Chk, 1);
}

TEST_F(LvEvents, TheBenchmarkOfHalfLifeNeedsADemo) {
    run.GameKind = Game::HalfLife;
    run.DefaultGameDirectory = "C:\\HL";
    system.Disk.AddDirectory("C:\\HL\\valve");
    system.Disk.AddFile("C:\\LORVANE\\hl1.dem", "a demo");
    user.Expect({"Half-Life TimeDemo Warning", "Half-Life does not ship a demo file to run a timedemo.", 0, true});
    user.Expect({"Half-Life TimeDemo Warning", "Click the button to run the timedemo.", 0, true});
    Click(Option::Bench_Chk, 1);
    EXPECT_EQ(system.Disk.Bytes("C:\\HL\\valve\\1.dem"), "a demo");
    EXPECT_EQ(Stored("ShowMessage", "HL_TimeDemo_2"), "0");
    EXPECT_EQ(Stored("ShowMessage", "HL_TimeDemo"), "0");
}

TEST_F(LvEvents, NoWarningComesForOtherGames) {
    run.GameKind = Game::Quake;
    Click(Option::Listen_Chk, 1);
    Click(Option::Bench_Chk, 1);
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(LvEvents, AModificationTakesTheTickFromGameSpy) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    Select(window.Game_Cbo, "Capture the Flag");
    Click(Option::LaunchQspy_Chk, 1);
    Click(Option::Game_Chk, 1);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::LaunchQspy_Chk).Value, 0);
    EXPECT_EQ(Stored(kOptions, "LaunchQSpy"), "0");
    EXPECT_TRUE(window.DoIt_Cmd[1].Enabled);
}

TEST_F(LvEvents, GameSpyTakesTheTickFromAModificationWithAllThatHangsOnIt) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    Select(window.Game_Cbo, "Capture the Flag");
    Click(Option::Game_Chk, 1);
    Click(Option::LaunchQspy_Chk, 1);
    EXPECT_EQ(window.Box(Option::LaunchQspy_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 0);
    EXPECT_EQ(Stored(kOptions, "UseGames"), "0");
    EXPECT_EQ(run.CurrentGameDir, "ID1");
    EXPECT_EQ(window.PlayerScript_Pan.Caption, "Player Script");
}

TEST_F(LvEvents, AModificationWithoutASelectedRowWritesNothing) {
    user.Expect({"Lorvane 3D", "No Modification Subdirectory is selected.", 0});
    const std::size_t before = system.Settings.Log.size();
    Click(Option::Game_Chk, 1);
    EXPECT_EQ(system.Settings.Log.size(), before);
}

TEST_F(LvEvents, GameSpyIsOutOfReachForHeretic2) {
    AddGames();
    system.Disk.AddFile("C:\\HERETIC2\\HERETIC2.EXE");
    system.Disk.AddFile("C:\\HERETIC2\\BASE\\my.cfg");
    Save(run, kOptions, "Executables", "Quake;C:\\QUAKE\\GLQUAKE.EXE;Heretic;C:\\HERETIC2\\HERETIC2.EXE");
    Load();
    PickExe("C:\\HERETIC2\\HERETIC2.EXE");
    EXPECT_EQ(run.GameKind, Game::Heretic2);
    EXPECT_FALSE(window.Box(Option::LaunchQspy_Chk).Enabled);
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_TRUE(window.Box(Option::LaunchQspy_Chk).Enabled);
}

TEST_F(LvEvents, TheBenchmarkOfHalfLifeLeavesADemoThatIsThere) {
    run.GameKind = Game::HalfLife;
    run.DefaultGameDirectory = "C:\\HL";
    system.Disk.AddFile("C:\\HL\\valve\\1.dem", "the player's own");
    system.Disk.AddFile("C:\\LORVANE\\hl1.dem", "a demo");
    user.Expect({"Half-Life TimeDemo Warning", "Click the button to run the timedemo.", 0});
    Click(Option::Bench_Chk, 1);
    EXPECT_EQ(system.Disk.Bytes("C:\\HL\\valve\\1.dem"), "the player's own");
}

TEST_F(LvEvents, TheBenchmarkOfHalfLifeGetsItsDemoWithTheWarningsOffToo) {
    run.GameKind = Game::HalfLife;
    run.DefaultGameDirectory = "C:\\HL";
    system.Disk.AddDirectory("C:\\HL\\valve");
    system.Disk.AddFile("C:\\LORVANE\\hl1.dem", "a demo");
    Save(run, "ShowMessage", "HL_TimeDemo_2", "0");
    Save(run, "ShowMessage", "HL_TimeDemo", "0");
    Click(Option::Bench_Chk, 1);
    EXPECT_TRUE(user.Asked.empty());
    EXPECT_EQ(system.Disk.Bytes("C:\\HL\\valve\\1.dem"), "a demo");
}

TEST_F(LvEvents, PickingAModificationRefillsTheScriptsWithTheBoxClearToo) {
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    const std::size_t before = window.Script_Cbo.Items.size();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\later.cfg");
    Game_Cbo_Click(launcher);
    EXPECT_EQ(window.Script_Cbo.Items.size(), before + 1);
}

TEST_F(LvEvents, TheMissionPacksExecutableBringsItsModificationAndTheOthersDropIt) {
    AddGames();
    system.Disk.AddFile("C:\\HEXEN2\\GLH2.EXE");
    system.Disk.AddFile("C:\\HEXEN2\\GLH2MP.EXE");
    system.Disk.AddDirectory("C:\\HEXEN2\\DATA1");
    system.Disk.AddFile("C:\\HEXEN2\\portals\\pak3.pak");
    Save(run, kOptions, "Executables",
         "Quake;C:\\QUAKE\\GLQUAKE.EXE;Hexen 2;C:\\HEXEN2\\GLH2.EXE;Portals;C:\\HEXEN2\\GLH2MP.EXE");
    Save(run, kOptions, "Games", "Portals of Praevus;-game portals");
    Load();
    PickExe("C:\\HEXEN2\\GLH2MP.EXE");
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_EQ(run.CurrentGameDir, "portals");
    Save(run, kOptions, "UseGames", 1);
    PickExe("C:\\HEXEN2\\GLH2.EXE");
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 0);
    EXPECT_EQ(run.CurrentGameDir, "DATA1");
}

}  // namespace
}  // namespace lv
