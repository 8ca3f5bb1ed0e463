// launcher/setups/row_picks.h
//
// Picks in the main window's lists by what a row stands for. Each selects the row as its user would and runs the list's
// handler; without such a row nothing changes and the result is false. Of rows that stand for the same, a selected one
// stays, else the first is picked.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// By the program's path, "/" and letter case without meaning. The one that is picked already is left as it is.
bool PickExecutable(Launcher& launcher, TextView path);

/// By what a launch gets: "-game ctf", "-winmem 16", "playdemo demo1.dem". Where two differ in letter case alone, the
/// one as spelled is meant.
bool PickModification(Launcher& launcher, TextView payload);
bool PickMemory(Launcher& launcher, TextView payload);
bool PickDemo(Launcher& launcher, TextView payload);

/// By the script's full path, in any letter case.
bool PickScript(Launcher& launcher, TextView path);

/// By the whole record, "host;port;type;password", to the letter: the password is part of it.
bool PickServer(Launcher& launcher, TextView record);

/// By the name that the row shows, "START".
bool PickMap(Launcher& launcher, TextView name);

/// By the profile's name.
bool PickVideoProfile(Launcher& launcher, TextView name);

}  // namespace lv
