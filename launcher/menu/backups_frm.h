// launcher/menu/backups_frm.h
//
// The window of the settings' backups: when each was made, what differs from it now, and the click that brings it back.

#pragma once

#include "foundation/modal_window.h"
#include "transfer/backups.h"
#include "transfer/import_settings.h"

namespace lv {

struct KeptSettings {
    Text When;
    std::vector<StoredValue> Values;  // of an intact one
    Error Fault;                      // why it cannot be brought back
    SettingChanges Changes;           // what bringing it back changes
};

struct Backups_Frm : ModalWindow {
    explicit Backups_Frm(Run& owner);

    Label Backups_Lbl;
    ListBox Backups_Lst;
    Label Backup_Lbl;  // what is to be said of the selected one
    CommandButton BringBackup_Cmd;
    CommandButton CloseBackups_Cmd;

    std::vector<KeptSettings> Kept;  // newest first, a row each
    std::optional<ImportedSettings> BroughtBack;
};

void Backups_Lst_Click(Backups_Frm& form);
/// Asks, and closes the window if the settings could be replaced.
void Backups_BringBackup_Cmd_Click(Backups_Frm& form);
void Backups_CloseBackups_Cmd_Click(Backups_Frm& form);

}  // namespace lv
