// launcher/menu/window_menu.h
//
// What the menu's items do that belong to no list: renaming the launch button, always on top, the editors, help.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// Trimmed, in lower case, but for the first letter and the one behind the first blank.
Text NameNice(TextView text);

/// A caption as a tool tip shows it: "&&" is "&", any other "&" goes.
Text WithoutAccessKeys(TextView caption);

/// Asks for a new caption of the launch button, which lasts until the program ends.
void RenameButton_Bar_Click(Launcher& launcher);

void AlwaysOnTop_Bar_Click(Launcher& launcher);

/// The check mark and the window, without a write: as the start does it.
void SetAlwaysOnTop(Launcher& launcher, bool onTop);

/// Opens the selected script in Setup Foundry, if the program has it.
void SetupFoundry_Bar_Click(Launcher& launcher);

/// Looks into the scripts of the picked game, if the program can.
void FileOrder_Bar_Click(Launcher& launcher);
void ScriptCheck_Bar_Click(Launcher& launcher);

void ScriptEditorChangeDefault_Bar_Click(Launcher& launcher);
void ScriptsOpen_Bar_Click(Launcher& launcher);

void HelpView_Bar_Click(Launcher& launcher);
void WhatsThis_Bar_Click(Launcher& launcher);
void WebSite_Bar_Click(Launcher& launcher);
void HelpAbout_Bar_Click(Launcher& launcher);

/// Shows what a launch would write and start now, where the program can tell.
void DryRun_Bar_Click(Launcher& launcher);

}  // namespace lv
