// wizard/wizard.h
//
// The setup wizard as the launcher knows it.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// Shows the wizard; true if the user went through with it.
bool ShowInstallWizard(Launcher& launcher);

/// The same with rows that are known already.
bool ShowInstallScan(Launcher& launcher, const std::vector<KnownGame>& known);

/// Gives the launcher its wizard.
void ConnectWizard(Launcher& launcher);

}  // namespace lv
