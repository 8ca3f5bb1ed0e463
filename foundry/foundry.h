// foundry/foundry.h
//
// The script editor as the launcher knows it.

#pragma once

#include "foundry/editor/setup_foundry.h"
#include "launcher/launcher.h"

namespace lv {

/// Gives the launcher Half-Life's settings as a script and the way back, and what looks into its scripts.
void ConnectFoundry(Launcher& launcher);

/// Gives its launcher the editor's window.
void ConnectEditor(SetupFoundry& foundry);

}  // namespace lv
