// console/text_difference.h
//
// Two texts side by side, line by line.

#pragma once

#include <cstddef>
#include <vector>

#include "foundation/text.h"

namespace lv {

enum class RowKind {
    Same,
    Changed,  // both sides have a line that is about the same thing, and they differ
    OnlyLeft,
    OnlyRight,
};

struct DifferenceRow {
    RowKind Kind = RowKind::Same;
    // From 1; 0 where the side has no line.
    std::size_t LeftLine = 0;
    std::size_t RightLine = 0;
    TextView Left;  // stretches of the texts, without the lines' ends
    TextView Right;
};

/// Lines end in CR LF, CR or LF, and how they end makes no difference. Both texts outlive the rows.
std::vector<DifferenceRow> CompareTexts(TextView left, TextView right);

/// The lines of a text, without their ends; an empty text has none.
std::vector<TextView> LinesOf(TextView text);

}  // namespace lv
