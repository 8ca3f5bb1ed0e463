// console/script_comparison.h
//
// Two scripts by their effects: what a player would miss, and what would come to them unasked.

#pragma once

#include <vector>

#include "console/script_effects.h"

namespace lv {

enum class DifferenceKind {
    Lost,
    Changed,
    Added,
    Moved,  // a script that was run ahead of the player's own lines runs behind them, or the other way round
};

struct ScriptDifference {
    DifferenceKind Kind = DifferenceKind::Lost;
    EffectKind What = EffectKind::Action;
    Text Name;      // as the script spells it that has it
    Text Identity;  // one for all its spellings
    Effect Before;  // with Line 0 where the script does not speak of it
    Effect After;
};

/// Commands of either are the same if they differ in blanks at their ends and in the letter case of their own names
/// alone, numbers if their values are. Binds come first, then aliases, settings and actions, each in the order of the
/// scripts. Actions are counted by their words.
std::vector<ScriptDifference> CompareScripts(const ScriptEffects& before, const ScriptEffects& after);

/// Whether the console takes both for the same commands.
bool SameCommands(TextView a, TextView b, Console console);

/// Whether a setting has the same value.
bool SameValue(TextView name, TextView a, TextView b);

}  // namespace lv
