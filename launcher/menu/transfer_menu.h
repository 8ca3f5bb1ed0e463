// launcher/menu/transfer_menu.h
//
// What the items of the menu Tools do that concern the settings as a whole: to a file, from a file, back to a copy.

#pragma once

#include "launcher/launcher.h"

namespace lv {

void ExportSettings_Bar_Click(Launcher& launcher);

/// Asks for the file, whether it may take the place of what is there, and where the games lie that are elsewhere here;
/// each of these can be left. The window shows the new state then.
void ImportSettings_Bar_Click(Launcher& launcher);

/// The same for a file that is known.
void ImportSettingsFrom(Launcher& launcher, TextView path);

void Backups_Bar_Click(Launcher& launcher);

}  // namespace lv
