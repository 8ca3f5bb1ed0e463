#include "commands/close_name.h"

#include <algorithm>
#include <iterator>

#include "foundation/field_strings.h"
#include "foundation/shown_name.h"

namespace lv {

namespace {

constexpr std::size_t kLongestCompared = 100;
constexpr std::size_t kShortestBeginning = 3;  // of an option one letter and its dashes

// Levenshtein's distance, a row of his table at a time.
std::size_t Slips(TextView from, TextView to) {
    std::vector<std::size_t> row(to.size() + 1);
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = i;
    }
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t changed = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({row[j] + 1, diagonal + 1, changed});
        }
    }
    return row.back();
}

// Two letters that have changed places are two slips.
std::size_t MostSlips(TextView word) {
    return word.size() < 4 ? 1 : std::max<std::size_t>(2, word.size() / 3);
}

/// The only name that begins with the word.
std::optional<Text> NameThatBegins(TextView word, const std::vector<Text>& names) {
    const auto begins = [word](const Text& name) { return StartsWithText(name, word); };
    const auto first = std::ranges::find_if(names, begins);
    if (word.size() < kShortestBeginning || first == names.end()) {
        return std::nullopt;
    }
    const bool isOnly = std::none_of(std::next(first), names.end(),
                                     [&](const Text& name) { return begins(name) && !SameText(name, *first); });
    return isOnly ? std::optional(*first) : std::nullopt;
}

}  // namespace

std::optional<Text> CloseName(TextView word, const std::vector<Text>& names) {
    if (auto begun = NameThatBegins(word, names)) {
        return begun;
    }
    const Text wanted = LowerCase(word.substr(0, kLongestCompared));
    std::optional<Text> best;
    std::size_t fewest = MostSlips(wanted) + 1;
    for (const Text& name : names) {
        const std::size_t slips = Slips(wanted, LowerCase(TextView(name).substr(0, kLongestCompared)));
        if (slips < fewest) {
            fewest = slips;
            best = name;
        }
    }
    return best;
}

Text MeantWords(TextView word, const std::vector<Text>& names) {
    const auto meant = CloseName(word, names);
    return meant ? Join(" Did you mean \"", Shown(*meant), "\"?") : Text();
}

}  // namespace lv
