// commands/launch_choice.h
//
// What a command says about a launch, picked and ticked in the launcher's lists.

#pragma once

#include "commands/command_words.h"
#include "launcher/launcher.h"

namespace lv {

enum class WithoutIt {
    NothingGoesOn,
    TheLaunchShowsIt,  // a map that is not there can still be asked of the game
    TheRestGoesOn,     // of a setup
};

/// What there is nothing for, in a sentence.
struct Missing {
    Text Words;
    WithoutIt How = WithoutIt::NothingGoesOn;
};

/// Picks what the command names, and ticks its box; boxes that ask GameSpy 3D, which a launch without the window
/// cannot, are cleared. `notes` gets what its user should know of that.
std::vector<Missing> Choose(Launcher& launcher, const Command& command, Text& notes);

}  // namespace lv
