// foundry/losses/loss_words.h
//
// A difference of two scripts as a sentence.

#pragma once

#include "console/script_comparison.h"

namespace lv {

Text WordsOf(const ScriptDifference& difference);

}  // namespace lv
