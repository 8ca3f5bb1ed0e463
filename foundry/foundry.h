// foundry/foundry.h
//
// The script editor as the launcher knows it.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// Gives the launcher what the script editor does for it.
void ConnectFoundry(Launcher& launcher);

}  // namespace lv
