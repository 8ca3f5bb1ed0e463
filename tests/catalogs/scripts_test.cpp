#include "catalogs/scripts.h"

#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

class ScriptsTest : public CatalogsTest {
  protected:
    void BeInUnreal() {
        system.Disk.AddDirectory("C:\\UNREAL\\MAPS");
        system.Disk.AddFile("C:\\UNREAL\\SYSTEM\\Unreal.ini");
        system.Disk.AddFile("C:\\UNREAL\\SYSTEM\\Player.ini");
        system.Disk.AddFile("C:\\UNREAL\\SYSTEM\\other.cfg");
        run.DefaultGameDirectory = "c:\\unreal\\system";
        run.BaseGameDir = "MAPS";
        run.CurrentGameDir = "MAPS";
        run.GameKind = Game::Unreal;
    }
};

TEST_F(ScriptsTest, LieInTheDataDirectoryInUse) {
    BeInQuake();
    run.CurrentGameDir = "ctf";
    EXPECT_EQ(ScriptDirectory(run), "c:\\quake\\ctf");
    EXPECT_EQ(DefaultScriptKey(run), "c:\\quake\\ctf");
}

TEST_F(ScriptsTest, EndInCfgAndTheGamesOwnIsItsConfig) {
    BeInQuake();
    run.CurrentGameDir = "ctf";
    EXPECT_EQ(ScriptEnding(run), ".cfg");
    EXPECT_EQ(GamesOwnScript(run), "c:\\quake\\ctf\\config.cfg");
}

TEST_F(ScriptsTest, OfUnrealEndInIniAndItsOwnIsUnrealIni) {
    BeInUnreal();
    EXPECT_EQ(ScriptEnding(run), ".ini");
    EXPECT_EQ(GamesOwnScript(run), "c:\\unreal\\system\\unreal.ini");
}

TEST_F(ScriptsTest, OfUnrealLieBesideTheExecutable) {
    BeInUnreal();
    EXPECT_EQ(ScriptDirectory(run), "c:\\unreal\\system");
}

TEST_F(ScriptsTest, OfUnrealAreRememberedUnderTheDataDirectoryLikeAllOthers) {
    BeInUnreal();
    EXPECT_EQ(DefaultScriptKey(run), "c:\\unreal\\system\\MAPS");
    Save(run, "DefaultScript", "c:\\unreal\\system\\MAPS", "c:\\unreal\\system\\player.ini");
    FillScriptsCombo(run, lists);
    EXPECT_EQ(lists.Script_Cbo.ListIndex, 1);
}

TEST_F(ScriptsTest, FixDropsRecordsWhoseFileIsGone) {
    system.Disk.AddFile("C:\\Q\\a.cfg");
    system.Disk.AddFile("C:\\Q\\c.cfg");
    Store("Scripts", " A ;c:\\q\\a.cfg;B;c:\\q\\b.cfg;C; c:\\q\\c.cfg ");
    EXPECT_TRUE(FixScriptRegistries(run));
    EXPECT_EQ(Stored("Scripts"), "A;c:\\q\\a.cfg;C;c:\\q\\c.cfg");
}

TEST_F(ScriptsTest, FixOfNothingButGoneFilesLeavesAnEmptyCatalog) {
    Store("Scripts", "B;c:\\q\\b.cfg");
    EXPECT_TRUE(FixScriptRegistries(run));
    EXPECT_EQ(Stored("Scripts"), "");
}

TEST_F(ScriptsTest, FixOfADamagedCatalogEndsTheProgram) {
    Store("Scripts", "A;c:\\q\\a.cfg;B");
    ExpectDamage("defaultScripts", "A;c:\\q\\a.cfg;B");
    EXPECT_FALSE(FixScriptRegistries(run));
    EXPECT_TRUE(run.Ended);
    EXPECT_EQ(Stored("Scripts"), "A;c:\\q\\a.cfg;B");
}

TEST_F(ScriptsTest, FilesFoundAreAddedInLowerCase) {
    BeInQuake();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\Zoom.CFG");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\config.cfg");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\readme.txt");
    EXPECT_TRUE(FillScriptsCombo(run, lists));
    EXPECT_EQ(Rows(lists.Script_Cbo),
              (TextList{"zoom.cfg|c:\\quake\\id1\\zoom.cfg", "config.cfg|c:\\quake\\id1\\config.cfg"}));
    EXPECT_EQ(Stored("Scripts"), "zoom.cfg;c:\\quake\\id1\\zoom.cfg;config.cfg;c:\\quake\\id1\\config.cfg");
    EXPECT_EQ(lists.HiddenScripts, "");
}

struct HelperFile : CatalogsTest, ::testing::WithParamInterface<const char*> {};

TEST_P(HelperFile, IsNoPlayersScript) {
    BeInQuake();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\" + UpperCase(GetParam()));
    EXPECT_TRUE(FillScriptsCombo(run, lists));
    EXPECT_TRUE(lists.Script_Cbo.Items.empty());
}

INSTANTIATE_TEST_SUITE_P(EachName, HelperFile,
                         ::testing::Values("qspy.cfg", "autoexec.cfg", "gamespy.cfg", "qdm.cfg", "qview.cfg",
                                           "rift.cfg", "lv_666.cfg", "frontend.cfg", "server.cfg"));

TEST_F(ScriptsTest, AHelperFileInTheCatalogStays) {
    BeInQuake();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\autoexec.cfg");
    Store("Scripts", "Mine;C:\\QUAKE\\ID1\\AUTOEXEC.CFG");
    FillScriptsCombo(run, lists);
    EXPECT_EQ(Rows(lists.Script_Cbo), (TextList{"Mine|c:\\quake\\id1\\autoexec.cfg"}));
}

TEST_F(ScriptsTest, ADirectoryWithMoreThanTheListShowsIsToldOfOnce) {
    BeInQuake();
    for (int i = 0; i < 1025; ++i) {
        system.Disk.AddFile("C:\\QUAKE\\ID1\\" + std::to_string(i) + ".cfg");
    }
    user.Expect({"More Than a List Shows", "more scripts than the list can show in\r\nc:\\quake\\id1"});
    FillScriptsCombo(run, lists);
    EXPECT_EQ(lists.Script_Cbo.Items.size(), 1024U);
    FillScriptsCombo(run, lists);
    EXPECT_EQ(lists.Script_Cbo.Items.size(), 1024U);
}

TEST_F(ScriptsTest, ANameWithASemicolonIsLeftOut) {
    BeInQuake();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\a;b.cfg");
    EXPECT_TRUE(FillScriptsCombo(run, lists));
    EXPECT_TRUE(lists.Script_Cbo.Items.empty());
}

TEST_F(ScriptsTest, ADirectoryIsNoScript) {
    BeInQuake();
    system.Disk.AddDirectory("C:\\QUAKE\\ID1\\old.cfg");
    FillScriptsCombo(run, lists);
    EXPECT_TRUE(lists.Script_Cbo.Items.empty());
}

TEST_F(ScriptsTest, DuplicatesGoAndPathsBecomeLowerCase) {
    BeInQuake();
    Store("Scripts", "One;C:\\Quake\\ID1\\A.cfg;Two;c:\\quake\\id1\\a.CFG;Three;D:\\Else\\B.cfg");
    FillScriptsCombo(run, lists);
    EXPECT_EQ(Stored("Scripts"), "One;c:\\quake\\id1\\a.cfg;Three;d:\\else\\b.cfg");
    EXPECT_EQ(Rows(lists.Script_Cbo), (TextList{"One|c:\\quake\\id1\\a.cfg"}));
    EXPECT_EQ(lists.HiddenScripts, "Three;d:\\else\\b.cfg");
}

TEST_F(ScriptsTest, APathThatBeginsLikeAnotherIsNoDuplicate) {
    BeInQuake();
    Store("Scripts", "One;c:\\quake\\id1\\a.cfg2;Two;c:\\quake\\id1\\a.cfg");
    FillScriptsCombo(run, lists);
    EXPECT_EQ(lists.Script_Cbo.Items.size(), 2U);
}

TEST_F(ScriptsTest, AKnownFileKeepsItsTitle) {
    BeInQuake();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\my.cfg");
    Store("Scripts", "My Own;c:\\quake\\id1\\my.cfg");
    FillScriptsCombo(run, lists);
    EXPECT_EQ(Rows(lists.Script_Cbo), (TextList{"My Own|c:\\quake\\id1\\my.cfg"}));
}

TEST_F(ScriptsTest, OfASubdirectoryAreHidden) {
    BeInQuake();
    Store("Scripts", "Deep;c:\\quake\\id1\\sub\\a.cfg;Near;c:\\quake\\id1x\\a.cfg");
    FillScriptsCombo(run, lists);
    EXPECT_TRUE(lists.Script_Cbo.Items.empty());
    EXPECT_EQ(lists.HiddenScripts, "Deep;c:\\quake\\id1\\sub\\a.cfg;Near;c:\\quake\\id1x\\a.cfg");
}

TEST_F(ScriptsTest, OfUnrealAreInis) {
    BeInUnreal();
    EXPECT_TRUE(FillScriptsCombo(run, lists));
    EXPECT_EQ(Rows(lists.Script_Cbo),
              (TextList{"unreal.ini|c:\\unreal\\system\\unreal.ini", "player.ini|c:\\unreal\\system\\player.ini"}));
    EXPECT_EQ(lists.Script_Cbo.ListIndex, 0);
}

TEST_F(ScriptsTest, UnrealsDefaultIsItsIni) {
    BeInUnreal();
    Store("Scripts", "First;c:\\unreal\\system\\zz.ini");
    FillScriptsCombo(run, lists);
    EXPECT_EQ(lists.Script_Cbo.ListIndex, 1);
}

TEST_F(ScriptsTest, ConfigIsSelectedByDefault) {
    BeInQuake();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\a.cfg");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\Config.cfg");
    FillScriptsCombo(run, lists);
    EXPECT_EQ(lists.Script_Cbo.ListIndex, 1);
}

TEST_F(ScriptsTest, TheRememberedScriptIsSelectedInAnyCase) {
    BeInQuake();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\config.cfg");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\a.cfg");
    system.Settings.Write("Lorvane 3D", "DefaultScript", "C:\\QUAKE\\id1", "C:\\Quake\\ID1\\A.cfg");
    FillScriptsCombo(run, lists);
    EXPECT_EQ(lists.Script_Cbo.ListIndex, 1);
}

TEST_F(ScriptsTest, AForgottenScriptGivesTheFirstRow) {
    BeInQuake();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\a.cfg");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\config.cfg");
    system.Settings.Write("Lorvane 3D", "DefaultScript", "c:\\quake\\id1", "c:\\quake\\id1\\gone.cfg");
    FillScriptsCombo(run, lists);
    EXPECT_EQ(lists.Script_Cbo.ListIndex, 0);
}

TEST_F(ScriptsTest, EachModificationRemembersItsOwn) {
    BeInQuake();
    system.Disk.AddFile("C:\\QUAKE\\CTF\\x.cfg");
    system.Disk.AddFile("C:\\QUAKE\\CTF\\y.cfg");
    system.Settings.Write("Lorvane 3D", "DefaultScript", "c:\\quake\\ctf", "c:\\quake\\ctf\\y.cfg");
    run.CurrentGameDir = "ctf";
    FillScriptsCombo(run, lists);
    EXPECT_EQ(lists.Script_Cbo.ListIndex, 1);
}

TEST_F(ScriptsTest, WithoutAnyNothingIsSelected) {
    BeInQuake();
    EXPECT_TRUE(FillScriptsCombo(run, lists));
    EXPECT_EQ(lists.Script_Cbo.ListIndex, -1);
}

TEST_F(ScriptsTest, TheBoxTakesItsStoredState) {
    BeInQuake();
    Store("UseScripts", "1");
    FillScriptsCombo(run, lists);
    EXPECT_EQ(lists.Script_Chk.Value, 1);
}

TEST_F(ScriptsTest, ADamagedCatalogEndsTheProgramAndStays) {
    BeInQuake();
    Store("Scripts", "A;c:\\q\\a.cfg;B");
    ExpectDamage("defaultScripts", "A;c:\\q\\a.cfg;B");
    EXPECT_FALSE(FillScriptsCombo(run, lists));
    EXPECT_TRUE(run.Ended);
    EXPECT_EQ(Stored("Scripts"), "A;c:\\q\\a.cfg;B");
}

TEST_F(ScriptsTest, ACatalogThatOutgrowsTheStoreIsRefused) {
    BeInQuake();
    for (int i = 0; i < 600; ++i) {
        system.Disk.AddFile("C:\\QUAKE\\ID1\\script" + std::to_string(i) + ".cfg");
    }
    Store("Scripts", "A;d:\\else\\a.cfg");
    user.Expect({"Lorvane 3D", "Attempt to insert too long a string as a value.\r\n"});
    EXPECT_TRUE(FillScriptsCombo(run, lists));
    EXPECT_EQ(Stored("Scripts"), "A;d:\\else\\a.cfg");
    EXPECT_EQ(lists.Script_Cbo.Items.size(), 600U);
}

TEST_F(ScriptsTest, AScriptIsAddedBehindTheOthersInLowerCase) {
    Store("Scripts", "A;c:\\q\\a.cfg");
    EXPECT_TRUE(AddToScripts(run, "My Own", "C:\\Q\\MY.CFG"));
    EXPECT_EQ(Stored("Scripts"), "A;c:\\q\\a.cfg;My Own;c:\\q\\my.cfg");
}

TEST_F(ScriptsTest, AScriptIsAddedToNothing) {
    EXPECT_TRUE(AddToScripts(run, "my.cfg", "C:\\Q\\MY.CFG"));
    EXPECT_EQ(Stored("Scripts"), "my.cfg;c:\\q\\my.cfg");
}

TEST_F(ScriptsTest, AValueTooShortForARecordIsReplaced) {
    Store("Scripts", "x");
    EXPECT_TRUE(AddToScripts(run, "my.cfg", "C:\\Q\\MY.CFG"));
    EXPECT_EQ(Stored("Scripts"), "my.cfg;c:\\q\\my.cfg");
}

TEST_F(ScriptsTest, AScriptThatStandsThereIsNotAddedAgain) {
    Store("Scripts", "A; C:\\Q\\a.CFG ;B;c:\\q\\b.cfg");
    EXPECT_FALSE(AddToScripts(run, "again", "c:\\q\\A.cfg"));
    EXPECT_EQ(Stored("Scripts"), "A; C:\\Q\\a.CFG ;B;c:\\q\\b.cfg");
}

TEST_F(ScriptsTest, APathThatNoListCanHoldIsNotAdded) {
    Store("Scripts", "A;c:\\q\\a.cfg");
    EXPECT_FALSE(AddToScripts(run, "odd", "c:\\q\\a;b.cfg"));
    EXPECT_EQ(Stored("Scripts"), "A;c:\\q\\a.cfg");
}

TEST_F(ScriptsTest, AddingToADamagedCatalogEndsTheProgram) {
    Store("Scripts", "A;c:\\q\\a.cfg;B");
    ExpectDamage("defaultScripts", "A;c:\\q\\a.cfg;B");
    EXPECT_FALSE(AddToScripts(run, "my.cfg", "c:\\q\\my.cfg"));
    EXPECT_TRUE(run.Ended);
}

TEST_F(ScriptsTest, PipesAndDevicesAreNoScripts) {
    BeInQuake();
    system.Disk.AddDevice("C:\\QUAKE\\ID1\\pipe.cfg");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\my.cfg");
    Store("Scripts", "Pipe;c:\\quake\\id1\\pipe.cfg");
    EXPECT_TRUE(FixScriptRegistries(run));
    EXPECT_TRUE(FillScriptsCombo(run, lists));
    EXPECT_EQ(Rows(lists.Script_Cbo), (TextList{"my.cfg|c:\\quake\\id1\\my.cfg"}));
}

}  // namespace
}  // namespace lv
