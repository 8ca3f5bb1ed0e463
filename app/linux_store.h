// app/linux_store.h
//
// Where this user's settings and drives lie on Linux.

#pragma once

#include "foundation/open_store.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/settings/settings_file.h"

namespace lv {

DriveDirectories OwnDrives();
/// `patience` as SqliteSettings::Open has it.
StoreWays OwnStore(int patience = kPatienceBeforeAsking);

/// The same for who only reads: nothing is made, and the store need not allow to be written.
DriveDirectories OwnDrivesAsTheyAre();
StoreWays OwnStoreToRead();

}  // namespace lv
