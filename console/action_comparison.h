// console/action_comparison.h
//
// The commands of two scripts that set nothing.

#pragma once

#include "console/script_comparison.h"

namespace lv {

/// The scripts that a script runs whose order is looked at; those beyond stay as they are.
constexpr std::size_t kMostMovedScripts = 200;

/// Lost and added ones, counted by their words.
std::vector<ScriptDifference> CompareActions(const ScriptEffects& before, const ScriptEffects& after);

/// The scripts that both run, and that may override other lines of the second one than of the first one, or be
/// overridden by other ones.
std::vector<ScriptDifference> MovedScripts(const ScriptEffects& before, const ScriptEffects& after);

}  // namespace lv
