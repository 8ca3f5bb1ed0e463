// foundry/document/script_backup.h
//
// The copy that is kept of a script before this program writes it for the first time.

#pragma once

#include "foundation/run.h"

namespace lv {

/// Where the copy of a foreign script goes: C:\Q\my.cfg to C:\Q\my.SetupFoundry_Config_Backup.
Text BackupPathOf(TextView path);

/// Puts the copy over any of that name. Nothing to do for a script that is itself such a copy.
Error KeepBackup(Files& disk, TextView path);

}  // namespace lv
