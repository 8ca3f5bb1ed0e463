// foundry/look/difference_list.h
//
// Two texts side by side, as a control: a row a line, with what differs marked.

#pragma once

#include <cstddef>
#include <vector>

#include "console/text_difference.h"
#include "foundation/controls.h"

namespace lv {

class DifferenceList : public Control {
  public:
    DifferenceList() = default;
    DifferenceList(const DifferenceList&) = delete;
    DifferenceList& operator=(const DifferenceList&) = delete;

    Text LeftTitle;
    Text RightTitle;
    int ListIndex = -1;  // the selected row

    /// Shows these, and selects the first row that differs.
    void Compare(TextView left, TextView right);

    [[nodiscard]] const std::vector<DifferenceRow>& Rows() const { return rows_; }
    [[nodiscard]] std::size_t Changes() const { return changes_; }  // rows that differ

    /// Counts what has been shown: a form fills its rows anew when this changes.
    [[nodiscard]] int Shown() const { return shown_; }

  private:
    Text left_;
    Text right_;
    std::vector<DifferenceRow> rows_;  // of the two
    std::size_t changes_ = 0;
    int shown_ = 0;
};

/// Selects the next row of another run of changes, from the top again behind the last one. Nothing where no row
/// differs.
void SelectNextChange(DifferenceList& list);

/// " " same, "*" changed, "-" only left, "+" only right.
TextView MarkOfRow(RowKind kind);

/// A line as a list shows it: tabs as blanks, and no more of it than anybody reads.
Text ShownLine(TextView line);

}  // namespace lv
