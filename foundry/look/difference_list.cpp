#include "foundry/look/difference_list.h"

#include <algorithm>

namespace lv {

namespace {

constexpr std::size_t kLongestShown = 1000;
constexpr std::size_t kTabWidth = 4;

bool Differs(const DifferenceRow& row) {
    return row.Kind != RowKind::Same;
}

}  // namespace

void DifferenceList::Compare(TextView left, TextView right) {
    rows_.clear();
    left_ = left;
    right_ = right;
    rows_ = CompareTexts(left_, right_);
    changes_ = static_cast<std::size_t>(std::ranges::count_if(rows_, Differs));
    ListIndex = -1;
    ++shown_;
    SelectNextChange(*this);
}

void SelectNextChange(DifferenceList& list) {
    const std::vector<DifferenceRow>& rows = list.Rows();
    if (list.Changes() == 0) {
        return;
    }
    const auto selected = static_cast<std::size_t>(std::max(list.ListIndex, 0));
    auto next = rows.begin() + static_cast<std::ptrdiff_t>(std::min(selected, rows.size()));
    if (list.ListIndex >= 0) {
        next = std::find_if_not(next, rows.end(), Differs);
    }
    next = std::find_if(next, rows.end(), Differs);
    if (next == rows.end()) {
        next = std::ranges::find_if(rows, Differs);
    }
    list.ListIndex = static_cast<int>(next - rows.begin());
}

TextView MarkOfRow(RowKind kind) {
    switch (kind) {
        case RowKind::Same:
            return " ";
        case RowKind::Changed:
            return "*";
        case RowKind::OnlyLeft:
            return "-";
        case RowKind::OnlyRight:
            return "+";
    }
    return " ";
}

Text ShownLine(TextView line) {
    Text shown;
    for (const char letter : line.substr(0, kLongestShown)) {
        shown += letter == '\t' ? Text(kTabWidth - shown.size() % kTabWidth, ' ')
                                : Text(1, static_cast<unsigned char>(letter) < ' ' ? ' ' : letter);
    }
    return line.size() > kLongestShown ? shown + "..." : shown;
}

}  // namespace lv
