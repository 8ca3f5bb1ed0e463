#include "console/text_difference.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

#include "console/line_pairing.h"

namespace lv {

namespace {

/// The lines of one side that the other one has too, by numbers.
struct Side {
    std::vector<std::uint32_t> Numbers;
    std::vector<std::size_t> Places;  // of each in the text
};

using LineNumbers = std::unordered_map<TextView, std::uint32_t>;

LineNumbers NumbersOf(const std::vector<TextView>& lines) {
    LineNumbers numbers;
    numbers.reserve(lines.size());
    for (const TextView line : lines) {
        numbers.try_emplace(line, static_cast<std::uint32_t>(numbers.size()));
    }
    return numbers;
}

/// Lines that the other side has not got match nothing, and need not be looked at: two texts without a line in common
/// take no time.
Side SharedLines(const std::vector<TextView>& lines, const LineNumbers& numbers, const LineNumbers& others) {
    Side side;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto found = numbers.find(lines[i]);
        if (found != numbers.end() && others.contains(lines[i])) {
            side.Numbers.push_back(found->second);
            side.Places.push_back(i);
        }
    }
    return side;
}

class Rows {
  public:
    Rows(const std::vector<TextView>& left, const std::vector<TextView>& right) : left_(left), right_(right) {
        rows_.reserve(std::max(left.size(), right.size()));
    }

    /// All that stands before the two lines, and then the lines themselves.
    void TakeMatch(std::size_t left, std::size_t right) {
        TakeUpTo(left, right);
        rows_.push_back({RowKind::Same, ++leftDone_, ++rightDone_, left_[left], right_[right]});
    }

    std::vector<DifferenceRow> Finish() {
        TakeUpTo(left_.size(), right_.size());
        return std::move(rows_);
    }

  private:
    void TakeUpTo(std::size_t left, std::size_t right) {
        const std::size_t leftBegin = leftDone_;
        const std::size_t rightBegin = rightDone_;
        const auto pairs = pairing_.Pair(std::span(left_).subspan(leftBegin, left - leftBegin),
                                         std::span(right_).subspan(rightBegin, right - rightBegin));
        for (const LineMatch& pair : pairs) {
            TakeUnpaired(leftBegin + pair.Left, rightBegin + pair.Right);
            const TextView ofLeft = left_[leftDone_];
            const TextView ofRight = right_[rightDone_];
            rows_.push_back(
                {ofLeft == ofRight ? RowKind::Same : RowKind::Changed, ++leftDone_, ++rightDone_, ofLeft, ofRight});
        }
        TakeUnpaired(left, right);
    }

    void TakeUnpaired(std::size_t left, std::size_t right) {
        for (; leftDone_ < left; ++leftDone_) {
            rows_.push_back({RowKind::OnlyLeft, leftDone_ + 1, 0, left_[leftDone_], {}});
        }
        for (; rightDone_ < right; ++rightDone_) {
            rows_.push_back({RowKind::OnlyRight, 0, rightDone_ + 1, {}, right_[rightDone_]});
        }
    }

    const std::vector<TextView>& left_;
    const std::vector<TextView>& right_;
    LinePairing pairing_;
    std::vector<DifferenceRow> rows_;
    std::size_t leftDone_ = 0;
    std::size_t rightDone_ = 0;
};

}  // namespace

std::vector<TextView> LinesOf(TextView text) {
    std::vector<TextView> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of("\r\n", at), text.size());
        lines.push_back(text.substr(at, end - at));
        at = end + (text.substr(end).starts_with("\r\n") ? 2 : 1);
    }
    return lines;
}

std::vector<DifferenceRow> CompareTexts(TextView left, TextView right) {
    const std::vector<TextView> leftLines = LinesOf(left);
    const std::vector<TextView> rightLines = LinesOf(right);
    const LineNumbers leftNumbers = NumbersOf(leftLines);
    const LineNumbers rightNumbers = NumbersOf(rightLines);
    const Side shared = SharedLines(leftLines, leftNumbers, rightNumbers);
    const Side others = SharedLines(rightLines, leftNumbers, rightNumbers);
    Rows rows(leftLines, rightLines);
    for (const LineMatch& match : MatchLines(shared.Numbers, others.Numbers)) {
        rows.TakeMatch(shared.Places[match.Left], others.Places[match.Right]);
    }
    return rows.Finish();
}

}  // namespace lv
