// foundation/padded_item.h
//
// A row of a plain list that holds a record: the title in the first 100 characters, the record's other fields, joined
// by ";", behind it. The blanks push those out of the list's sight. Rows are made and opened here and nowhere else.

#pragma once

#include <optional>
#include <vector>

#include "foundation/text.h"

namespace lv {

/// Width of the title.
constexpr std::size_t NameFieldWidth = 100;

/// A longer title is cut.
Text MakeItem(TextView title, TextView value);

/// Without blanks at their ends.
Text ItemTitle(TextView item);
Text ItemValue(TextView item);

/// The value with the blanks that it was stored with.
Text StoredItemValue(TextView item);

/// The first row whose value, less its first `skipped` characters, is `wanted`; letter case has no meaning.
std::optional<Index> FindItemValue(const std::vector<Text>& items, TextView wanted, std::size_t skipped = 0);

}  // namespace lv
