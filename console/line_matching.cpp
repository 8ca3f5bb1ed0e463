#include "console/line_matching.h"

#include <algorithm>

namespace lv {

namespace {

using Lines = std::span<const std::uint32_t>;
using Place = std::ptrdiff_t;

constexpr std::size_t kMostSteps = 8'000'000;
constexpr std::size_t kMostEdits = 1000;
constexpr std::size_t kFewestEdits = 16;
constexpr Place kNowhere = -1;

/// A step of the way: to it by leaving out a line of the left side, or of the right one, from diagonal `From`.
struct Step {
    Place X = kNowhere;
    std::size_t From = 0;
};

/// Myers' shortest edit script, greedy and forwards. A stretch that wants too many edits is taken as far as its best
/// way has come, and the next one begins there.
class Matching {
  public:
    Matching(Lines left, Lines right, std::vector<LineMatch>& matches)
        : left_(left),
          right_(right),
          matches_(matches),
          most_(std::clamp(kMostSteps / std::max<std::size_t>(left.size() + right.size(), 1), kFewestEdits,
                           kMostEdits)) {}

    void Run() {
        while (!left_.empty() && !right_.empty()) {
            TakeStretch();
        }
    }

  private:
    /// How far down the left side each diagonal has come with so many edits: from -edits to edits, in steps of 2.
    using Round = std::vector<Place>;

    void TakeStretch();
    [[nodiscard]] Step StepTo(std::size_t edits, std::size_t diagonal) const;
    [[nodiscard]] Place Slide(Place x, Place y) const;
    void NoteWay(std::size_t edits, std::size_t diagonal);

    static Place YOf(Place x, std::size_t edits, std::size_t diagonal) {
        return x + static_cast<Place>(edits) - static_cast<Place>(2 * diagonal);
    }
    [[nodiscard]] Place LeftCount() const { return static_cast<Place>(left_.size()); }
    [[nodiscard]] Place RightCount() const { return static_cast<Place>(right_.size()); }

    Lines left_;  // from where the stretch begins
    Lines right_;
    std::vector<LineMatch>& matches_;
    std::size_t most_;
    std::size_t leftDone_ = 0;
    std::size_t rightDone_ = 0;
    std::vector<Round> rounds_;
};

Step Matching::StepTo(std::size_t edits, std::size_t diagonal) const {
    if (edits == 0) {
        return {0, 0};
    }
    const Round& before = rounds_[edits - 1];
    Step step;
    if (diagonal < edits && before[diagonal] != kNowhere) {  // without a line of the right side
        const Place x = before[diagonal];
        if (YOf(x, edits, diagonal) <= RightCount()) {
            step = {x, diagonal};
        }
    }
    if (diagonal > 0 && before[diagonal - 1] != kNowhere) {
        const Place x = before[diagonal - 1] + 1;
        if (x <= LeftCount() && x > step.X) {
            step = {x, diagonal - 1};
        }
    }
    return step;
}

/// How far down the left side the lines stay the same.
Place Matching::Slide(Place x, Place y) const {
    while (x < LeftCount() && y < RightCount() &&
           left_[static_cast<std::size_t>(x)] == right_[static_cast<std::size_t>(y)]) {
        ++x;
        ++y;
    }
    return x;
}

void Matching::NoteWay(std::size_t edits, std::size_t diagonal) {
    const std::size_t first = matches_.size();
    for (;; --edits) {
        const Place end = rounds_[edits][diagonal];
        const Step step = StepTo(edits, diagonal);
        for (Place x = end - 1; x >= step.X; --x) {
            matches_.push_back({leftDone_ + static_cast<std::size_t>(x),
                                rightDone_ + static_cast<std::size_t>(YOf(x, edits, diagonal))});
        }
        if (edits == 0) {
            break;
        }
        diagonal = step.From;
    }
    std::reverse(matches_.begin() + static_cast<std::ptrdiff_t>(first), matches_.end());
}

void Matching::TakeStretch() {
    rounds_.clear();
    std::size_t best = 0;
    bool ended = false;
    for (std::size_t edits = 0; edits <= most_ && !ended; ++edits) {
        rounds_.emplace_back(edits + 1, kNowhere);
        Place farthest = kNowhere;
        for (std::size_t diagonal = 0; diagonal <= edits; ++diagonal) {
            const Step step = StepTo(edits, diagonal);
            if (step.X == kNowhere) {
                continue;
            }
            const Place x = Slide(step.X, YOf(step.X, edits, diagonal));
            const Place y = YOf(x, edits, diagonal);
            rounds_.back()[diagonal] = x;
            if (x + y > farthest) {
                farthest = x + y;
                best = diagonal;
            }
        }
        ended = farthest == LeftCount() + RightCount();
    }
    const std::size_t edits = rounds_.size() - 1;
    const Place x = rounds_.back()[best];
    const Place y = YOf(x, edits, best);
    NoteWay(edits, best);
    left_ = left_.subspan(static_cast<std::size_t>(x));
    right_ = right_.subspan(static_cast<std::size_t>(y));
    leftDone_ += static_cast<std::size_t>(x);
    rightDone_ += static_cast<std::size_t>(y);
}

}  // namespace

std::vector<LineMatch> MatchLines(Lines left, Lines right) {
    std::vector<LineMatch> matches;
    Matching(left, right, matches).Run();
    return matches;
}

}  // namespace lv
