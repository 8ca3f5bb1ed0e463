// games/engines/engine_cells.h
//
// Cells of the table of engines that are lists, words of a choice, or switches with what is said of them.

#pragma once

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

#include "foundation/field_strings.h"
#include "games/engines/engine_table.h"

namespace lv {

/// What is wrong with a cell, or nothing.
using CellFault = std::optional<Text>;

/// The parts of a cell between the marks, without blanks at their ends; empty ones, and those behind the 64th, are left
/// out.
std::vector<Text> CellParts(TextView cell, char mark);

template <class Value>
struct CellWord {
    TextView Name;
    Value Means;
};

/// `what` says in a fault what the words choose.
template <class Value, std::size_t Count>
CellFault TakeCellWord(TextView cell, const CellWord<Value> (&words)[Count], TextView what, Value& into) {
    const auto found = std::ranges::find_if(words, [&](const auto& word) { return SameText(word.Name, cell); });
    if (found == std::end(words)) {
        return Join("no such ", what, ": ", cell);
    }
    into = found->Means;
    return {};
}

/// "quake quakeworld".
CellFault TakeGames(TextView cell, unsigned& into);

/// "hexen2: -hexen2; quake2: -quake2", "manages its own memory: -heapsize -mem", "-width % = +vid_width %".
CellFault TakeWantedSwitches(TextView cell, Engine& engine);
CellFault TakeRefusedSwitches(TextView cell, Engine& engine);
CellFault TakeWrittenOtherwise(TextView cell, Engine& engine);

}  // namespace lv
