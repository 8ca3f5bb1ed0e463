// launcher/setups/setup_store.h
//
// The setups as they are stored, in section "Setups": under "Names" the list "1=Duel;3=Practice", and under "Setup1"
// and "Setup3" the texts of setup_text. A number stays with its setup for good; what is deleted is overwritten with
// nothing. An entry that can't be read is left out and stays stored as it is.

#pragma once

#include "foundation/run.h"
#include "launcher/setups/setup.h"
#include "launcher/setups/unread_setups.h"

namespace lv {

constexpr TextView kSetups = "Setups";  // the section

constexpr std::size_t kMostSetups = 200;
constexpr std::size_t kLongestSetupName = 60;

struct KeptSetup {
    int Number = 0;  // from 1
    Setup What;
};

struct SetupList {
    std::vector<KeptSetup> All;
    std::vector<UnreadSetup> Unread;
    int Picked = 0;  // the number of the one that was picked last; 0: none

    /// Null if there is none of that number, or of that name in any letter case.
    [[nodiscard]] const KeptSetup* Of(int number) const;
    [[nodiscard]] const KeptSetup* Named(TextView name) const;
};

/// Reads all; the user is told once what can't be read.
SetupList LoadSetups(Run& run);

/// Puts the setup in the place of the one of its name, or behind all others, and notes it as picked. False if it was
/// refused: the user was told why, and all is as before.
bool KeepSetup(Run& run, SetupList& setups, const Setup& setup);

/// False as KeepSetup. The name of another setup is refused.
bool RenameSetup(Run& run, SetupList& setups, int number, TextView name);
bool DeleteSetup(Run& run, SetupList& setups, int number);

/// Notes which one was picked.
void NotePickedSetup(Run& run, SetupList& setups, int number);

}  // namespace lv
