// foundation/list_search.h
//
// The three searches over lists of strings. Each compares a stretch of the item, `length` characters from position
// `start` (from 1), with the key. Only the first 32,767 items are looked at, as no index reaches further.

#pragma once

#include <vector>

#include "foundation/text.h"

namespace lv {

/// All of the item from `start` on.
constexpr std::size_t kToTheEnd = TextView::npos;

/// Binary search over an ascending list. Without a match `found` is cleared and the result is the place where the key
/// would be inserted.
Index FindSorted(const std::vector<Text>& list, std::size_t start, std::size_t length, TextView key, bool& found);

/// The first match, compared in upper case; the item count if there is none, with `found` cleared.
Index FindExact(const std::vector<Text>& list, std::size_t start, std::size_t length, TextView key, bool& found);

/// As FindExact, but the whole item and the key must also be equal as numbers, read with "." in place of the local
/// decimal separator.
Index FindNumeric(const std::vector<Text>& list, std::size_t start, std::size_t length, TextView key, bool& found,
                  bool decimalPointIsDot);

}  // namespace lv
