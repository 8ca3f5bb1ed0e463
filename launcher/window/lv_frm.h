// launcher/window/lv_frm.h
//
// The main window. Its controls are the live state: each click writes its key at once, and a launch reads the controls
// as they stand.

#pragma once

#include <array>

#include "foundation/controls.h"
#include "foundation/window_services.h"
#include "launch/option_boxes.h"
#include "launcher/menu/button_bar.h"
#include "launcher/menu/menu_table.h"
#include "launcher/window/window_size.h"

namespace lv {

/// How the window stands on the screen. Without a tray nothing could bring a hidden window back, so it goes to the
/// task bar instead.
enum class Presence { Shown, Minimised, Hidden };

struct LV_Frm {
    LV_Frm();

    Text Caption = "Lorvane 3D";
    bool Visible = false;
    bool EverShown = false;      // before that the window is hidden, tray or not
    bool TrayIcon = false;       // the form shows the icon while this is set
    bool TrayAvailable = false;  // there was a tray when the window was last hidden
    bool CanUnload = false;      // Exit_Bar was clicked

    lv::WindowPlacement Placement;  // the form keeps place and state current; the load sets them
    lv::WindowSizeMode SizeMode = WindowSizeMode::All;
    PixelSize Size;             // the outer size that the form is to have
    PixelSize Remembered;       // what Size_Tmr puts back
    bool SizeChanging = false;  // the program changes the size: not the user's doing
    bool Size_Tmr_Enabled = false;

    Text ChangedIniLines;  // what the last launch set in Unreal's ini

    Label Hint_Lbl;  // what to do next

    Panel Exe_Pan;
    Panel Mod_Pan;
    Panel Memory_Pan;
    Panel PlayerScript_Pan;
    Panel Demo_Pan;
    Panel Server_Pan;
    Panel VideoProfile_Pan;
    Panel QSpy_Pan;
    Panel OtherOpts_Pan;
    Panel Command_Pan;

    ImageCombo Exe_Cbo;
    ListBox Game_Cbo;
    ListBox Mem_Cbo;
    ListBox Script_Cbo;
    ListBox Demo_Cbo;
    ListBox Server_Cbo;
    ListBox Map_Cbo;
    ListBox VideoProfiles_Cbo;
    TextBox CommandLineAdditions_Txt;

    std::array<CheckBox, kOptionCount> Option_Chk;  // see Box

    CommandButton SetupFoundry_Cmd;
    CommandButton VideoProfileEdit_Cmd;
    std::array<CommandButton, 3> DoIt_Cmd;

    std::array<CommandButton, kBarButtons> ButtonBar_Cmd;
    std::array<Picture, kMenuPictures> Menu_Pic;

    MenuState Menu = MakeMenuState();

    CheckBox& Box(Option option) { return Option_Chk[static_cast<std::size_t>(option)]; }
    [[nodiscard]] const CheckBox& Box(Option option) const { return Option_Chk[static_cast<std::size_t>(option)]; }

    MenuItemState& Bar(MenuItem item) { return Menu[static_cast<std::size_t>(item)]; }
    [[nodiscard]] const MenuItemState& Bar(MenuItem item) const { return Menu[static_cast<std::size_t>(item)]; }
};

}  // namespace lv
