#include "launcher/start/main_window_load.h"

#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

class MainWindowLoad : public LauncherTest {};

}  // namespace

TEST_F(MainWindowLoad, SetsMainFormLoadedAtItsEnd) {
    AddGames();
    bool loaded = true;
    launcher.Measure = [&] {
        loaded = run.MainFormLoaded;
        return WindowMeasures();
    };
    Load();
    EXPECT_FALSE(loaded);
    EXPECT_TRUE(run.MainFormLoaded);
}

TEST_F(MainWindowLoad, DoesNotShowTheWindow) {
    AddGames();
    Load();
    EXPECT_FALSE(window.Visible);
}

TEST_F(MainWindowLoad, TellsTheSplash) {
    AddGames();
    Load();
    EXPECT_EQ(launcher.Splash.InformUser_Lbl.Caption, " Getting Options");
}

TEST_F(MainWindowLoad, TakesItsPlaceFromTheStore) {
    AddGames();
    Save(run, "LV_Frm", "Top", 150);
    Save(run, "LV_Frm", "Left", 300);
    Load();
    EXPECT_EQ(window.Placement.Top, 150);
    EXPECT_EQ(window.Placement.Left, 300);
}

TEST_F(MainWindowLoad, CentresTheMeasuredWindow) {
    AddGames();
    launcher.Measure = [] { return WindowMeasures{580, 100, 500, 400, 16, 0}; };
    Load();  // 520 by 600 pixels on a screen of 1000 by 1000
    EXPECT_EQ(window.Placement.Left, 240 * 15);
    EXPECT_EQ(window.Placement.Top, 200 * 15);
}

TEST_F(MainWindowLoad, BringsTheSetupsIntoTheirMenu) {
    AddGames();
    Save(run, "Setups", "Names", "4=Duel");
    Save(run, "Setups", "Setup4", "1;Executable=C:\\QUAKE\\GLQUAKE.EXE");
    Save(run, "Setups", "Picked", 4);
    Load();
    EXPECT_TRUE(window.Bar(MenuItem::Setup_Bar_0).Visible);
    EXPECT_TRUE(window.Bar(MenuItem::Setup_Bar_0).Checked);
    EXPECT_FALSE(window.Bar(MenuItem::Setup_Bar_1).Visible);
}

TEST_F(MainWindowLoad, TellsOfSetupsThatCantBeReadInFrontOfTheSplash) {
    AddGames();
    Save(run, "Setups", "Names", "4=Duel");
    launcher.Splash.Visible = launcher.Splash.Topmost = true;
    bool topmost = true;
    user.OnDialog = [&] { topmost = launcher.Splash.Topmost; };
    user.Expect({"Setups", "Some setups can't be read and are left out."});
    Load();
    EXPECT_FALSE(topmost);
    EXPECT_TRUE(launcher.Splash.Topmost);
}

TEST_F(MainWindowLoad, AddsTheTrayIcon) {
    AddGames();
    Load();
    EXPECT_TRUE(window.TrayIcon);
}

TEST_F(MainWindowLoad, GivesTheLaunchButtonItsToolTip) {
    AddGames();
    EXPECT_EQ(window.ButtonBar_Cmd[0].ToolTip, "Launch [F2]");
    Load();
    EXPECT_EQ(window.ButtonBar_Cmd[0].ToolTip, "Launch Me [F2]");
}

TEST_F(MainWindowLoad, AStoredServerTickClearsNoOther) {
    AddGames();
    Save(run, kOptions, "UseServers", 1);
    Save(run, kOptions, "UseDemos", 1);
    Load();
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Demo_Chk).Value, 1);
}

TEST_F(MainWindowLoad, AStoredModificationTickIsThereAgain) {
    AddGames();
    Save(run, kOptions, "UseGames", 1);
    Load();
    EXPECT_EQ(run.GameKind, Game::Quake);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_EQ(Stored(kOptions, "UseGames"), "1");
}

TEST_F(MainWindowLoad, AStoredGameSpyTickDisablesTheButtonsOfTheLaunchFiles) {
    AddGames();
    Save(run, kOptions, "LaunchQSpy", 1);
    Load();
    EXPECT_EQ(window.Box(Option::LaunchQspy_Chk).Value, 1);
    EXPECT_TRUE(window.DoIt_Cmd[0].Enabled);
    EXPECT_FALSE(window.DoIt_Cmd[1].Enabled);
    EXPECT_FALSE(window.DoIt_Cmd[2].Enabled);
}

TEST_F(MainWindowLoad, ACaptionOfTheLaunchButtonIsNotReadBack) {
    AddGames();
    Save(run, kOptions, "CommandCaption", "Go");
    Load();
    EXPECT_EQ(window.DoIt_Cmd[0].Caption, "&Launch Me!");
}

TEST_F(MainWindowLoad, DropsScriptsWhoseFileIsGone) {
    AddGames();
    Save(run, kOptions, "Scripts", "Mine;c:\\quake\\id1\\my.cfg;Lost;c:\\quake\\id1\\lost.cfg");
    Load();
    EXPECT_EQ(Stored(kOptions, "Scripts").find("lost.cfg"), Text::npos);
    EXPECT_NE(Stored(kOptions, "Scripts").find("my.cfg"), Text::npos);
}

TEST_F(MainWindowLoad, OfAnEmptyCatalogComesUpWithEmptyLists) {
    Load();
    EXPECT_TRUE(window.Exe_Cbo.Items.empty());
    EXPECT_TRUE(run.MainFormLoaded);
}

TEST_F(MainWindowLoad, AReloadShowsWhatIsStoredNow) {
    AddGames();
    Load();
    Save(run, kOptions, "Executables", "Only;C:/QUAKE/QUAKE.EXE");
    Save(run, kOptions, "ExecutablesPos", 7);
    Save(run, kOptions, "Listen", 1);
    Save(run, kOptions, "Demos", "Mine;playdemo mine.dem");
    EXPECT_TRUE(ReloadMainWindow(launcher));
    ASSERT_EQ(window.Exe_Cbo.Items.size(), 1u);
    EXPECT_EQ(window.Exe_Cbo.Items[0].Key, "C:\\QUAKE\\QUAKE.EXE");
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 0);
    EXPECT_EQ(window.Box(Option::Listen_Chk).Value, 1);
    EXPECT_EQ(window.Demo_Cbo.Items.size(), 1u);
}

TEST_F(MainWindowLoad, AReloadCountsNoRunAndAsksOfNoFirstOne) {
    AddGames();
    Load();
    const Text runs = Stored(kStuff, "RunCount");
    Save(run, kOptions, "Executables", "");
    EXPECT_TRUE(ReloadMainWindow(launcher));
    EXPECT_TRUE(window.Exe_Cbo.Items.empty());
    EXPECT_EQ(Stored(kStuff, "RunCount"), runs);
}

TEST_F(MainWindowLoad, AReloadMakesTheProfilesThatAreMissing) {
    AddGames();
    Load();
    Save(run, kStuff, "VP_Version", 0);
    Save(run, kOptions, "VideoProfileList", "");
    EXPECT_TRUE(ReloadMainWindow(launcher));
    EXPECT_EQ(Stored(kOptions, "VideoProfileList"), "Base;Optimize for Speed;Optimize for Beauty;Default");
    EXPECT_EQ(window.VideoProfiles_Cbo.Items.size(), 4u);
    EXPECT_EQ(Stored(kStuff, "VP_Version"), "1");
}

TEST_F(MainWindowLoad, ARowWithoutAPathIsToldAndTheStartGoesOn) {
    AddGames();
    Save(run, kOptions, "Executables", "Broken;;Quake;C:\\QUAKE\\GLQUAKE.EXE");
    user.Expect({"Game Not Found...", "was not found.", 2});
    user.Expect({"Lorvane 3D", "DefaultGameDirectory not found and was NOT SET"});
    Load();
    EXPECT_TRUE(run.MainFormLoaded);
    EXPECT_EQ(run.DefaultGameDirectory, "");
}

}  // namespace lv
