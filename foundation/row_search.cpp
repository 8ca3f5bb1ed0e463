#include "foundation/row_search.h"

#include <algorithm>

namespace lv {

namespace {

enum class Fit { Begins, WordBegins, Holds, None };

struct Hit {
    int Row;
    Fit How;
};

bool IsOfAWord(char character) {
    constexpr unsigned char kFirstAccented = 0xC0;
    return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'z') ||
           static_cast<unsigned char>(character) >= kFirstAccented;
}

/// Both in lower case.
Fit FitOf(TextView name, TextView typed) {
    std::size_t at = name.find(typed);
    if (at == TextView::npos) {
        return Fit::None;
    }
    if (at == 0) {
        return Fit::Begins;
    }
    for (; at != TextView::npos; at = name.find(typed, at + 1)) {
        if (!IsOfAWord(name[at - 1])) {
            return Fit::WordBegins;
        }
    }
    return Fit::Holds;
}

std::vector<Hit> HitsOf(const std::vector<Text>& names, TextView typed) {
    const Text wanted = LowerCase(typed);
    std::vector<Hit> hits;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const Fit how = FitOf(LowerCase(names[i]), wanted);
        if (how != Fit::None) {
            hits.push_back({static_cast<int>(i), how});
        }
    }
    return hits;
}

RowFound At(const std::vector<Hit>& hits, std::size_t index) {
    return {hits[index].Row, index + 1, hits.size()};
}

/// Of the best fit, the first that is not above `from`, or the first at all.
RowFound BestFrom(const std::vector<Hit>& hits, int from) {
    if (hits.empty()) {
        return {};
    }
    const Fit best = std::ranges::min(hits, {}, &Hit::How).How;
    const auto fits = [&](const Hit& hit) { return hit.How == best; };
    const auto below = std::ranges::find_if(hits, [&](const Hit& hit) { return fits(hit) && hit.Row >= from; });
    const auto found = below != hits.end() ? below : std::ranges::find_if(hits, fits);
    return At(hits, static_cast<std::size_t>(found - hits.begin()));
}

bool IsOneLetterAgain(TextView typed) {
    return typed.size() > 1 && typed.find_first_not_of(typed[0]) == TextView::npos;
}

}  // namespace

bool SearchIsOn(const RowSearch& search, double seconds) {
    return !search.Typed.empty() && seconds - search.Seconds <= kSearchPause;
}

RowFound TypeInSearch(RowSearch& search, const std::vector<Text>& names, int row, char letter, double seconds) {
    if (!SearchIsOn(search, seconds)) {
        search = {.Typed = {}, .From = row, .Seconds = seconds};
    }
    search.Seconds = seconds;
    if (search.Typed.size() < kLongestSearch) {
        search.Typed += letter;
    }
    const std::vector<Hit> hits = HitsOf(names, search.Typed);
    if (hits.empty() && IsOneLetterAgain(LowerCase(search.Typed))) {
        search.Typed.resize(1);
        search.From = row;
        return BestFrom(HitsOf(names, search.Typed), row + 1);
    }
    return BestFrom(hits, search.Typed.size() == 1 ? search.From + 1 : search.From);
}

RowFound TakeBackInSearch(RowSearch& search, const std::vector<Text>& names, double seconds) {
    search.Seconds = seconds;
    if (search.Typed.size() <= 1) {
        EndSearch(search);
        return {};
    }
    search.Typed.pop_back();
    return BestFrom(HitsOf(names, search.Typed), search.From);
}

RowFound StepInSearch(RowSearch& search, const std::vector<Text>& names, int row, SearchStep step, double seconds) {
    search.Seconds = seconds;
    const std::vector<Hit> hits = HitsOf(names, search.Typed);
    if (hits.empty()) {
        return {};
    }
    const auto below = std::ranges::find_if(hits, [&](const Hit& hit) { return hit.Row > row; });
    const auto from = std::ranges::find_if(hits, [&](const Hit& hit) { return hit.Row >= row; });
    const std::size_t next = below == hits.end() ? 0 : static_cast<std::size_t>(below - hits.begin());
    const std::size_t last = (from == hits.begin() ? hits.size() : static_cast<std::size_t>(from - hits.begin())) - 1;
    const RowFound found = At(hits, step == SearchStep::Down ? next : last);
    search.From = found.Row;
    return found;
}

void EndSearch(RowSearch& search) {
    search = {};
}

Text SearchText(const RowSearch& search, const RowFound& found) {
    if (search.Typed.empty()) {
        return {};
    }
    const Text count = found.Count == 0 ? Text("nothing found")
                                        : Join(std::to_string(found.Number), " of ", std::to_string(found.Count));
    return Join("Search: ", search.Typed, " (", count, ")");
}

}  // namespace lv
