// catalogs/typed_search.h
//
// Finding a row of a list by typing the beginning of its name.

#pragma once

#include <limits>
#include <vector>

#include "foundation/text.h"

namespace lv {

/// What has been typed so far, and when the last letter of it was.
struct TypedSearch {
    Text Typed;
    double Seconds = -std::numeric_limits<double>::infinity();
};

/// Takes a letter typed at `seconds` with `row` selected, and gives the row to select: the next whose name begins with
/// what has been typed, in any letter case, from the top again behind the last. One letter again and again goes from
/// name to name. More than a second without a letter begins anew. -1 if no name begins so.
int FindTyped(TypedSearch& search, const std::vector<Text>& names, int row, char letter, double seconds);

}  // namespace lv
