// launcher/setups/setups_menu.h
//
// What the menu of the setups does, and how it follows the window.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// The items of single setups, Setup_Bar(0) to (8).
constexpr int kSetupBars = 9;

/// Asks for a name and keeps what the window holds.
void KeepSetup_Bar_Click(Launcher& launcher);

/// The picked setup becomes what the window holds, or the window what the setup says.
void KeepSetupChanges_Bar_Click(Launcher& launcher);
void DropSetupChanges_Bar_Click(Launcher& launcher);

/// Opens the window of the setups, and starts what was chosen to be started in it.
void ShowSetups_Bar_Click(Launcher& launcher);

/// Starts the setup that the item stands for.
void Setup_Bar_Click(Launcher& launcher, int index);

/// The number of the setup that the item stands for; 0 if it stands for none. They are the first nine, but the picked
/// one always has an item.
int SetupOfBar(const SetupList& setups, int index);

/// Brings the menu in line: the names, the check mark of the picked one with "(changed)" where it is, and whether there
/// are changes to be kept or dropped.
void ShowSetupsInMenu(Launcher& launcher);

}  // namespace lv
