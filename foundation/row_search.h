// foundation/row_search.h
//
// Finding a row of a long list by typing any part of its name.

#pragma once

#include <cstddef>
#include <limits>
#include <vector>

#include "foundation/text.h"

namespace lv {

/// A list of more rows is searched so; one of fewer is the toolkit's own affair.
constexpr std::size_t kRowsInSight = 20;

/// Seconds without a key after which the next letter begins anew.
constexpr double kSearchPause = 1.5;

/// The longest text that is searched for; what is typed beyond it is passed over.
constexpr std::size_t kLongestSearch = 60;

/// What has been typed so far, from which row on that is searched for, and when its last key was.
struct RowSearch {
    Text Typed;
    int From = -1;
    double Seconds = -std::numeric_limits<double>::infinity();
};

/// What a key of a search comes to. Rows that hold what was typed are counted from the top.
struct RowFound {
    int Row = -1;            // to select; -1: the selection stays
    std::size_t Number = 0;  // which of them it is, from 1
    std::size_t Count = 0;   // of them
};

bool SearchIsOn(const RowSearch& search, double seconds);

/// A letter typed with `row` selected: the next row that begins with what has been typed; without one the next in which
/// a word begins so; without one the next that holds it anywhere. Letter case has no meaning, and behind the last row
/// the first follows. The first letter leaves the selected row; more letters may stay there. One letter again and
/// again goes from row to row, unless a row holds it that often.
RowFound TypeInSearch(RowSearch& search, const std::vector<Text>& names, int row, char letter, double seconds);

/// The last letter is taken back. Without any left the search has ended, and the selection stays.
RowFound TakeBackInSearch(RowSearch& search, const std::vector<Text>& names, double seconds);

/// The next row below, or above, that holds what has been typed, around the ends.
enum class SearchStep { Up, Down };
RowFound StepInSearch(RowSearch& search, const std::vector<Text>& names, int row, SearchStep step, double seconds);

void EndSearch(RowSearch& search);

/// "Search: dm4 (2 of 7)", "Search: dm4 (nothing found)"; empty without a search.
Text SearchText(const RowSearch& search, const RowFound& found);

}  // namespace lv
