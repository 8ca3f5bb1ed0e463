// foundry/losses/loss_words.h
//
// A difference of two scripts as a sentence.

#pragma once

#include "console/script_comparison.h"

namespace lv {

Text WordsOf(const ScriptDifference& difference);

/// Of what the pages say, and what is behind them in the same script: "The key n keeps "slot2", and its page says
/// "+jump"."
Text OverriddenWordsOf(const ScriptDifference& difference);

}  // namespace lv
