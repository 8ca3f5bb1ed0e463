#include "launcher/menu/menu_table.h"

#include <algorithm>
#include <iterator>

#include "launcher/links/links_menu.h"
#include "launcher/menu/catalog_menu.h"
#include "launcher/menu/transfer_menu.h"
#include "launcher/menu/video_profile_menu.h"
#include "launcher/menu/window_menu.h"
#include "launcher/played/game_list_frm.h"
#include "launcher/setups/setups_menu.h"
#include "launcher/window/game_end.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/window_life.h"

namespace lv {

namespace {

using enum MenuItem;

constexpr int kNoIndex = -1;

// A menu item presses its button, so a button that is out of use is not pressed.
template <int Button>
void PressDoIt(Launcher& launcher) {
    if (launcher.Window.DoIt_Cmd[Button].Enabled) {
        DoIt_Cmd_Click(launcher, Button);
    }
}

template <int Row>
void ShowAll(Launcher& launcher) {
    ShowAll_Bar_Click(launcher, Row);
}

template <int Index>
void StartOfBar(Launcher& launcher) {
    Setup_Bar_Click(launcher, Index);
}

// clang-format off
constexpr MenuRow kRows[] = {
    {File_Bar, "File_Bar", kNoIndex, "&File", "", None, nullptr},
    {Launch_Bar, "Launch_Bar", kNoIndex, "&Launch Me!", "F2", File_Bar, PressDoIt<0>},
    {ViewCommands_Bar, "ViewCommands_Bar", kNoIndex, "&View Commands", "", File_Bar, PressDoIt<1>},
    {CreateFileOnly_Bar, "CreateFileOnly_Bar", kNoIndex, "&Create Files Only", "", File_Bar, PressDoIt<2>},
    {ShowLorvane_Bar, "ShowLorvane_Bar", kNoIndex, "&Hide Lorvane 3D", "", File_Bar, ShowLorvane_Bar_Click},
    {Exit_Bar, "Exit_Bar", kNoIndex, "E&xit", "F12", File_Bar, Exit_Bar_Click},

    {Options_Bar, "Options_Bar", kNoIndex, "&Options", "", None, nullptr},
    {ShowAll_Bar_0, "ShowAll_Bar", 0, "Show &All Options", "", Options_Bar, ShowAll<0>},
    {ShowAll_Bar_1, "ShowAll_Bar", 1, "Show &Some Options", "", Options_Bar, ShowAll<1>},
    {ShowAll_Bar_2, "ShowAll_Bar", 2, "Show &Buttons Only", "", Options_Bar, ShowAll<2>},
    {AlwaysOnTop_Bar, "AlwaysOnTop_Bar", kNoIndex, "&Always On Top", "", Options_Bar, AlwaysOnTop_Bar_Click},
    {RenameButton_Bar, "RenameButton_Bar", kNoIndex, "&Rename Exec Button", "", Options_Bar, RenameButton_Bar_Click},

    {Exe_Bar, "Exe_Bar", kNoIndex, "&Game Executable", "", None, nullptr},
    {ExeViewAll_Bar, "ExeViewAll_Bar", kNoIndex, "&View All", "", Exe_Bar, ExeViewAll_Bar_Click},
    {ExeAdd_Bar, "ExeAdd_Bar", kNoIndex, "&Add", "", Exe_Bar, nullptr},
    {ExeAddManual_Bar, "ExeAddManual_Bar", kNoIndex, "&Manual", "", ExeAdd_Bar, ExeAddManual_Bar_Click},
    {ExeAddScan_Bar, "ExeAddScan_Bar", kNoIndex, "&Scan", "", ExeAdd_Bar, ExeAddScan_Bar_Click},
    {ExeEdit_Bar, "ExeEdit_Bar", kNoIndex, "&Edit", "", Exe_Bar, ExeEdit_Bar_Click},
    {ExeDelete_Bar, "ExeDelete_Bar", kNoIndex, "&Delete", "", Exe_Bar, ExeDelete_Bar_Click},

    {Game_Bar, "Game_Bar", kNoIndex, "&Modification Subdirectory", "", None, nullptr},
    {GameViewAll_Bar, "GameViewAll_Bar", kNoIndex, "&View All", "", Game_Bar, GameViewAll_Bar_Click},
    {GameAdd_Bar, "GameAdd_Bar", kNoIndex, "&Add", "", Game_Bar, nullptr},
    {GameAddManual_Bar, "GameAddManual_Bar", kNoIndex, "&Manual", "", GameAdd_Bar, GameAddManual_Bar_Click},
    {GameAddScan_Bar, "GameAddScan_Bar", kNoIndex, "&Scan", "", GameAdd_Bar, GameAddScan_Bar_Click},
    {GameEdit_Bar, "GameEdit_Bar", kNoIndex, "&Edit", "", Game_Bar, GameEdit_Bar_Click},
    {GameDelete_Bar, "GameDelete_Bar", kNoIndex, "&Delete", "", Game_Bar, GameDelete_Bar_Click},

    {Mem_Bar, "Mem_Bar", kNoIndex, "&Memory", "", None, nullptr},
    {MemViewAll_Bar, "MemViewAll_Bar", kNoIndex, "&View All", "", Mem_Bar, MemViewAll_Bar_Click},
    {MemEdit_Bar, "MemEdit_Bar", kNoIndex, "&Edit", "", Mem_Bar, MemEdit_Bar_Click},

    {VideoProfiles_Bar, "VideoProfiles_Bar", kNoIndex, "&Video Profiles", "", None, nullptr},
    {VideoProfilesAdd_Bar, "VideoProfilesAdd_Bar", kNoIndex, "&Add", "", VideoProfiles_Bar,
     VideoProfilesAdd_Bar_Click},
    {VideoProfilesEdit_Bar, "VideoProfilesEdit_Bar", kNoIndex, "&Edit", "", VideoProfiles_Bar,
     VideoProfilesEdit_Bar_Click},
    {VideoProfilesDelete_Bar, "VideoProfilesDelete_Bar", kNoIndex, "&Delete", "", VideoProfiles_Bar,
     VideoProfilesDelete_Bar_Click},

    {Scripts_Bar, "Scripts_Bar", kNoIndex, "&Player Script", "", None, nullptr},
    {ScriptsViewAll_Bar, "ScriptsViewAll_Bar", kNoIndex, "&View All", "", Scripts_Bar, ScriptsViewAll_Bar_Click},
    {ScriptsAdd_Bar, "ScriptsAdd_Bar", kNoIndex, "&Add Script to List", "", Scripts_Bar, ScriptsAdd_Bar_Click},
    {ScriptsEdit_Bar, "ScriptsEdit_Bar", kNoIndex, "&Edit Script's List Name", "", Scripts_Bar, ScriptsEdit_Bar_Click},
    {ScriptsCopy_Bar, "ScriptsCopy_Bar", kNoIndex, "Co&py Script", "", Scripts_Bar, ScriptsCopy_Bar_Click},
    {ScriptsDelete_Bar, "ScriptsDelete_Bar", kNoIndex, "&Delete Script From Harddrive", "", Scripts_Bar, ScriptsDelete_Bar_Click},
    {SetupFoundry_Bar, "SetupFoundry_Bar", kNoIndex, "&Open in Setup Foundry !", "F3", Scripts_Bar, SetupFoundry_Bar_Click},
    {ScriptNew_Bar, "ScriptNew_Bar", kNoIndex, "&New Script", "", Scripts_Bar, ScriptNew_Bar_Click},
    {ScriptsOpen_Bar, "ScriptsOpen_Bar", kNoIndex, "Open in Text &Editor", "", Scripts_Bar, ScriptsOpen_Bar_Click},
    {ScriptEditorChangeDefault_Bar, "ScriptEditorChangeDefault_Bar", kNoIndex, "&Change Default Text Editor", "", Scripts_Bar, ScriptEditorChangeDefault_Bar_Click},

    {Demo_Bar, "Demo_Bar", kNoIndex, "&Demos", "", None, nullptr},
    {DemoViewAll_Bar, "DemoViewAll_Bar", kNoIndex, "&View All", "", Demo_Bar, DemoViewAll_Bar_Click},
    {DemoAdd_Bar, "DemoAdd_Bar", kNoIndex, "&Add", "", Demo_Bar, DemoAdd_Bar_Click},
    {DemoEdit_Bar, "DemoEdit_Bar", kNoIndex, "&Edit", "", Demo_Bar, DemoEdit_Bar_Click},
    {DemoDelete_Bar, "DemoDelete_Bar", kNoIndex, "&Delete", "", Demo_Bar, DemoDelete_Bar_Click},

    {Server_Bar, "Server_Bar", kNoIndex, "&Server", "", None, nullptr},
    {ServerViewAll_Bar, "ServerViewAll_Bar", kNoIndex, "&View All", "", Server_Bar, ServerViewAll_Bar_Click},
    {ServerAdd_Bar, "ServerAdd_Bar", kNoIndex, "&Add", "", Server_Bar, nullptr},
    {ServerAddCurrentGameSpy_Bar, "ServerAddCurrentGameSpy_Bar", kNoIndex, "&Current GameSpy Server(s)", "", ServerAdd_Bar, ServerAddCurrentGameSpy_Bar_Click},
    {ServerAddManual_Bar, "ServerAddManual_Bar", kNoIndex, "&Manual", "", ServerAdd_Bar, ServerAddManual_Bar_Click},
    {ServerEdit_Bar, "ServerEdit_Bar", kNoIndex, "&Edit", "", Server_Bar, ServerEdit_Bar_Click},
    {ServerCopy_Bar, "ServerCopy_Bar", kNoIndex, "Co&py", "", Server_Bar, ServerCopy_Bar_Click},
    {ServerDelete_Bar, "ServerDelete_Bar", kNoIndex, "&Delete", "", Server_Bar, ServerDelete_Bar_Click},

    {GL_Bar, "GL_Bar", kNoIndex, "&GL", "", None, nullptr},
    {GL_Defaults_Bar, "GL_Defaults_Bar", kNoIndex, "Reset to &Defaults", "", GL_Bar, nullptr},
    {GL_Speed_Bar_0, "GL_Speed_Bar", 0, "Reset for Speed (&No Overclocking)", "", GL_Bar, nullptr},
    {GL_Speed_Bar_1, "GL_Speed_Bar", 1, "Reset for &Speed (Overclocked)", "", GL_Bar, nullptr},
    {GL_Beauty_Bar, "GL_Beauty_Bar", kNoIndex, "Reset for &Beauty", "", GL_Bar, nullptr},

    {Help_Bar, "Help_Bar", kNoIndex, "&Help", "", None, nullptr},
    {HelpView_Bar, "HelpView_Bar", kNoIndex, "&Lorvane 3D Help Topics", "F1", Help_Bar, HelpView_Bar_Click},
    {WhatsThis_Bar, "WhatsThis_Bar", kNoIndex, "&What's This?", "", Help_Bar, WhatsThis_Bar_Click},
    {WebSite_Bar, "WebSite_Bar", kNoIndex, "Lorvane 3D &Web Site", "", Help_Bar, WebSite_Bar_Click},
    {HelpAbout_Bar, "HelpAbout_Bar", kNoIndex, "&About Lorvane 3D", "", Help_Bar, HelpAbout_Bar_Click},

    {Tools_Bar, "Tools_Bar", kNoIndex, "&Tools", "", None, nullptr},
    {GameOutput_Bar, "GameOutput_Bar", kNoIndex, "&Output of the Last Game...", "", Tools_Bar, GameOutput_Bar_Click},
    {DryRun_Bar, "DryRun_Bar", kNoIndex, "&Dry Run...", "", Tools_Bar, DryRun_Bar_Click},
    {SetUpGames_Bar, "SetUpGames_Bar", kNoIndex, "Set Up &Games...", "", Tools_Bar, SetUpGames_Bar_Click},
    {Setups_Bar, "Setups_Bar", kNoIndex, "S&etups", "", Tools_Bar, nullptr},
    {KeepSetup_Bar, "KeepSetup_Bar", kNoIndex, "Keep This &Setup...", "", Setups_Bar, KeepSetup_Bar_Click},
    {KeepSetupChanges_Bar, "KeepSetupChanges_Bar", kNoIndex, "&Keep Changes", "", Setups_Bar, KeepSetupChanges_Bar_Click},
    {DropSetupChanges_Bar, "DropSetupChanges_Bar", kNoIndex, "&Drop Changes", "", Setups_Bar, DropSetupChanges_Bar_Click},
    {ShowSetups_Bar, "ShowSetups_Bar", kNoIndex, "Set&ups...", "", Setups_Bar, ShowSetups_Bar_Click},
    {Setup_Bar_0, "Setup_Bar", 0, "", "", Setups_Bar, StartOfBar<0>},
    {Setup_Bar_1, "Setup_Bar", 1, "", "", Setups_Bar, StartOfBar<1>},
    {Setup_Bar_2, "Setup_Bar", 2, "", "", Setups_Bar, StartOfBar<2>},
    {Setup_Bar_3, "Setup_Bar", 3, "", "", Setups_Bar, StartOfBar<3>},
    {Setup_Bar_4, "Setup_Bar", 4, "", "", Setups_Bar, StartOfBar<4>},
    {Setup_Bar_5, "Setup_Bar", 5, "", "", Setups_Bar, StartOfBar<5>},
    {Setup_Bar_6, "Setup_Bar", 6, "", "", Setups_Bar, StartOfBar<6>},
    {Setup_Bar_7, "Setup_Bar", 7, "", "", Setups_Bar, StartOfBar<7>},
    {Setup_Bar_8, "Setup_Bar", 8, "", "", Setups_Bar, StartOfBar<8>},
    {ExportSettings_Bar, "ExportSettings_Bar", kNoIndex, "E&xport Settings...", "", Tools_Bar, ExportSettings_Bar_Click},
    {ImportSettings_Bar, "ImportSettings_Bar", kNoIndex, "&Import Settings...", "", Tools_Bar, ImportSettings_Bar_Click},
    {Backups_Bar, "Backups_Bar", kNoIndex, "&Backups...", "", Tools_Bar, Backups_Bar_Click},
    {GameList_Bar, "GameList_Bar", kNoIndex, "Game &List...", "", Tools_Bar, GameList_Bar_Click},
    {FileOrder_Bar, "FileOrder_Bar", kNoIndex, "&Which File Wins...", "", Tools_Bar, FileOrder_Bar_Click},
    {ScriptCheck_Bar, "ScriptCheck_Bar", kNoIndex, "&Check Script...", "", Tools_Bar, ScriptCheck_Bar_Click},
    {TakeLinks_Bar, "TakeLinks_Bar", kNoIndex, "&Take Game Links", "", Tools_Bar, TakeLinks_Bar_Click},
};
// clang-format on

static_assert(std::size(kRows) == kMenuItems);

constexpr MenuItem kPictureMenus[kMenuPictures] = {Exe_Bar,  Game_Bar,   Mem_Bar,          Scripts_Bar,
                                                   Demo_Bar, Server_Bar, VideoProfiles_Bar};

}  // namespace

std::span<const MenuRow> MenuRows() {
    return kRows;
}

const MenuRow& MenuRowOf(MenuItem item) {
    return kRows[static_cast<std::size_t>(item)];
}

bool IsMenu(MenuItem item) {
    return std::ranges::any_of(kRows, [item](const MenuRow& row) { return row.Parent == item; });
}

MenuState MakeMenuState() {
    MenuState state;
    for (std::size_t i = 0; i < kMenuItems; ++i) {
        state[i].Caption = kRows[i].Caption;
        state[i].Visible = *kRows[i].Caption != '\0';
        state[i].Enabled = kRows[i].Click != nullptr || IsMenu(kRows[i].Item);
    }
    return state;
}

void Menu_Click(Launcher& launcher, MenuItem item) {
    const MenuRow& row = MenuRowOf(item);
    for (MenuItem level = item; level != None; level = MenuRowOf(level).Parent) {
        if (!launcher.Window.Bar(level).Enabled) {
            return;
        }
    }
    if (row.Click != nullptr) {
        row.Click(launcher);
    }
}

MenuItem MenuOfPicture(int index) {
    return kPictureMenus[index];
}

void Menu_Pic_Click(Launcher& launcher, int index) {
    const MenuItem menu = MenuOfPicture(index);
    if (launcher.Window.Bar(menu).Enabled) {
        launcher.run.User.PopUpMenu(MenuRowOf(menu).Name);
    }
}

}  // namespace lv
