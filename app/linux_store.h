// app/linux_store.h
//
// Where this user's settings and drives lie on Linux.

#pragma once

#include "foundation/open_store.h"
#include "platform/linux/files/linux_files.h"

namespace lv {

DriveDirectories OwnDrives();
StoreWays OwnStore();

/// The same for who only reads: nothing is made, and the store need not allow to be written.
DriveDirectories OwnDrivesAsTheyAre();
StoreWays OwnStoreToRead();

}  // namespace lv
