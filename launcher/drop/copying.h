// launcher/drop/copying.h
//
// A copy of what was dropped, into a game: its questions, the copy itself, and the game picked for it.

#pragma once

#include <functional>
#include <optional>

#include "launch/launch_names.h"
#include "launcher/drop/dropped_thing.h"
#include "launcher/drop/listed_programs.h"

namespace lv {

struct Copying {
    Launcher& At;
    const DroppedThing& Thing;
    const ListedProgram& Into;
    TextView Others;  // what each question says of what else was dropped

    [[nodiscard]] Run& TheRun() const { return At.run; }
    [[nodiscard]] Files& Disk() const { return At.run.System.Disk; }

    /// The dropped file's.
    [[nodiscard]] Text Name() const;
    /// "This archive was dropped -->" and its path.
    [[nodiscard]] Text Intro() const;
    /// The index of the pressed button.
    [[nodiscard]] Index Ask(TextView text, TextView buttons) const;
};

/// Whether something is there already of that name, file or directory.
bool IsTaken(Files& disk, TextView path);

/// Asks for another name until it is one, and tells `rule` of one that is not; nothing if the user gives up.
std::optional<Text> AskForName(Run& run, TextView prompt, TextView offered, const std::function<bool(TextView)>& fits,
                               TextView rule);

/// Whether a launch of the program takes the map, without its ending, or the script of that name.
bool LaunchTakes(const Copying& copy, NameKind kind, TextView name);

/// The directory that the copy is for: the base game's, or the ticked modification's if the program is the picked one.
Text DataDirectory(const Copying& copy);

/// Picks the program, with what plays the data directory; an empty one leaves the modification as it is.
bool PickProgram(const Copying& copy, TextView data);

/// Copies under that name, with the directory made for it if there is none. False if that failed: the user was told,
/// and a directory that was made is not left behind. A link that leads out of the game is asked about.
bool CopyInto(const Copying& copy, const Text& directory, const Text& name);

}  // namespace lv
