#include "foundation/field_strings.h"

#include <algorithm>
#include <limits>

namespace lv {

namespace {

constexpr std::size_t kNone = TextView::npos;

// Of a set of one or two, which a search of its own would take longer to find than to look at.
bool IsOneOf(char c, TextView set) {
    for (const char each : set) {
        if (each == c) {
            return true;
        }
    }
    return false;
}

bool IsWhite(char c) {
    return c == '\r' || c == '\n' || c == '\0' || c == ' ' || c == '\t';
}

}  // namespace

Index CountDelimiters(TextView text, TextView delimiter) {
    if (delimiter.empty()) {
        return 0;
    }
    Index count = 0;
    std::size_t at = text.find(delimiter);
    while (at != kNone && count < std::numeric_limits<Index>::max()) {
        ++count;
        at = text.find(delimiter, at + 1);
    }
    return count;
}

Text GetField(TextView text, Index index, TextView delimiter) {
    if (delimiter.empty()) {
        delimiter = ",";
    }
    // `begin` is the 0-based start of the field; a failed search starts over at the front, on purpose. From there on
    // all comes again, so whole rounds are left out: a stored index costs a pass over the text, and not thousands.
    std::size_t begin = 0;
    int round = 0;
    for (int left = index; left > 0;) {
        const std::size_t found = text.find(delimiter, begin);
        --left;
        ++round;
        if (found == kNone) {
            left %= round;
        }
        begin = found == kNone ? 0 : found + 1;
    }
    const std::size_t end = text.find(delimiter, begin);
    TextView field = text.substr(begin, end == kNone ? kNone : end - begin);
    field.remove_prefix(std::min(field.find_first_not_of(' '), field.size()));
    return Text(field);
}

TextView KeyOrValueView(TextView line, bool wantValue) {
    const std::size_t at = line.find('=');
    if (wantValue) {
        return at == kNone ? TextView() : line.substr(at + 1);
    }
    return line.substr(0, at);
}

Text GetKeyOrValue(TextView line, bool wantValue) {
    return Text(KeyOrValueView(line, wantValue));
}

TextView NextQuotedWord(TextView& rest, TextView blanks) {
    std::size_t begin = 0;
    while (begin < rest.size() && IsOneOf(rest[begin], blanks)) {
        ++begin;
    }
    std::size_t end = begin;
    for (bool inQuotes = false; end < rest.size() && (inQuotes || !IsOneOf(rest[end], blanks)); ++end) {
        inQuotes = inQuotes != (rest[end] == '"');
    }
    const TextView word = rest.substr(begin, end - begin);
    rest.remove_prefix(end);
    return word;
}

TextView QuotedWordView(TextView line, Index index, TextView blanks) {
    TextView word;
    for (int i = 0; i <= index && (i == 0 || !word.empty()); ++i) {
        word = NextQuotedWord(line, blanks);
    }
    return word;
}

Text GetQuotedWord(TextView line, Index index) {
    return Text(QuotedWordView(line, index));
}

Text PadToWidth(TextView text, std::size_t width) {
    Text padded(text.substr(0, width));
    padded.resize(width, ' ');
    return padded;
}

Text DropRight(TextView text, std::size_t count) {
    return text.size() < count ? Text() : Text(text.substr(0, text.size() - count));
}

Text DropLeft(TextView text, std::size_t count) {
    return text.size() < count ? Text() : Text(text.substr(count));
}

Text ReplaceSameLength(TextView text, TextView find, TextView replacement) {
    Text changed(text);
    const std::size_t width = std::min(find.size(), replacement.size());
    if (find.empty() || find.substr(0, width) == replacement.substr(0, width)) {
        return changed;
    }
    std::size_t at = changed.find(find);
    bool first = true;
    while (at != kNone && (first || at > 0)) {
        first = false;
        changed.replace(at, width, replacement.substr(0, width));
        // Nothing before `at` can match but what the overwriting itself has made there.
        at = changed.find(find, at - std::min(at, find.size() - 1));
    }
    return changed;
}

Text ReplaceText(TextView text, TextView find, TextView replacement) {
    if (find.empty()) {
        return Text(text);
    }
    Text changed;
    std::size_t done = 0;
    std::size_t at = text.find(find);
    bool first = true;
    while (at != kNone && (first || !changed.empty() || at > done)) {
        first = false;
        changed.append(text.substr(done, at - done)).append(replacement);
        done = at + find.size();
        at = text.find(find, done);
    }
    return changed.append(text.substr(done));
}

Text TrimWhite(TextView text) {
    while (!text.empty() && IsWhite(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsWhite(text.back())) {
        text.remove_suffix(1);
    }
    return Text(text);
}

Text Trim(TextView text) {
    return Text(TrimmedView(text));
}

TextView TrimmedView(TextView text, TextView blanks) {
    while (!text.empty() && IsOneOf(text.front(), blanks)) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsOneOf(text.back(), blanks)) {
        text.remove_suffix(1);
    }
    return text;
}

TextView StripQuotesView(TextView text) {
    if (!text.empty() && text.back() == '"') {
        text.remove_suffix(1);
    }
    if (!text.empty() && text.front() == '"') {
        text.remove_prefix(1);
    }
    return text;
}

Text StripQuotes(TextView text) {
    return Text(StripQuotesView(text));
}

Text LastPathPart(TextView path) {
    // Taken by hand rather than by field number: a path may hold more parts than an index can count.
    const std::size_t at = path.rfind('\\');
    return GetField(at == kNone ? path : path.substr(at + 1), 0, "\\");
}

Text DirectoryOf(TextView path) {
    const std::size_t at = path.rfind('\\');
    return at == kNone ? Text() : Text(path.substr(0, at));
}

Text PathBelow(TextView directory, TextView name) {
    return Join(directory, directory.ends_with('\\') ? "" : "\\", name);
}

bool Holds(TextView text, TextView find) {
    return text.find(find) != kNone;
}

}  // namespace lv
