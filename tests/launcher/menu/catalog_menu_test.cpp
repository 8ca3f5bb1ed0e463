#include "launcher/menu/catalog_menu.h"

#include "catalogs/editors/add_demo.h"
#include "catalogs/editors/add_exe.h"
#include "catalogs/editors/add_game.h"
#include "catalogs/editors/add_script.h"
#include "catalogs/editors/add_server.h"
#include "catalogs/editors/edit_memory.h"
#include "catalogs/editors/path_window.h"
#include "tests/support/launcher_fixture.h"

namespace lv {

class CatalogMenu : public LauncherTest {
  protected:
    CatalogMenu() {
        AddGames();
        Load();
    }
    void Click(MenuItem item) { Menu_Click(launcher, item); }
    void ExpectTold(TextView text) { user.Expect({"Lorvane 3D", Text(text), 0, false, true, "&OK"}); }
    void ExpectDeletion() {
        user.Expect({"Confirm Deletion", ""});
        user.Expect({"Lorvane 3D", ""});
    }
};

TEST_F(CatalogMenu, ViewsShowTheirCatalogs) {
    using enum MenuItem;
    const std::vector<std::pair<MenuItem, const char*>> rows = {
        {ExeViewAll_Bar, "View All Executables"}, {GameViewAll_Bar, "View All Games"},
        {MemViewAll_Bar, "View All Memory"},      {ScriptsViewAll_Bar, "View All Scripts"},
        {DemoViewAll_Bar, "View All Demos"},      {ServerViewAll_Bar, "View All Quake Servers"},
    };
    for (const auto& [item, title] : rows) {
        user.Expect({title, "  /  "});
        Click(item);
    }
}

TEST_F(CatalogMenu, CommandsOnNoSelectionAreTold) {
    using enum MenuItem;
    window.Exe_Cbo.Clear();
    window.Game_Cbo.Clear();
    window.Script_Cbo.Clear();
    window.Demo_Cbo.Clear();
    window.Server_Cbo.Clear();
    const std::vector<std::pair<MenuItem, const char*>> rows = {
        {ExeEdit_Bar, "No executable is selected."},      {ExeDelete_Bar, "No executable is selected."},
        {GameEdit_Bar, "No game directory is selected."}, {GameDelete_Bar, "No game directory is selected."},
        {DemoEdit_Bar, "No Demo is selected."},           {DemoDelete_Bar, "No Demo is selected."},
        {ScriptsEdit_Bar, "No script is selected."},      {ScriptsDelete_Bar, "No script is selected."},
        {ScriptsCopy_Bar, "No script is selected."},      {ServerEdit_Bar, "No server is selected."},
        {ServerCopy_Bar, "No server is selected."},       {ServerDelete_Bar, "No server is selected."},
    };
    for (const auto& [item, message] : rows) {
        ExpectTold(message);
        Click(item);
    }
}

TEST_F(CatalogMenu, AnAddedExecutableIsTheGameNow) {
    system.Disk.AddFile("C:\\QUAKE2\\OTHER.EXE");
    user.In<AddExe_Frm>([&](AddExe_Frm& form) {
        EXPECT_EQ(form.Mode, EntryMode::Add);
        form.ExeTitle_Txt.Text = "Other";
        form.ExePath_Txt.Text = "C:\\QUAKE2\\OTHER.EXE";
        user.Expect({"Lorvane 3D", "Other now references C:\\QUAKE2\\OTHER.EXE"});
        AddExe_OK_Cmd_Click(form);
    });
    Click(MenuItem::ExeAddManual_Bar);
    EXPECT_EQ(run.GameKind, Game::Quake2);
}

TEST_F(CatalogMenu, AnEditedExecutableIsTheGameNow) {
    user.In<AddExe_Frm>([&](AddExe_Frm& form) {
        EXPECT_EQ(form.ExeTitle_Txt.Text, "Quake");
        system.Disk.AddFile("C:\\QUAKE2\\OTHER.EXE");
        form.ExePath_Txt.Text = "C:\\QUAKE2\\OTHER.EXE";
        user.Expect({"Lorvane 3D", "Quake now references C:\\QUAKE2\\OTHER.EXE"});
        AddExe_OK_Cmd_Click(form);
    });
    Click(MenuItem::ExeEdit_Bar);
    EXPECT_EQ(run.GameKind, Game::Quake2);
}

TEST_F(CatalogMenu, ADeletedExecutableLeavesTheFirstOneInItsPlace) {
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    ExpectDeletion();
    Click(MenuItem::ExeDelete_Bar);
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 0);
    EXPECT_EQ(run.GameKind, Game::Quake);
    EXPECT_EQ(Stored(kOptions, "ExecutablesPos"), "0");
}

TEST_F(CatalogMenu, AScanHandsOverWhatIsKnownAndReadsTheListAgain) {
    std::vector<KnownGame> told;
    system.Disk.AddFile("C:\\SIN\\SIN.EXE");
    launcher.ShowInstallScan = [&](const std::vector<KnownGame>& known) {
        told = known;
        Save(run, kOptions, "Executables", "Sin;C:\\SIN\\SIN.EXE");
        return true;
    };
    Click(MenuItem::ExeAddScan_Bar);
    ASSERT_EQ(told.size(), 6u);
    EXPECT_EQ(told[0].Directory, "C:\\QUAKE");
    ASSERT_EQ(window.Exe_Cbo.Items.size(), 1u);
    EXPECT_EQ(window.Exe_Cbo.Items[0].Key, "C:\\SIN\\SIN.EXE");
    EXPECT_EQ(run.DefaultGameDirectory, "c:\\sin");
}

TEST_F(CatalogMenu, AGameIsAdded) {
    system.Disk.AddDirectory("C:\\QUAKE\\NEW");
    user.In<AddGame_Frm>([&](AddGame_Frm& form) {
        form.GameTitle_Txt.Text = "New";
        form.GamePath_Txt.Text = "NEW";
        user.Expect({"Lorvane 3D", "New now references -game NEW"});
        AddGame_OK_Cmd_Click(form);
    });
    Click(MenuItem::GameAddManual_Bar);
    EXPECT_NE(Stored(kOptions, "Games").find("New;-game NEW"), Text::npos);
}

TEST_F(CatalogMenu, AnEditedGameInUseIsInUseUnderItsNewDirectory) {
    system.Disk.AddDirectory("C:\\QUAKE\\NEW");
    window.Game_Cbo.ListIndex = 0;
    LauncherTest::Click(Option::Game_Chk, 1);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    user.In<AddGame_Frm>([&](AddGame_Frm& form) {
        EXPECT_EQ(form.Mode, EntryMode::Edit);
        form.GamePath_Txt.Text = "NEW";
        user.Expect({"Lorvane 3D", " now references -game NEW"});
        AddGame_OK_Cmd_Click(form);
    });
    Click(MenuItem::GameEdit_Bar);
    EXPECT_EQ(run.CurrentGameDir, "NEW");
}

TEST_F(CatalogMenu, ADeletedGameInUseGivesItsPlaceToTheFirst) {
    window.Game_Cbo.ListIndex = 0;
    LauncherTest::Click(Option::Game_Chk, 1);
    ExpectDeletion();
    Click(MenuItem::GameDelete_Bar);
    EXPECT_EQ(run.CurrentGameDir, "ID1");
}

TEST_F(CatalogMenu, WithoutAGameLeftTheBaseGameIsInUse) {
    window.Game_Cbo.Items.resize(1);
    window.Game_Cbo.ListIndex = 0;
    LauncherTest::Click(Option::Game_Chk, 1);
    ExpectDeletion();
    Click(MenuItem::GameDelete_Bar);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 0);
    EXPECT_EQ(run.CurrentGameDir, "ID1");
}

TEST_F(CatalogMenu, AScanForGamesTellsTheirNumber) {
    system.Disk.AddFile("C:\\QUAKE\\HIPNOTIC\\pak0.pak");
    system.Disk.AddFile("C:\\QUAKE\\ROGUE\\progs.dat");
    user.Expect({"Scan Results", "2 game directories were added.", 0, false, true, "&OK"});
    Click(MenuItem::GameAddScan_Bar);
    user.Expect({"Scan Results", "0 game directories were added.", 0, false, true, "&OK"});
    Click(MenuItem::GameAddScan_Bar);
}

TEST_F(CatalogMenu, AnEditedMemoryListIsAtItsFirstRow) {
    user.In<EditMem_Frm>([](EditMem_Frm& form) { EditMem_OK_Cmd_Click(form); });
    Click(MenuItem::MemEdit_Bar);
    EXPECT_EQ(window.Mem_Cbo.Items.size(), 3u);
    EXPECT_EQ(Stored(kOptions, "MemoryPos"), "0");
}

TEST_F(CatalogMenu, ScriptsAreAddedAndEdited) {
    user.In<AddScript_Frm>([](AddScript_Frm& form) {
        EXPECT_EQ(form.Mode, EntryMode::Add);
        Entry_Cancel_Cmd_Click(form);
    });
    Click(MenuItem::ScriptsAdd_Bar);
    user.In<AddScript_Frm>([](AddScript_Frm& form) {
        EXPECT_EQ(form.Mode, EntryMode::Edit);
        EXPECT_EQ(form.ScriptPath_Txt.Text, "c:\\quake\\id1\\my.cfg");
        Entry_Cancel_Cmd_Click(form);
    });
    Click(MenuItem::ScriptsEdit_Bar);
}

TEST_F(CatalogMenu, ANewScriptOpensInTheEditor) {
    int opened = 0;
    launcher.OpenSetupFoundry = [&] { ++opened; };
    user.In<AddScript_Frm>([](AddScript_Frm& form) { Entry_Cancel_Cmd_Click(form); });
    Click(MenuItem::ScriptNew_Bar);
    EXPECT_EQ(opened, 0);
    user.In<AddScript_Frm>([&](AddScript_Frm& form) {
        EXPECT_EQ(form.Mode, EntryMode::New);
        form.ScriptTitle_Txt.Text = "New";
        form.ScriptPath_Txt.Text = "new";
        user.Expect({"Lorvane 3D", "New now references c:\\quake\\ID1\\new.cfg"});
        AddScript_OK_Cmd_Click(form);
    });
    Click(MenuItem::ScriptNew_Bar);
    EXPECT_EQ(opened, 1);
}

TEST_F(CatalogMenu, AScriptIsCopied) {
    user.In<Path_Frm>([](Path_Frm& form) { Path_Cancel_Cmd_Click(form); });
    Click(MenuItem::ScriptsCopy_Bar);
}

TEST_F(CatalogMenu, AScriptIsDeleted) {
    ExpectDeletion();
    Click(MenuItem::ScriptsDelete_Bar);
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\ID1\\MY.CFG"));
}

TEST_F(CatalogMenu, DemosAreAddedEditedAndDeleted) {
    for (const auto& [item, mode] :
         {std::pair{MenuItem::DemoAdd_Bar, EntryMode::Add}, {MenuItem::DemoEdit_Bar, EntryMode::Edit}}) {
        user.In<AddDemo_Frm>([mode = mode](AddDemo_Frm& form) {
            EXPECT_EQ(form.Mode, mode);
            Entry_Cancel_Cmd_Click(form);
        });
        Click(item);
    }
    window.Demo_Cbo.ListIndex = 3;
    Save(run, kOptions, "DemoPos", 3);
    ExpectDeletion();
    Click(MenuItem::DemoDelete_Bar);
    EXPECT_EQ(window.Demo_Cbo.Items.size(), 5u);
    EXPECT_EQ(Stored(kOptions, "DemoPos"), "0");
}

TEST_F(CatalogMenu, ServersAreAddedEditedCopiedAndDeleted) {
    user.In<AddServer_Frm>([&](AddServer_Frm& form) {
        EXPECT_EQ(form.Caption, "Add Server");
        form.ServerTitle_Txt.Text = "Home";
        form.ServerPath_Txt.Text = "10.0.0.1";
        user.Expect({"Lorvane 3D", "Home now references 10.0.0.1"});
        AddServer_OK_Cmd_Click(form);
    });
    Click(MenuItem::ServerAddManual_Bar);
    window.Server_Cbo.ListIndex = 0;
    user.In<AddServer_Frm>([](AddServer_Frm& form) { EXPECT_EQ(form.Caption, "Edit Current Server"); });
    Click(MenuItem::ServerEdit_Bar);
    user.In<AddServer_Frm>([](AddServer_Frm& form) {
        EXPECT_EQ(form.Caption, "Copy Current Server");
        EXPECT_EQ(form.Mode, EntryMode::Add);
    });
    Click(MenuItem::ServerCopy_Bar);
    ExpectDeletion();
    Click(MenuItem::ServerDelete_Bar);
    EXPECT_TRUE(window.Server_Cbo.Items.empty());
    EXPECT_EQ(Stored(kOptions, "NetServers"), "");
}

}  // namespace lv
