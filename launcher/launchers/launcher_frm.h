// launcher/launchers/launcher_frm.h
//
// The dialog that asks where a setup is to get its launchers.

#pragma once

#include "foundation/modal_window.h"
#include "launcher/launchers/setup_launchers.h"

namespace lv {

struct Launcher_Frm : ModalWindow {
    Launcher_Frm(Launcher& owner, const Setup& setup);

    Label LauncherFor_Lbl;
    CheckBox LauncherInMenu_Chk;
    CheckBox LauncherOnDesktop_Chk;
    CommandButton WriteLauncher_Cmd;
    CommandButton Cancel_Cmd;

    bool Chosen = false;  // once the window is gone
};

/// For either box.
void LauncherPlace_Chk_Click(Launcher_Frm& form);
void Launcher_Write_Cmd_Click(Launcher_Frm& form);
/// Also for the window's close box.
void Launcher_Cancel_Cmd_Click(Launcher_Frm& form);

/// Asks where, with the last answer ticked, and makes the launchers there.
void OfferLaunchers(Launcher& launcher, const Setup& setup);

}  // namespace lv
