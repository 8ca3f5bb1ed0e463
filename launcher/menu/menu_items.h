// launcher/menu/menu_items.h
//
// The items of the main window's menu bar, and their live state.

#pragma once

#include <array>
#include <cstddef>

#include "foundation/text.h"

namespace lv {

/// In the order of the menu bar, each menu before its items. None is the parent of the menus themselves.
enum class MenuItem : int {
    None = -1,
    File_Bar,
    Launch_Bar,
    ViewCommands_Bar,
    CreateFileOnly_Bar,
    ShowLorvane_Bar,
    Exit_Bar,
    Options_Bar,
    ShowAll_Bar_0,
    ShowAll_Bar_1,
    ShowAll_Bar_2,
    AlwaysOnTop_Bar,
    RenameButton_Bar,
    Exe_Bar,
    ExeViewAll_Bar,
    ExeAdd_Bar,
    ExeAddManual_Bar,
    ExeAddScan_Bar,
    ExeEdit_Bar,
    ExeDelete_Bar,
    Game_Bar,
    GameViewAll_Bar,
    GameAdd_Bar,
    GameAddManual_Bar,
    GameAddScan_Bar,
    GameEdit_Bar,
    GameDelete_Bar,
    Mem_Bar,
    MemViewAll_Bar,
    MemEdit_Bar,
    VideoProfiles_Bar,
    VideoProfilesAdd_Bar,
    VideoProfilesEdit_Bar,
    VideoProfilesDelete_Bar,
    Scripts_Bar,
    ScriptsViewAll_Bar,
    ScriptsAdd_Bar,
    ScriptsEdit_Bar,
    ScriptsCopy_Bar,
    ScriptsDelete_Bar,
    SetupFoundry_Bar,
    ScriptNew_Bar,
    ScriptsOpen_Bar,
    ScriptEditorChangeDefault_Bar,
    Demo_Bar,
    DemoViewAll_Bar,
    DemoAdd_Bar,
    DemoEdit_Bar,
    DemoDelete_Bar,
    Server_Bar,
    ServerViewAll_Bar,
    ServerAdd_Bar,
    ServerAddCurrentGameSpy_Bar,
    ServerAddManual_Bar,
    ServerEdit_Bar,
    ServerCopy_Bar,
    ServerDelete_Bar,
    GL_Bar,
    GL_Defaults_Bar,
    GL_Speed_Bar_0,
    GL_Speed_Bar_1,
    GL_Beauty_Bar,
    Help_Bar,
    HelpView_Bar,
    WhatsThis_Bar,
    WebSite_Bar,
    HelpAbout_Bar,
    Tools_Bar,
    GameOutput_Bar,
    DryRun_Bar,
    SetUpGames_Bar,
    Setups_Bar,
    KeepSetup_Bar,
    KeepSetupChanges_Bar,
    DropSetupChanges_Bar,
    ShowSetups_Bar,
    Setup_Bar_0,
    Setup_Bar_1,
    Setup_Bar_2,
    Setup_Bar_3,
    Setup_Bar_4,
    Setup_Bar_5,
    Setup_Bar_6,
    Setup_Bar_7,
    Setup_Bar_8,
    ExportSettings_Bar,
    ImportSettings_Bar,
    Backups_Bar,
    GameList_Bar,
    FileOrder_Bar,
    ScriptCheck_Bar,
    TakeLinks_Bar,
    Count,
};

constexpr std::size_t kMenuItems = static_cast<std::size_t>(MenuItem::Count);

struct MenuItemState {
    Text Caption;
    bool Enabled = true;
    bool Visible = true;
    bool Checked = false;
};

using MenuState = std::array<MenuItemState, kMenuItems>;

}  // namespace lv
