// tests/faults/states.h
//
// What a home may look like after a kill or a fault, against what it was and what an undisturbed run makes of it.

#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/faults/home_run.h"

namespace lv {

struct HomeState {
    std::map<std::string, std::string> Files;
    std::map<std::string, std::string> Rows;
};

/// Fails the test if the store does not open. Copies of the settings do not count if they are whole: each start makes
/// one if something has changed, and does without where it cannot.
HomeState StateOf(const FaultyHome& home);

/// What a kill in the middle of a write leaves: the file that was being made. It counts as damage once another run has
/// had its time to take it away.
enum class Leftovers { kAllowed, kDamage };

/// All files that are neither the old nor the new ones whole, all rows that are neither, and all that is there too
/// much or missing; each with what it is.
std::vector<std::string> Damage(const HomeState& before, const HomeState& after, const HomeState& now,
                                Leftovers leftovers = Leftovers::kDamage);

/// Without the picture of a game's window, which a game may start without: nothing is told of that.
HomeState WithoutPicture(HomeState state);

/// What stands in the file of a script's versions does not count, if it is whole: a save over one that has been written
/// already keeps that as well.
HomeState WithAnyVersions(HomeState state);

/// Whether everything is as after an undisturbed run. Counts of runs and launches are not looked at.
bool IsNew(const HomeState& after, const HomeState& now);

/// What is told in `told` and not in `usual`.
std::vector<std::string> NewIn(const std::vector<std::string>& told, const std::vector<std::string>& usual);

/// Whether all cases are to be tried: the environment has LV_WHOLE.
bool Whole();

}  // namespace lv
