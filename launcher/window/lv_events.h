// launcher/window/lv_events.h
//
// The main window's events: one function each.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// A click on an option check box, its new value in place: writes its key, clears what it excludes, and does what the
/// box is for beyond that.
void Option_Chk_Click(Launcher& launcher, Option option);

/// Sets a box as its user would: if the value changes, its click runs.
void SetOption(Launcher& launcher, Option option, int value);

/// The change of game: runs on a pick, also of the same row.
void Exe_Cbo_Click(Launcher& launcher);

void Game_Cbo_Click(Launcher& launcher);
void Script_Cbo_Click(Launcher& launcher);
void Mem_Cbo_Click(Launcher& launcher);
void Demo_Cbo_Click(Launcher& launcher);
void Server_Cbo_Click(Launcher& launcher);
void CommandLineAdditions_Txt_Change(Launcher& launcher);

/// With a modification ticked and selected, its directory becomes the current one, otherwise the base directory;
/// the scripts follow.
void ApplyModification(Launcher& launcher);

/// The engine of today that is picked; null for any other program, and for none.
const Engine* SelectedEngine(const Launcher& launcher);

}  // namespace lv
