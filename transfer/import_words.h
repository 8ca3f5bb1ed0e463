// transfer/import_words.h
//
// What an import has done, in the words that a window and a terminal both say.

#pragma once

#include <vector>

#include "foundation/text.h"

namespace lv {

constexpr std::size_t kMostNamed = 10;

/// "575 settings are others now."
Text ChangedText(std::size_t changed);

/// The first kMostNamed, and "and 540 more" behind them if that is not all.
std::vector<Text> FirstFew(const std::vector<Text>& names);

}  // namespace lv
