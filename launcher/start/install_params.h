// launcher/start/install_params.h
//
// The question for the 3D chipset, asked before the first run's main window.

#pragma once

#include <array>

#include "foundation/controls.h"
#include "foundation/run.h"

namespace lv {

/// Centred on the screen. The form closes when Closed is set; closing it by its frame is OK_Cmd(1).
struct InstallParams_Frm {
    InstallParams_Frm();

    Text Caption = "Lorvane 3D Setup";
    Panel Hardware_Fra;
    Label Label6;
    ListBox VidCard_Cbo;
    std::array<CommandButton, 2> OK_Cmd;

    bool DialogResult = false;
    bool Closed = false;
};

/// Selects "Voodoo", as a pick would.
void InstallParams_Load(Run& run, InstallParams_Frm& form);

/// Writes the number of the picked chipset: 0, 1, 2, and 100 for the last row.
void InstallParams_VidCard_Cbo_Click(Run& run, InstallParams_Frm& form);

/// 0 asks once more and closes with DialogResult set; declined, the dialog stays. 1 cancels.
void InstallParams_OK_Cmd_Click(Run& run, InstallParams_Frm& form, int index);

/// Shows the dialog until it is accepted. False if the user ended the program instead.
bool AskForChipset(Run& run);

/// Setup was cancelled: "&OK" ends the program and gives false, "&Not OK" shows what was cancelled again.
bool GoOnAfterCancel(Run& run);

}  // namespace lv
