#include "gamespy/game_spy_config.h"

#include "catalogs/editors/path_window.h"
#include "tests/gamespy/game_spy_fixture.h"

namespace lv {
namespace {

class GameSpyConfig : public GameSpyTest {
  protected:
    GameSpyConfig() { AddGames(); }

    void AddExecutable(const Text& title, const Text& path) { executables.Items.push_back({title, path, "", ""}); }
    void AddQuakes() {
        AddExecutable("Quake", "C:\\QUAKE\\GLQUAKE.EXE");
        AddExecutable("Plain Quake", "C:\\QUAKE\\QUAKE.EXE");
        AddExecutable("QuakeWorld", "C:\\QUAKE\\QWCL.EXE");
        AddExecutable("Quake 2", "C:\\QUAKE2\\QUAKE2.EXE");
        AddExecutable("Unreal", "C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
    }
    static Text Row(Text title, TextView path) {
        title.resize(100, ' ');
        return title.append(path);
    }
    void AddGameSpy(TextView path = "C:\\GAMESPY\\GAMESPY.EXE") { system.Disk.AddFile(path); }
    void ChoosePath(Text path) {
        user.In<Path_Frm>([path](Path_Frm& form) {
            form.PathResult = path;
            form.Closed = true;
        });
    }
    Text StoredLocation() { return Stored(kOptions, "GameSpyLocation"); }

    ImageCombo executables;
    GameSpyConfig_Frm form{run, executables};
};

TEST_F(GameSpyConfig, HasItsCaptions) {
    EXPECT_EQ(form.Name, "GameSpyConfig_Frm");
    EXPECT_EQ(form.Caption, "Configure Game Spy");
    EXPECT_EQ(form.Browse_Cmd.Caption, "&Browse");
    EXPECT_EQ(form.DoIt_Cmd.Caption, "Configure Game&Spy!");
    EXPECT_EQ(form.Cancel_Cmd.Caption, "&Cancel");
    EXPECT_EQ(form.LaunchSpyNow_Chk.Caption, "Start GameSpy 3D Now");
    EXPECT_EQ(form.MinimizeLorvane_Opt[0], "Leave Lorvane Alone");
    EXPECT_EQ(form.MinimizeLorvane_Opt[1], "Minimize Lorvane");
    EXPECT_EQ(form.MinimizeLorvane_Opt[2], "Close Lorvane");
    EXPECT_EQ(form.Minimize, MinimizeLorvane::LeaveAlone);
    EXPECT_EQ(form.DialogResult, 0);
}

TEST_F(GameSpyConfig, OffersEachGameItsExecutables) {
    AddQuakes();
    GameSpyConfig_Load(form);
    EXPECT_EQ(form.ExeSpy_Cbo[0].Items,
              (Lines{Row("Quake", "C:\\QUAKE\\GLQUAKE.EXE"), Row("Plain Quake", "C:\\QUAKE\\QUAKE.EXE")}));
    EXPECT_EQ(form.ExeSpy_Cbo[1].Items, Lines{Row("QuakeWorld", "C:\\QUAKE\\QWCL.EXE")});
    EXPECT_TRUE(form.ExeSpy_Cbo[2].Items.empty());
    EXPECT_EQ(form.ExeSpy_Cbo[3].Items, Lines{Row("Quake 2", "C:\\QUAKE2\\QUAKE2.EXE")});
    EXPECT_EQ(form.ExeSpy_Cbo[4].Items, Lines{Row("Unreal", "C:\\UNREAL\\SYSTEM\\UNREAL.EXE")});
    EXPECT_TRUE(form.ExeSpy_Cbo[5].Items.empty());
}

TEST_F(GameSpyConfig, LeavesOutAnExecutableWithoutItsDataDirectory) {
    system.Disk.AddFile("C:\\OTHER\\QUAKE.EXE");
    system.Disk.AddFile("C:\\OTHER\\SIN.EXE");
    AddExecutable("Quake", "C:\\OTHER\\QUAKE.EXE");
    AddExecutable("Sin", "C:\\OTHER\\SIN.EXE");
    GameSpyConfig_Load(form);
    EXPECT_TRUE(form.ExeSpy_Cbo[0].Items.empty());
    EXPECT_TRUE(form.ExeSpy_Cbo[5].Items.empty());
}

TEST_F(GameSpyConfig, TakesAPathWithSlashes) {
    AddExecutable("Quake", "C:/QUAKE/quake.exe");
    GameSpyConfig_Load(form);
    EXPECT_EQ(form.ExeSpy_Cbo[0].Items, Lines{Row("Quake", "C:\\QUAKE\\quake.exe")});
}

TEST_F(GameSpyConfig, TicksTheGamesThereAre) {
    AddQuakes();
    GameSpyConfig_Load(form);
    EXPECT_EQ(form.QWInstalled_Chk.Value, 1);
    EXPECT_EQ(form.Hexen2Installed_Chk.Value, 0);
    EXPECT_FALSE(form.Hexen2Installed_Chk.Enabled);
    EXPECT_EQ(form.Quake2Installed_Chk.Value, 1);
    EXPECT_EQ(form.UnRealInstalled_Chk.Value, 1);
    EXPECT_EQ(form.SinInstalled_Chk.Value, 0);
    EXPECT_TRUE(form.UnRealInstalled_Chk.Enabled);
}

TEST_F(GameSpyConfig, SelectsTheFirstExecutableAndNoScriptAtFirst) {
    AddQuakes();
    Save(run, kOptions, "Scripts", "Mine;c:\\quake\\id1\\my.cfg");
    GameSpyConfig_Load(form);
    EXPECT_EQ(form.ExeSpy_Cbo[0].ListIndex, 0);
    EXPECT_EQ(form.ExeSpy_Cbo[2].ListIndex, -1);
    EXPECT_EQ(form.ScriptSpy_Cbo[0].Items, Lines{Row("Mine", "c:\\quake\\id1\\my.cfg")});
    EXPECT_EQ(form.ScriptSpy_Cbo[0].ListIndex, -1);
}

TEST_F(GameSpyConfig, RestoresThePositionsOfLastTime) {
    AddQuakes();
    Save(run, kOptions, "Scripts", "Mine;c:\\quake\\id1\\my.cfg;Other;c:\\quake\\id1\\other.cfg");
    Save(run, kOptions, "SpyExecutablesPos0", 1);
    Save(run, kOptions, "SpyScriptsPos0", 1);
    GameSpyConfig_Load(form);
    EXPECT_EQ(form.ExeSpy_Cbo[0].ListIndex, 1);
    EXPECT_EQ(form.ScriptSpy_Cbo[0].ListIndex, 1);
}

TEST_F(GameSpyConfig, APositionBehindTheListIsHeldOrDropped) {
    AddQuakes();
    Save(run, kOptions, "Scripts", "Mine;c:\\quake\\id1\\my.cfg");
    Save(run, kOptions, "SpyExecutablesPos0", 9);
    Save(run, kOptions, "SpyScriptsPos0", 9);
    GameSpyConfig_Load(form);
    EXPECT_EQ(form.ExeSpy_Cbo[0].ListIndex, 1);
    EXPECT_EQ(form.ScriptSpy_Cbo[0].ListIndex, -1);
}

TEST_F(GameSpyConfig, SavesThePositionsWithTheSlotsNumber) {
    AddQuakes();
    Save(run, kOptions, "Scripts", "Two;c:\\quake2\\baseq2\\two.cfg");
    GameSpyConfig_Load(form);
    form.ExeSpy_Cbo[0].ListIndex = 1;
    GameSpyConfig_ExeSpy_Cbo_Click(form, 0);
    form.ScriptSpy_Cbo[3].ListIndex = 0;
    GameSpyConfig_ScriptSpy_Cbo_Click(form, 3);
    EXPECT_EQ(Stored(kOptions, "SpyExecutablesPos0"), "1");
    EXPECT_EQ(Stored(kOptions, "SpyScriptsPos3"), "0");
}

TEST_F(GameSpyConfig, ScriptsAreThoseOfTheSlotsDirectory) {
    AddQuakes();
    Save(run, kOptions, "Scripts",
         "Mine;c:\\quake\\id1\\my.cfg;Flag;c:\\quake\\ctf\\flag.cfg;Two;c:\\quake2\\baseq2\\two.cfg;"
         "Ini;c:\\unreal\\system\\unreal.ini;Cfg;c:\\unreal\\system\\x.cfg;Far;d:\\quake\\id1\\my.cfg");
    GameSpyConfig_Load(form);
    EXPECT_EQ(form.ScriptSpy_Cbo[0].Items, Lines{Row("Mine", "c:\\quake\\id1\\my.cfg")});
    EXPECT_TRUE(form.ScriptSpy_Cbo[1].Items.empty());
    EXPECT_FALSE(form.ScriptSpy_Cbo[1].Visible);
    EXPECT_TRUE(form.ScriptSpy_Cbo[2].Items.empty());
    EXPECT_EQ(form.ScriptSpy_Cbo[3].Items, Lines{Row("Two", "c:\\quake2\\baseq2\\two.cfg")});
    EXPECT_EQ(form.ScriptSpy_Cbo[4].Items, Lines{Row("Ini", "c:\\unreal\\system\\unreal.ini")});
    EXPECT_TRUE(form.ScriptSpy_Cbo[5].Items.empty());
}

TEST_F(GameSpyConfig, AnExecutableOfAnotherDirectoryBringsItsScripts) {
    system.Disk.AddFile("D:\\Q\\quake.exe");
    system.Disk.AddDirectory("D:\\Q\\ID1");
    AddExecutable("First", "C:\\QUAKE\\QUAKE.EXE");
    AddExecutable("Second", "D:\\Q\\quake.exe");
    Save(run, kOptions, "Scripts", "Mine;c:\\quake\\id1\\my.cfg;Other;d:\\q\\id1\\o.cfg");
    Save(run, kOptions, "SpyScriptsPos0", 0);
    GameSpyConfig_Load(form);
    EXPECT_EQ(form.QuakeWorkingDir_Lbl.Caption, "C:\\QUAKE");
    EXPECT_EQ(form.ScriptSpy_Cbo[0].ListIndex, 0);
    form.ExeSpy_Cbo[0].ListIndex = 1;
    GameSpyConfig_ExeSpy_Cbo_Click(form, 0);
    EXPECT_EQ(form.QuakeWorkingDir_Lbl.Caption, "D:\\Q");
    EXPECT_EQ(form.ScriptSpy_Cbo[0].Items, Lines{Row("Other", "d:\\q\\id1\\o.cfg")});
    EXPECT_EQ(form.ScriptSpy_Cbo[0].ListIndex, -1);
}

TEST_F(GameSpyConfig, AResetScriptStaysUnselectedNextTime) {
    system.Disk.AddFile("D:\\Q\\quake.exe");
    system.Disk.AddDirectory("D:\\Q\\ID1");
    AddExecutable("First", "C:\\QUAKE\\QUAKE.EXE");
    AddExecutable("Second", "D:\\Q\\quake.exe");
    Save(run, kOptions, "Scripts", "Mine;c:\\quake\\id1\\my.cfg;Other;d:\\q\\id1\\o.cfg");
    Save(run, kOptions, "SpyScriptsPos0", 0);
    GameSpyConfig_Load(form);
    form.ExeSpy_Cbo[0].ListIndex = 1;
    GameSpyConfig_ExeSpy_Cbo_Click(form, 0);
    EXPECT_EQ(Stored(kOptions, "SpyScriptsPos0"), "-1");
    GameSpyConfig_Frm next(run, executables);
    GameSpyConfig_Load(next);
    EXPECT_EQ(next.ExeSpy_Cbo[0].ListIndex, 1);
    EXPECT_EQ(next.ScriptSpy_Cbo[0].Items, Lines{Row("Other", "d:\\q\\id1\\o.cfg")});
    EXPECT_EQ(next.ScriptSpy_Cbo[0].ListIndex, -1);
}

TEST_F(GameSpyConfig, AnUnpickedScriptStaysUnpickedNextTime) {
    AddQuakes();
    Save(run, kOptions, "Scripts", "Mine;c:\\quake\\id1\\my.cfg");
    Save(run, kOptions, "SpyScriptsPos0", 0);
    GameSpyConfig_Load(form);
    form.ScriptSpy_Cbo[0].ListIndex = -1;
    GameSpyConfig_ScriptSpy_Cbo_Click(form, 0);
    EXPECT_EQ(Stored(kOptions, "SpyScriptsPos0"), "-1");
    GameSpyConfig_Frm next(run, executables);
    GameSpyConfig_Load(next);
    EXPECT_FALSE(next.ScriptSpy_Cbo[0].HasSelection());
}

TEST_F(GameSpyConfig, AnExecutableOfTheSameDirectoryKeepsTheScript) {
    AddQuakes();
    Save(run, kOptions, "Scripts", "Mine;c:\\quake\\id1\\my.cfg");
    Save(run, kOptions, "SpyScriptsPos0", 0);
    GameSpyConfig_Load(form);
    form.ExeSpy_Cbo[0].ListIndex = 1;
    GameSpyConfig_ExeSpy_Cbo_Click(form, 0);
    EXPECT_EQ(form.ScriptSpy_Cbo[0].ListIndex, 0);
    EXPECT_EQ(Stored(kOptions, "SpyScriptsPos0"), "0");
}

TEST_F(GameSpyConfig, OnlyQuakesDirectoryIsShown) {
    AddQuakes();
    GameSpyConfig_Load(form);
    GameSpyConfig_ExeSpy_Cbo_Click(form, 3);
    EXPECT_EQ(form.QuakeWorkingDir_Lbl.Caption, "C:\\QUAKE");
}

TEST_F(GameSpyConfig, AStoredLocationIsUsedWhileItIsThere) {
    AddGameSpy("D:\\SPY\\GAMESPY.EXE");
    AddGameSpy("C:\\gamespy\\gamespy.exe");
    Save(run, kOptions, "GameSpyLocation", "D:\\SPY\\GAMESPY.EXE");
    FindGameSpy(form);
    EXPECT_EQ(form.GameSpyLocation_Lbl.Caption, "D:\\SPY\\GAMESPY.EXE");
    EXPECT_EQ(StoredLocation(), "D:\\SPY\\GAMESPY.EXE");
}

TEST_F(GameSpyConfig, GameSpyIsLookedForOnTheDrives) {
    Save(run, kOptions, "GameSpyLocation", "E:\\GONE\\GAMESPY.EXE");
    AddGameSpy("C:\\gamespy\\gamespy.exe");
    FindGameSpy(form);
    EXPECT_EQ(form.GameSpyLocation_Lbl.Caption, "C:\\gamespy\\gamespy.exe");
    EXPECT_EQ(StoredLocation(), "C:\\gamespy\\gamespy.exe");
}

TEST_F(GameSpyConfig, ALaterHitReplacesAnEarlierOne) {
    AddGameSpy("C:\\gamespy\\gamespy.exe");
    AddGameSpy("C:\\progra~1\\gamespy\\gamespy.exe");
    FindGameSpy(form);
    EXPECT_EQ(StoredLocation(), "C:\\progra~1\\gamespy\\gamespy.exe");
    AddGameSpy("D:\\gamespy\\gamespy.exe");
    Save(run, kOptions, "GameSpyLocation", "");
    FindGameSpy(form);
    EXPECT_EQ(StoredLocation(), "D:\\gamespy\\gamespy.exe");
}

TEST_F(GameSpyConfig, FloppyDrivesAndDrivesThatFailAreLeftOut) {
    AddGameSpy("A:\\gamespy\\gamespy.exe");
    AddGameSpy("B:\\gamespy\\gamespy.exe");
    AddGameSpy("E:\\gamespy\\gamespy.exe");
    system.Disk.DrivesNotReady.insert("E:");
    FindGameSpy(form);
    EXPECT_EQ(form.GameSpyLocation_Lbl.Caption, "");
    EXPECT_EQ(StoredLocation(), "");
}

TEST_F(GameSpyConfig, ALocationThatIsGoneIsForgotten) {
    Save(run, kOptions, "GameSpyLocation", "E:\\GONE\\GAMESPY.EXE");
    GameSpyConfig_Load(form);
    EXPECT_EQ(form.GameSpyLocation_Lbl.Caption, "");
    EXPECT_EQ(StoredLocation(), "");
}

TEST_F(GameSpyConfig, BrowsingTakesADirectoryWithGameSpyInIt) {
    AddGameSpy("D:\\SPY\\GAMESPY.EXE");
    ChoosePath("D:\\SPY");
    GameSpyConfig_Browse_Cmd_Click(form);
    EXPECT_EQ(form.GameSpyLocation_Lbl.Caption, "D:\\SPY\\gamespy.exe");
    EXPECT_EQ(StoredLocation(), "D:\\SPY\\gamespy.exe");
}

TEST_F(GameSpyConfig, BrowsingTakesADrivesRoot) {
    AddGameSpy("D:\\GAMESPY.EXE");
    ChoosePath("D:\\");
    GameSpyConfig_Browse_Cmd_Click(form);
    EXPECT_EQ(StoredLocation(), "D:\\gamespy.exe");
}

TEST_F(GameSpyConfig, BrowsingToADirectoryWithoutItSaysSo) {
    ChoosePath("C:\\QUAKE");
    ExpectTold("Lorvane 3D", "GameSpy was not found in 'C:\\QUAKE'.");
    GameSpyConfig_Browse_Cmd_Click(form);
    EXPECT_EQ(form.GameSpyLocation_Lbl.Caption, "");
    EXPECT_EQ(StoredLocation(), "(none)");
}

TEST_F(GameSpyConfig, ACancelledBrowseChangesNothing) {
    AddGameSpy("C:\\gamespy\\gamespy.exe");
    FindGameSpy(form);
    ChoosePath("CANCEL");
    GameSpyConfig_Browse_Cmd_Click(form);
    EXPECT_EQ(form.GameSpyLocation_Lbl.Caption, "C:\\gamespy\\gamespy.exe");
}

TEST_F(GameSpyConfig, WithoutALocationConfiguringBrowsesInsteadOfClosing) {
    AddGameSpy("D:\\SPY\\GAMESPY.EXE");
    ExpectTold("Where is GamsSpy?", "Please locate GameSpy before configuring.");
    ChoosePath("D:\\SPY");
    GameSpyConfig_DoIt_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    EXPECT_EQ(form.DialogResult, 0);
    EXPECT_EQ(form.GameSpyLocation_Lbl.Caption, "D:\\SPY\\gamespy.exe");
    GameSpyConfig_DoIt_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    EXPECT_EQ(form.DialogResult, 1);
}

TEST_F(GameSpyConfig, CancelClosesWithoutAResult) {
    form.DialogResult = 1;
    GameSpyConfig_Cancel_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    EXPECT_EQ(form.DialogResult, 0);
}

TEST_F(GameSpyConfig, OneOptionIsOn) {
    GameSpyConfig_MinimizeLorvane_Opt_Click(form, 2);
    EXPECT_EQ(form.Minimize, MinimizeLorvane::Close);
    GameSpyConfig_MinimizeLorvane_Opt_Click(form, 1);
    EXPECT_EQ(form.Minimize, MinimizeLorvane::Minimize);
}

TEST_F(GameSpyConfig, ADamagedCatalogOfScriptsOffersNone) {
    AddQuakes();
    Save(run, kOptions, "Scripts", "Mine;c:\\quake\\id1\\my.cfg;odd");
    GameSpyConfig_Load(form);
    EXPECT_TRUE(form.ScriptSpy_Cbo[0].Items.empty());
}

}  // namespace
}  // namespace lv
