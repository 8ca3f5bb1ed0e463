// launcher/setups/setups_frm.h
//
// The window of the setups: which there are, and what can be done with them.

#pragma once

#include "foundation/modal_window.h"
#include "launcher/launcher.h"

namespace lv {

struct Setups_Frm : ModalWindow {
    explicit Setups_Frm(Launcher& owner);

    Launcher& launcher;

    Label Setups_Lbl;
    ListBox Setups_Lst;  // in the order of Launcher::Setups
    CommandButton StartSetup_Cmd;
    CommandButton PickSetup_Cmd;
    CommandButton KeepSetupChanges_Cmd;
    CommandButton RenameSetup_Cmd;
    CommandButton DeleteSetup_Cmd;
    CommandButton MakeLauncher_Cmd;
    CommandButton CloseSetups_Cmd;

    bool StartChosen = false;  // once the window is gone
    int Chosen = 0;            // the setup's number
};

void Setups_Lst_Click(Setups_Frm& form);

/// Chooses the row to be started, and closes. A double click on it and Enter do the same.
void StartSetup_Cmd_Click(Setups_Frm& form);

/// Picks the row and closes.
void PickSetup_Cmd_Click(Setups_Frm& form);

/// The picked setup becomes what the main window holds. For its row alone.
void KeepSetupChanges_Cmd_Click(Setups_Frm& form);

void RenameSetup_Cmd_Click(Setups_Frm& form);

/// Asks first.
void DeleteSetup_Cmd_Click(Setups_Frm& form);

/// Asks where, and puts launchers of the row there.
void MakeLauncher_Cmd_Click(Setups_Frm& form);

void CloseSetups_Cmd_Click(Setups_Frm& form);

}  // namespace lv
