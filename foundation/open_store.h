// foundation/open_store.h
//
// The store opened at the start of a run, with what the user is asked and told if it does not open at once.

#pragma once

#include <functional>
#include <memory>

#include "foundation/user_interface.h"
#include "platform/settings_backing.h"

namespace lv {

using OpenedStore = Result<std::unique_ptr<SettingsBacking>>;

/// The system's two ways to its store.
struct StoreWays {
    std::function<OpenedStore()> Open;      // 55 another program holds it, 61 the disk is full
    std::function<OpenedStore()> OpenCopy;  // in memory: what is stored can be read, what is written is not kept
};

/// The store; on a full disk, of which the user is told, a copy of what is stored. Null if the user does not want to
/// wait for another program any longer, or was told why there is no store. No window is there yet, and no run.
std::unique_ptr<SettingsBacking> OpenStore(UserInterface& user, const StoreWays& ways);

/// Tells that the drives, which the system keeps among the user's files, could not be made.
void TellOfDrives(UserInterface& user, const Error& failed);

}  // namespace lv
