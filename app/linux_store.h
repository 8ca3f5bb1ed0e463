// app/linux_store.h
//
// Where this user's settings and drives lie on Linux.

#pragma once

#include "foundation/open_store.h"
#include "platform/linux/files/linux_files.h"

namespace lv {

DriveDirectories OwnDrives();
StoreWays OwnStore();

}  // namespace lv
