#include "launcher/menu/menu_table.h"

#include <map>

#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

using enum MenuItem;

struct Written {
    MenuItem Item;
    const char* Name;
    int Index;
    const char* Caption;
    const char* Key;
    MenuItem Parent;
    bool Works;  // a menu, or an item whose work is there
};

// clang-format off
const std::vector<Written>& Table() {
    static const std::vector<Written> rows = {
        {File_Bar, "File_Bar", -1, "&File", "", None, true},
        {Launch_Bar, "Launch_Bar", -1, "&Launch Me!", "F2", File_Bar, true},
        {ViewCommands_Bar, "ViewCommands_Bar", -1, "&View Commands", "", File_Bar, true},
        {CreateFileOnly_Bar, "CreateFileOnly_Bar", -1, "&Create Files Only", "", File_Bar, true},
        {ShowLorvane_Bar, "ShowLorvane_Bar", -1, "&Hide Lorvane 3D", "", File_Bar, true},
        {Exit_Bar, "Exit_Bar", -1, "E&xit", "F12", File_Bar, true},
        {Options_Bar, "Options_Bar", -1, "&Options", "", None, true},
        {ShowAll_Bar_0, "ShowAll_Bar", 0, "Show &All Options", "", Options_Bar, true},
        {ShowAll_Bar_1, "ShowAll_Bar", 1, "Show &Some Options", "", Options_Bar, true},
        {ShowAll_Bar_2, "ShowAll_Bar", 2, "Show &Buttons Only", "", Options_Bar, true},
        {AlwaysOnTop_Bar, "AlwaysOnTop_Bar", -1, "&Always On Top", "", Options_Bar, true},
        {RenameButton_Bar, "RenameButton_Bar", -1, "&Rename Exec Button", "", Options_Bar, true},
        {Exe_Bar, "Exe_Bar", -1, "&Game Executable", "", None, true},
        {ExeViewAll_Bar, "ExeViewAll_Bar", -1, "&View All", "", Exe_Bar, true},
        {ExeAdd_Bar, "ExeAdd_Bar", -1, "&Add", "", Exe_Bar, true},
        {ExeAddManual_Bar, "ExeAddManual_Bar", -1, "&Manual", "", ExeAdd_Bar, true},
        {ExeAddScan_Bar, "ExeAddScan_Bar", -1, "&Scan", "", ExeAdd_Bar, true},
        {ExeEdit_Bar, "ExeEdit_Bar", -1, "&Edit", "", Exe_Bar, true},
        {ExeDelete_Bar, "ExeDelete_Bar", -1, "&Delete", "", Exe_Bar, true},
        {Game_Bar, "Game_Bar", -1, "&Modification Subdirectory", "", None, true},
        {GameViewAll_Bar, "GameViewAll_Bar", -1, "&View All", "", Game_Bar, true},
        {GameAdd_Bar, "GameAdd_Bar", -1, "&Add", "", Game_Bar, true},
        {GameAddManual_Bar, "GameAddManual_Bar", -1, "&Manual", "", GameAdd_Bar, true},
        {GameAddScan_Bar, "GameAddScan_Bar", -1, "&Scan", "", GameAdd_Bar, true},
        {GameEdit_Bar, "GameEdit_Bar", -1, "&Edit", "", Game_Bar, true},
        {GameDelete_Bar, "GameDelete_Bar", -1, "&Delete", "", Game_Bar, true},
        {Mem_Bar, "Mem_Bar", -1, "&Memory", "", None, true},
        {MemViewAll_Bar, "MemViewAll_Bar", -1, "&View All", "", Mem_Bar, true},
        {MemEdit_Bar, "MemEdit_Bar", -1, "&Edit", "", Mem_Bar, true},
        {VideoProfiles_Bar, "VideoProfiles_Bar", -1, "&Video Profiles", "", None, true},
        {VideoProfilesAdd_Bar, "VideoProfilesAdd_Bar", -1, "&Add", "", VideoProfiles_Bar, true},
        {VideoProfilesEdit_Bar, "VideoProfilesEdit_Bar", -1, "&Edit", "", VideoProfiles_Bar, true},
        {VideoProfilesDelete_Bar, "VideoProfilesDelete_Bar", -1, "&Delete", "", VideoProfiles_Bar, true},
        {Scripts_Bar, "Scripts_Bar", -1, "&Player Script", "", None, true},
        {ScriptsViewAll_Bar, "ScriptsViewAll_Bar", -1, "&View All", "", Scripts_Bar, true},
        {ScriptsAdd_Bar, "ScriptsAdd_Bar", -1, "&Add Script to List", "", Scripts_Bar, true},
        {ScriptsEdit_Bar, "ScriptsEdit_Bar", -1, "&Edit Script's List Name", "", Scripts_Bar, true},
        {ScriptsCopy_Bar, "ScriptsCopy_Bar", -1, "Co&py Script", "", Scripts_Bar, true},
        {ScriptsDelete_Bar, "ScriptsDelete_Bar", -1, "&Delete Script From Harddrive", "", Scripts_Bar, true},
        {SetupFoundry_Bar, "SetupFoundry_Bar", -1, "&Open in Setup Foundry !", "F3", Scripts_Bar, true},
        {ScriptNew_Bar, "ScriptNew_Bar", -1, "&New Script", "", Scripts_Bar, true},
        {ScriptsOpen_Bar, "ScriptsOpen_Bar", -1, "Open in Text &Editor", "", Scripts_Bar, true},
        {ScriptEditorChangeDefault_Bar, "ScriptEditorChangeDefault_Bar", -1, "&Change Default Text Editor", "", Scripts_Bar, true},
        {Demo_Bar, "Demo_Bar", -1, "&Demos", "", None, true},
        {DemoViewAll_Bar, "DemoViewAll_Bar", -1, "&View All", "", Demo_Bar, true},
        {DemoAdd_Bar, "DemoAdd_Bar", -1, "&Add", "", Demo_Bar, true},
        {DemoEdit_Bar, "DemoEdit_Bar", -1, "&Edit", "", Demo_Bar, true},
        {DemoDelete_Bar, "DemoDelete_Bar", -1, "&Delete", "", Demo_Bar, true},
        {Server_Bar, "Server_Bar", -1, "&Server", "", None, true},
        {ServerViewAll_Bar, "ServerViewAll_Bar", -1, "&View All", "", Server_Bar, true},
        {ServerAdd_Bar, "ServerAdd_Bar", -1, "&Add", "", Server_Bar, true},
        {ServerAddCurrentGameSpy_Bar, "ServerAddCurrentGameSpy_Bar", -1, "&Current GameSpy Server(s)", "", ServerAdd_Bar, true},
        {ServerAddManual_Bar, "ServerAddManual_Bar", -1, "&Manual", "", ServerAdd_Bar, true},
        {ServerEdit_Bar, "ServerEdit_Bar", -1, "&Edit", "", Server_Bar, true},
        {ServerCopy_Bar, "ServerCopy_Bar", -1, "Co&py", "", Server_Bar, true},
        {ServerDelete_Bar, "ServerDelete_Bar", -1, "&Delete", "", Server_Bar, true},
        {GL_Bar, "GL_Bar", -1, "&GL", "", None, true},
        {GL_Defaults_Bar, "GL_Defaults_Bar", -1, "Reset to &Defaults", "", GL_Bar, false},
        {GL_Speed_Bar_0, "GL_Speed_Bar", 0, "Reset for Speed (&No Overclocking)", "", GL_Bar, false},
        {GL_Speed_Bar_1, "GL_Speed_Bar", 1, "Reset for &Speed (Overclocked)", "", GL_Bar, false},
        {GL_Beauty_Bar, "GL_Beauty_Bar", -1, "Reset for &Beauty", "", GL_Bar, false},
        {Help_Bar, "Help_Bar", -1, "&Help", "", None, true},
        {HelpView_Bar, "HelpView_Bar", -1, "&Lorvane 3D Help Topics", "F1", Help_Bar, true},
        {WhatsThis_Bar, "WhatsThis_Bar", -1, "&What's This?", "", Help_Bar, true},
        {WebSite_Bar, "WebSite_Bar", -1, "Lorvane 3D &Web Site", "", Help_Bar, true},
        {HelpAbout_Bar, "HelpAbout_Bar", -1, "&About Lorvane 3D", "", Help_Bar, true},
        {Tools_Bar, "Tools_Bar", -1, "&Tools", "", None, true},
        {GameOutput_Bar, "GameOutput_Bar", -1, "&Output of the Last Game...", "", Tools_Bar, true},
        {DryRun_Bar, "DryRun_Bar", -1, "&Dry Run...", "", Tools_Bar, true},
        {SetUpGames_Bar, "SetUpGames_Bar", -1, "Set Up &Games...", "", Tools_Bar, true},
        {Setups_Bar, "Setups_Bar", -1, "S&etups", "", Tools_Bar, true},
        {KeepSetup_Bar, "KeepSetup_Bar", -1, "Keep This &Setup...", "", Setups_Bar, true},
        {KeepSetupChanges_Bar, "KeepSetupChanges_Bar", -1, "&Keep Changes", "", Setups_Bar, true},
        {DropSetupChanges_Bar, "DropSetupChanges_Bar", -1, "&Drop Changes", "", Setups_Bar, true},
        {ShowSetups_Bar, "ShowSetups_Bar", -1, "Set&ups...", "", Setups_Bar, true},
        {Setup_Bar_0, "Setup_Bar", 0, "", "", Setups_Bar, true},
        {Setup_Bar_1, "Setup_Bar", 1, "", "", Setups_Bar, true},
        {Setup_Bar_2, "Setup_Bar", 2, "", "", Setups_Bar, true},
        {Setup_Bar_3, "Setup_Bar", 3, "", "", Setups_Bar, true},
        {Setup_Bar_4, "Setup_Bar", 4, "", "", Setups_Bar, true},
        {Setup_Bar_5, "Setup_Bar", 5, "", "", Setups_Bar, true},
        {Setup_Bar_6, "Setup_Bar", 6, "", "", Setups_Bar, true},
        {Setup_Bar_7, "Setup_Bar", 7, "", "", Setups_Bar, true},
        {Setup_Bar_8, "Setup_Bar", 8, "", "", Setups_Bar, true},
        {ExportSettings_Bar, "ExportSettings_Bar", -1, "E&xport Settings...", "", Tools_Bar, true},
        {ImportSettings_Bar, "ImportSettings_Bar", -1, "&Import Settings...", "", Tools_Bar, true},
        {Backups_Bar, "Backups_Bar", -1, "&Backups...", "", Tools_Bar, true},
        {GameList_Bar, "GameList_Bar", -1, "Game &List...", "", Tools_Bar, true},
        {FileOrder_Bar, "FileOrder_Bar", -1, "&Which File Wins...", "", Tools_Bar, true},
        {ScriptCheck_Bar, "ScriptCheck_Bar", -1, "&Check Script...", "", Tools_Bar, true},
        {TakeLinks_Bar, "TakeLinks_Bar", -1, "&Take Game Links", "", Tools_Bar, true},
    };
    return rows;
}
// clang-format on

class MenuRows_ : public ::testing::TestWithParam<Written> {};

class Menus : public LauncherTest {
  protected:
    Menus() { AddGames(); }
};

}  // namespace

TEST_P(MenuRows_, IsAsWritten) {
    const Written& written = GetParam();
    const MenuRow& row = MenuRowOf(written.Item);
    EXPECT_EQ(row.Item, written.Item);
    EXPECT_STREQ(row.Name, written.Name);
    EXPECT_EQ(row.Index, written.Index);
    EXPECT_STREQ(row.Caption, written.Caption);
    EXPECT_STREQ(row.Key, written.Key);
    EXPECT_EQ(row.Parent, written.Parent);
    const LV_Frm window;
    const MenuItemState& state = window.Bar(written.Item);
    EXPECT_EQ(state.Caption, written.Caption);
    EXPECT_EQ(state.Enabled, written.Works);
    EXPECT_EQ(state.Visible, !Text(written.Caption).empty());
    EXPECT_FALSE(state.Checked);
}

INSTANTIATE_TEST_SUITE_P(All, MenuRows_, ::testing::ValuesIn(Table()), [](const auto& row) {
    return Text(row.param.Name) + (row.param.Index < 0 ? "" : std::to_string(row.param.Index));
});

TEST(MenuTable, HasNoMoreThanTheWrittenRows) {
    EXPECT_EQ(MenuRows().size(), Table().size());
}

TEST(MenuTable, KnowsFourKeys) {
    std::map<Text, MenuItem> keys;
    for (const MenuRow& row : MenuRows()) {
        if (*row.Key != '\0') {
            EXPECT_TRUE(keys.emplace(row.Key, row.Item).second) << row.Key;
        }
    }
    EXPECT_EQ(keys, (std::map<Text, MenuItem>{
                        {"F1", HelpView_Bar}, {"F2", Launch_Bar}, {"F3", SetupFoundry_Bar}, {"F12", Exit_Bar}}));
}

TEST(MenuTable, ThePicturesPopUpTheirMenus) {
    EXPECT_EQ(MenuOfPicture(0), Exe_Bar);
    EXPECT_EQ(MenuOfPicture(1), Game_Bar);
    EXPECT_EQ(MenuOfPicture(2), Mem_Bar);
    EXPECT_EQ(MenuOfPicture(3), Scripts_Bar);
    EXPECT_EQ(MenuOfPicture(4), Demo_Bar);
    EXPECT_EQ(MenuOfPicture(5), Server_Bar);
    EXPECT_EQ(MenuOfPicture(6), VideoProfiles_Bar);
}

TEST_F(Menus, APicturePopsUpItsMenu) {
    Menu_Pic_Click(launcher, 3);
    EXPECT_EQ(user.WindowCalls, (std::vector<Text>{"menu Scripts_Bar"}));
}

TEST_F(Menus, APictureOfAMenuOutOfUsePopsUpNothing) {
    window.Bar(Mem_Bar).Enabled = false;
    Menu_Pic_Click(launcher, 2);
    EXPECT_TRUE(user.WindowCalls.empty());
}

TEST_F(Menus, LaunchPressesTheLaunchButton) {
    Load();
    Menu_Click(launcher, Launch_Bar);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake\\lv_666.bat"}));
}

TEST_F(Menus, ViewCommandsPressesTheViewButton) {
    Load();
    user.Expect({"Viewing Commands", "Batch File = ", 0});
    Menu_Click(launcher, ViewCommands_Bar);
    EXPECT_TRUE(user.Asked.back().FixedWidth);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(Menus, CreateFilesOnlyPressesTheCreateButton) {
    Load();
    Menu_Click(launcher, CreateFileOnly_Bar);
    EXPECT_TRUE(system.Disk.FileExists("C:\\QUAKE\\lv_666.bat"));
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(Menus, AButtonOutOfUseIsNotPressed) {
    Load();
    window.DoIt_Cmd[2].Enabled = false;
    Menu_Click(launcher, CreateFileOnly_Bar);
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\lv_666.bat"));
}

TEST_F(Menus, AnItemOutOfUseDoesNothing) {
    Load();
    window.Bar(Launch_Bar).Enabled = false;
    Menu_Click(launcher, Launch_Bar);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(Menus, AnItemOfAMenuOutOfUseDoesNothing) {
    Load();
    window.Bar(File_Bar).Enabled = false;
    Menu_Click(launcher, Launch_Bar);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(Menus, AnItemWhoseWorkIsNotThereDoesNothing) {
    Load();
    for (const Written& row : Table()) {
        if (!row.Works) {
            Menu_Click(launcher, row.Item);
        }
    }
    EXPECT_TRUE(user.Asked.empty());
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(Menus, HideShowsAndHides) {
    window.Visible = true;
    Menu_Click(launcher, ShowLorvane_Bar);
    EXPECT_FALSE(window.Visible);
    Menu_Click(launcher, ShowLorvane_Bar);
    EXPECT_TRUE(window.Visible);
}

TEST_F(Menus, ExitEndsTheProgram) {
    Menu_Click(launcher, Exit_Bar);
    EXPECT_TRUE(user.ProgramEnded);
}

TEST_F(Menus, TheThreeSizesAreTheirRows) {
    Menu_Click(launcher, ShowAll_Bar_1);
    EXPECT_EQ(window.SizeMode, WindowSizeMode::Some);
    Menu_Click(launcher, ShowAll_Bar_2);
    EXPECT_EQ(window.SizeMode, WindowSizeMode::ButtonsOnly);
    Menu_Click(launcher, ShowAll_Bar_0);
    EXPECT_EQ(window.SizeMode, WindowSizeMode::All);
}

TEST_F(Menus, AlwaysOnTopTogglesItsCheckMark) {
    Menu_Click(launcher, AlwaysOnTop_Bar);
    EXPECT_TRUE(window.Bar(AlwaysOnTop_Bar).Checked);
}

TEST_F(Menus, RenameAsks) {
    user.InputAnswers.push_back(std::nullopt);
    Menu_Click(launcher, RenameButton_Bar);
    EXPECT_EQ(user.Inputs.size(), 1u);
}

TEST_F(Menus, TheScriptEditorOpens) {
    int opened = 0;
    launcher.OpenSetupFoundry = [&] { ++opened; };
    Menu_Click(launcher, SetupFoundry_Bar);
    EXPECT_EQ(opened, 1);
}

TEST_F(Menus, HelpOpens) {
    system.Disk.AddFile("C:\\LORVANE\\handbook\\handbook.hhp");
    Menu_Click(launcher, HelpView_Bar);
    EXPECT_EQ(user.Opened, (std::vector<Text>{"C:\\LORVANE\\handbook\\handbook.hhp"}));
}

TEST_F(Menus, WhatsThisPutsTheWindowInItsMode) {
    Menu_Click(launcher, WhatsThis_Bar);
    EXPECT_EQ(user.WindowCalls, (std::vector<Text>{"what's this"}));
}

TEST_F(Menus, TheWebSiteOpens) {
    run.HomePage = "https://lorvane3d.example/here";
    Menu_Click(launcher, WebSite_Bar);
    EXPECT_EQ(user.Opened, (std::vector<Text>{"https://lorvane3d.example/here"}));
}

TEST_F(Menus, AboutShows) {
    Text name;
    user.InAbout.push_back([&](About_Frm& form) { name = form.Name_Lbl.Caption; });
    run.VersionText = "1.06.0112 <Beta>";
    Menu_Click(launcher, HelpAbout_Bar);
    EXPECT_EQ(name, "Lorvane 3D 1.06.0112 <Beta>");
}

}  // namespace lv
