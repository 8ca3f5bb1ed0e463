// launcher/launchers/setup_shortcut.h
//
// A setup as a shortcut of the system's: what it is called, shows and starts.

#pragma once

#include "launcher/launcher.h"

namespace lv {

/// The file of its desktop entry, "lorvane3d-setup-duel.desktop": lower-case letters, digits and "-" stay, any other
/// byte is "_" and two digits, and what is too long for a file ends in a check sum. One setup has one such name.
Text EntryNameOf(TextView setupName);

/// The line by which the entry is told to be this setup's, whatever the letter case of its name. UTF-8.
Text EntryMarkOf(TextView setupName);

/// What starts the setup: "--setup=Duel", and what goes wrong is told in a window.
std::vector<Text> WordsThatStart(TextView setupName);

/// The desktop entry, UTF-8. `name` and `comment` are shown; `program` and `picture` are host paths, UTF-8; an empty
/// picture is the program's own.
Text EntryOfSetup(const Setup& setup, TextView comment, TextView program, TextView picture);

/// All of it, with the picture that the list of games shows for the setup's program.
Shortcut ShortcutOf(const Launcher& launcher, const Setup& setup);

}  // namespace lv
