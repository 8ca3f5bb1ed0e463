#include "console/line_pairing.h"

#include <algorithm>
#include <unordered_map>

#include "console/line_subject.h"

namespace lv {

namespace {

constexpr std::size_t kMostLookedAt = 200'000;

using Subjects = std::vector<LineSubject>;
using Places = std::vector<std::size_t>;

Subjects SubjectsOf(LinePairing::Lines lines) {
    Subjects subjects;
    subjects.reserve(lines.size());
    for (const TextView line : lines) {
        subjects.push_back(SubjectOf(line));
    }
    return subjects;
}

/// Lines by the numbers of their names, those alone whose names the other side has too.
struct NamedLines {
    std::vector<std::uint32_t> Numbers;
    Places Of;
};

using NameNumbers = std::unordered_map<TextView, std::uint32_t>;

NameNumbers NumbersOf(const Subjects& subjects) {
    NameNumbers numbers;
    numbers.reserve(subjects.size());
    for (const LineSubject& each : subjects) {
        if (each.IsWhole) {
            numbers.try_emplace(each.Name, static_cast<std::uint32_t>(numbers.size()));
        }
    }
    return numbers;
}

NamedLines NamedLinesOf(const Subjects& subjects, const NameNumbers& numbers, const NameNumbers& others) {
    NamedLines lines;
    for (std::size_t i = 0; i < subjects.size(); ++i) {
        const auto found = subjects[i].IsWhole ? numbers.find(subjects[i].Name) : numbers.end();
        if (found != numbers.end() && others.contains(subjects[i].Name)) {
            lines.Numbers.push_back(found->second);
            lines.Of.push_back(i);
        }
    }
    return lines;
}

std::vector<LineMatch> NamedPairs(const Subjects& left, const Subjects& right) {
    const NameNumbers leftNumbers = NumbersOf(left);
    const NameNumbers rightNumbers = NumbersOf(right);
    const NamedLines ofLeft = NamedLinesOf(left, leftNumbers, rightNumbers);
    const NamedLines ofRight = NamedLinesOf(right, leftNumbers, rightNumbers);
    std::vector<LineMatch> pairs = MatchLines(ofLeft.Numbers, ofRight.Numbers);
    for (LineMatch& pair : pairs) {
        pair = {ofLeft.Of[pair.Left], ofRight.Of[pair.Right]};
    }
    return pairs;
}

/// The places from `begin` up to `end` of the lines that are said rather than named.
Places SaidLines(const Subjects& subjects, std::size_t begin, std::size_t end) {
    Places places;
    for (std::size_t i = begin; i < end; ++i) {
        if (!subjects[i].IsWhole && !subjects[i].Name.empty()) {
            places.push_back(i);
        }
    }
    return places;
}

/// The pairs of the most likeness in all, as each side keeps its order.
class AlikePairs {
  public:
    AlikePairs(const Subjects& left, const Places& ofLeft, const Subjects& right, const Places& ofRight)
        : ofLeft_(ofLeft), ofRight_(ofRight), likeness_(ofLeft.size() * ofRight.size()), best_(likeness_.size()) {
        for (std::size_t i = ofLeft.size(); i-- > 0;) {
            for (std::size_t j = ofRight.size(); j-- > 0;) {
                const std::size_t likeness = LikenessOf(left[ofLeft[i]], right[ofRight[j]]);
                likeness_[At(i, j)] = likeness;
                const std::size_t paired = likeness > 0 ? likeness + BestFrom(i + 1, j + 1) : 0;
                best_[At(i, j)] = std::max({paired, BestFrom(i + 1, j), BestFrom(i, j + 1)});
            }
        }
    }

    void AddTo(std::vector<LineMatch>& pairs) const {
        std::size_t i = 0;
        std::size_t j = 0;
        while (i < ofLeft_.size() && j < ofRight_.size()) {
            const std::size_t best = BestFrom(i, j);
            if (likeness_[At(i, j)] > 0 && best == likeness_[At(i, j)] + BestFrom(i + 1, j + 1)) {
                pairs.push_back({ofLeft_[i++], ofRight_[j++]});
            } else if (best == BestFrom(i + 1, j)) {
                ++i;
            } else {
                ++j;
            }
        }
    }

  private:
    [[nodiscard]] std::size_t At(std::size_t i, std::size_t j) const { return i * ofRight_.size() + j; }
    [[nodiscard]] std::size_t BestFrom(std::size_t i, std::size_t j) const {
        return i < ofLeft_.size() && j < ofRight_.size() ? best_[At(i, j)] : 0;
    }

    const Places& ofLeft_;
    const Places& ofRight_;
    std::vector<std::size_t> likeness_;
    std::vector<std::size_t> best_;
};

}  // namespace

std::vector<LineMatch> LinePairing::Pair(Lines left, Lines right) {
    if (left.empty() || right.empty()) {
        return {};
    }
    const Subjects leftSubjects = SubjectsOf(left);
    const Subjects rightSubjects = SubjectsOf(right);
    std::vector<LineMatch> named = NamedPairs(leftSubjects, rightSubjects);
    named.push_back({left.size(), right.size()});
    std::vector<LineMatch> pairs;
    LineMatch done;
    for (const LineMatch& next : named) {
        const Places ofLeft = SaidLines(leftSubjects, done.Left, next.Left);
        const Places ofRight = SaidLines(rightSubjects, done.Right, next.Right);
        if (ofLeft.size() * ofRight.size() <= kMostLookedAt - looked_) {
            looked_ += ofLeft.size() * ofRight.size();
            AlikePairs(leftSubjects, ofLeft, rightSubjects, ofRight).AddTo(pairs);
        }
        pairs.push_back(next);
        done = {next.Left + 1, next.Right + 1};
    }
    pairs.pop_back();
    return pairs;
}

}  // namespace lv
