#include "console/line_subject.h"

#include <algorithm>

#include "console/command_words.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kBlanks = " \t";
constexpr TextView kComment = "//";
constexpr TextView kPassedOver[] = {"//;", ";"};
constexpr std::size_t kLongestCompared = 200;

struct NamingWord {
    TextView Word;
    TextView Subject;  // empty: the name behind it alone
};

/// What is behind them is the name of what they are about.
constexpr NamingWord kNamingWords[] = {
    // clang-format off
    {"bind",    "bind "},
    {"unbind",  "bind "},
    {"alias",   "alias "},
    {"unalias", "alias "},
    {"setinfo", "setinfo "},
    {"set",     ""},
    {"seta",    ""},
    {"sets",    ""},
    {"setu",    ""},
    // clang-format on
};

/// The next word in lower case, without its quotes. An ini's "=" ends it too.
Text TakeName(TextView& rest) {
    rest = TrimmedView(rest, kBlanks);
    if (rest.empty()) {
        return {};
    }
    const bool isQuoted = rest.front() == '"';
    rest.remove_prefix(isQuoted ? 1 : 0);
    const std::size_t end = std::min(rest.find_first_of(isQuoted ? "\"" : " \t=;", isQuoted ? 0 : 1), rest.size());
    Text name = LowerCase(rest.substr(0, end));
    rest.remove_prefix(end < rest.size() ? end + 1 : end);
    return name;
}

/// Blanks and quotes around it say nothing.
TextView Said(TextView rest) {
    return TrimmedView(rest, " \t\"").substr(0, kLongestCompared);
}

bool IsOneThing(const Text& word) {
    return word == "color" || UseOfWord(word) != WordUse::Command;
}

}  // namespace

LineSubject SubjectOf(TextView line) {
    line = TrimmedView(line, kBlanks);
    for (const TextView passed : kPassedOver) {
        if (line.starts_with(passed)) {
            line = TrimmedView(line.substr(passed.size()), kBlanks);
            break;
        }
    }
    if (line.starts_with(kComment)) {
        return {Text(kComment), false, Said(line.substr(kComment.size()))};
    }
    Text word = TakeName(line);
    const auto* const naming = std::ranges::find(kNamingWords, word, &NamingWord::Word);
    if (naming != std::end(kNamingWords)) {
        const Text name = TakeName(line);
        return {Join(naming->Subject, name), true, Said(line)};
    }
    const bool isWhole = !word.empty() && IsOneThing(word);
    return {std::move(word), isWhole, Said(line)};
}

std::size_t LikenessOf(const LineSubject& a, const LineSubject& b) {
    if (a.Name.empty() || a.Name != b.Name || a.IsWhole != b.IsWhole) {
        return 0;
    }
    const auto [shorter, longer] = std::minmax({a.Rest.size(), b.Rest.size()});
    const auto begin = static_cast<std::size_t>(std::ranges::mismatch(a.Rest, b.Rest).in1 - a.Rest.begin());
    const auto ends =
        std::mismatch(a.Rest.rbegin(), a.Rest.rbegin() + static_cast<std::ptrdiff_t>(shorter - begin), b.Rest.rbegin());
    const std::size_t common = begin + static_cast<std::size_t>(ends.first - a.Rest.rbegin());
    const bool isCutOff = 4 * begin >= 3 * shorter && (shorter > 0 || a.Name != kComment);
    const bool isAlike = a.IsWhole || 2 * common >= longer || isCutOff;
    return isAlike ? common + 1 : 0;
}

}  // namespace lv
