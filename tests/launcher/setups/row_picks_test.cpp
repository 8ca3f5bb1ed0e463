#include "launcher/setups/row_picks.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class RowPicks : public LauncherTest {
  protected:
    void LoadGames() {
        AddGames();
        system.Disk.AddFile("C:\\QUAKE\\ID1\\other.cfg");
        system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\e1m1.bsp");
        Save(run, kOptions, "NetServers", "Home;10.0.0.1;26000;0;;Club;club.example;26000;0;Secret");
        Load();
        ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE\\GLQUAKE.EXE"));
    }
};

TEST_F(RowPicks, AnExecutableIsFoundByItsPathInAnyCaseAndChangesTheGame) {
    LoadGames();
    EXPECT_TRUE(PickExecutable(launcher, "c:/quake2/Quake2.exe"));
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 3);
    EXPECT_EQ(run.GameKind, Game::Quake2);
    EXPECT_EQ(Stored(kOptions, "ExecutablesPos"), "3");
}

TEST_F(RowPicks, AnExecutableThatIsPickedAlreadyRunsNothingAgain) {
    LoadGames();
    const std::size_t writes = system.Settings.Log.size();
    EXPECT_TRUE(PickExecutable(launcher, "C:\\Quake\\GLQuake.exe"));
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

TEST_F(RowPicks, AnExecutableThatIsNotListedChangesNothing) {
    LoadGames();
    const std::size_t writes = system.Settings.Log.size();
    EXPECT_FALSE(PickExecutable(launcher, "C:\\DOOM\\DOOM.EXE"));
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 0);
    EXPECT_EQ(run.GameKind, Game::Quake);
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

TEST_F(RowPicks, AModificationIsFoundByWhatALaunchGets) {
    LoadGames();
    Click(Option::Game_Chk, 1);
    EXPECT_TRUE(PickModification(launcher, "-game id1"));
    EXPECT_EQ(window.Game_Cbo.ListIndex, 1);
    EXPECT_EQ(run.CurrentGameDir, "ID1");
    EXPECT_EQ(Stored(kOptions, "GamesPos"), "1");
    EXPECT_TRUE(PickModification(launcher, "-game CTF"));
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_FALSE(PickModification(launcher, "-game rogue"));
    EXPECT_EQ(window.Game_Cbo.ListIndex, 0);
}

TEST_F(RowPicks, MemoryAndDemoAreFoundByWhatALaunchGets) {
    LoadGames();
    window.Mem_Cbo.Items = {Text("8 MB") + Text(96, ' ') + "-winmem 8", Text("16 MB") + Text(95, ' ') + "-winmem 16"};
    window.Demo_Cbo.Items = {Text("One") + Text(97, ' ') + "playdemo demo1.dem",
                             Text("Two") + Text(97, ' ') + "playdemo demo2.dem"};
    window.Mem_Cbo.ListIndex = window.Demo_Cbo.ListIndex = 0;
    EXPECT_TRUE(PickMemory(launcher, "-winmem 16"));
    EXPECT_EQ(Stored(kOptions, "MemoryPos"), "1");
    EXPECT_TRUE(PickDemo(launcher, "playdemo demo2.dem"));
    EXPECT_EQ(Stored(kOptions, "DemoPos"), "1");
    EXPECT_FALSE(PickMemory(launcher, "-winmem 1"));
    EXPECT_FALSE(PickDemo(launcher, "Two"));
    EXPECT_EQ(window.Mem_Cbo.ListIndex, 1);
    EXPECT_EQ(window.Demo_Cbo.ListIndex, 1);
}

TEST_F(RowPicks, AScriptIsFoundByItsPathInAnyCaseAndRemembered) {
    LoadGames();
    EXPECT_TRUE(PickScript(launcher, "C:\\QUAKE\\ID1\\Other.CFG"));
    EXPECT_TRUE(window.Script_Cbo.Selected().ends_with("c:\\quake\\id1\\other.cfg"));
    EXPECT_EQ(Stored("DefaultScript", "c:\\quake\\ID1"), "c:\\quake\\id1\\other.cfg");
    EXPECT_FALSE(PickScript(launcher, "C:\\QUAKE\\CTF\\flag.cfg"));
    EXPECT_TRUE(window.Script_Cbo.Selected().ends_with("c:\\quake\\id1\\other.cfg"));
}

TEST_F(RowPicks, AServerIsFoundByItsWholeRecordToTheLetter) {
    LoadGames();
    EXPECT_TRUE(PickServer(launcher, "club.example;26000;0;Secret"));
    EXPECT_EQ(window.Server_Cbo.ListIndex, 1);
    EXPECT_EQ(Stored(kOptions, "ServerPos"), "1");
    EXPECT_TRUE(PickServer(launcher, "10.0.0.1;26000;0;"));
    EXPECT_EQ(window.Server_Cbo.ListIndex, 0);
    EXPECT_FALSE(PickServer(launcher, "club.example;26000;0;secret"));
    EXPECT_EQ(window.Server_Cbo.ListIndex, 0);
}

TEST_F(RowPicks, AMapIsFoundByItsName) {
    LoadGames();
    ASSERT_EQ(window.Map_Cbo.Items, (std::vector<Text>{"START", "E1M1"}));
    EXPECT_TRUE(PickMap(launcher, "e1m1"));
    EXPECT_EQ(window.Map_Cbo.ListIndex, 1);
    EXPECT_FALSE(PickMap(launcher, "E1M"));
    EXPECT_EQ(window.Map_Cbo.ListIndex, 1);
}

TEST_F(RowPicks, AVideoProfileIsFoundByItsNameAndBecomesTheCurrentOne) {
    LoadGames();
    EXPECT_TRUE(PickVideoProfile(launcher, "optimize for beauty"));
    EXPECT_EQ(run.VideoProfileSection, "Optimize for Beauty");
    EXPECT_EQ(Stored(kOptions, "VideoProfilePos"), "2");
    EXPECT_FALSE(PickVideoProfile(launcher, "Optimize"));
    EXPECT_EQ(run.VideoProfileSection, "Optimize for Beauty");
}

TEST_F(RowPicks, OfRowsThatStandForTheSameTheSelectedOneStays) {
    LoadGames();
    window.Demo_Cbo.Items = {Text("One") + Text(97, ' ') + "playdemo a.dem",
                             Text("Two") + Text(97, ' ') + "playdemo a.dem"};
    window.Demo_Cbo.ListIndex = 1;
    EXPECT_TRUE(PickDemo(launcher, "playdemo a.dem"));
    EXPECT_EQ(window.Demo_Cbo.ListIndex, 1);
}

TEST_F(RowPicks, OfRowsThatDifferInCaseTheOneAsSpelledIsMeant) {
    LoadGames();
    window.Map_Cbo.Items = {"DM1", "dm1", "Dm2"};
    window.Map_Cbo.ListIndex = 0;
    EXPECT_TRUE(PickMap(launcher, "dm1"));
    EXPECT_EQ(window.Map_Cbo.ListIndex, 1);
    EXPECT_TRUE(PickMap(launcher, "dm2"));
    EXPECT_EQ(window.Map_Cbo.ListIndex, 2);
}

}  // namespace
}  // namespace lv
