#include "launcher/links/default_apps.h"

#include <algorithm>
#include <optional>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kGroup = "[Default Applications]";
constexpr TextView kBlanks = " \t\r\f\v";

struct Span {
    std::size_t Begin = 0;
    std::size_t End = 0;
};

struct Found {
    std::optional<Span> Value;          // what the type's line says behind its "="
    Span Line;                          // that line, its end included
    std::optional<std::size_t> Behind;  // the first line of the group
    bool IsCrLf = false;                // the group's own lines
};

TextView Trimmed(TextView text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == TextView::npos ? TextView() : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// The value of a line for that key, within the line.
std::optional<Span> ValueOf(TextView line, TextView key) {
    const std::size_t equals = line.find('=');
    if (equals == TextView::npos || Trimmed(line.substr(0, equals)) != key) {
        return std::nullopt;
    }
    const std::size_t first = std::min(line.find_first_not_of(kBlanks, equals + 1), line.size());
    return Span{first, line.ends_with('\r') ? std::max(first, line.size() - 1) : line.size()};
}

Found Find(TextView list, TextView type) {
    Found found;
    bool inGroup = false;
    for (std::size_t begin = 0; begin < list.size();) {
        const std::size_t end = std::min(list.find('\n', begin), list.size());
        const std::size_t next = std::min(end + 1, list.size());
        const TextView line = list.substr(begin, end - begin);
        if (const TextView said = Trimmed(line); said.starts_with('[')) {
            inGroup = said == kGroup;
            if (inGroup && !found.Behind) {
                found.Behind = next;
                found.IsCrLf = line.ends_with('\r');
            }
        } else if (const auto value = inGroup ? ValueOf(line, type) : std::nullopt) {
            found.Value = Span{begin + value->Begin, begin + value->End};
            found.Line = {begin, next};
        }
        begin = next;
    }
    return found;
}

TextView Part(TextView list, const Span& span) {
    return list.substr(span.Begin, span.End - span.Begin);
}

Text Replaced(TextView list, const Span& span, TextView by) {
    return Join(list.substr(0, span.Begin), by, list.substr(span.End));
}

// A value without an entry of it, wherever it stands there.
Text Without(TextView value, TextView entry) {
    Text rest;
    bool isFirst = true;
    for (std::size_t at = 0; at <= value.size();) {
        const std::size_t end = std::min(value.find(';', at), value.size());
        const TextView part = value.substr(at, end - at);
        if (Trimmed(part) != entry) {
            rest += isFirst ? Text(part) : Join(";", part);
            isFirst = false;
        }
        at = end + 1;
    }
    return rest;
}

}  // namespace

std::vector<Text> DefaultsOf(TextView list, TextView type) {
    const Found found = Find(list, type);
    std::vector<Text> entries;
    if (!found.Value) {
        return entries;
    }
    TextView value = Part(list, *found.Value);
    while (!value.empty()) {
        const std::size_t end = std::min(value.find(';'), value.size());
        if (const TextView entry = Trimmed(value.substr(0, end)); !entry.empty()) {
            entries.emplace_back(entry);
        }
        value.remove_prefix(std::min(end + 1, value.size()));
    }
    return entries;
}

Text WithDefault(TextView list, TextView type, TextView entry) {
    const std::vector<Text> entries = DefaultsOf(list, type);
    if (!entries.empty() && entries.front() == entry) {
        return Text(list);
    }
    const Found found = Find(list, type);
    if (found.Value) {
        return Replaced(list, *found.Value, Join(entry, ";", Without(Part(list, *found.Value), entry)));
    }
    const Text line = Join(type, "=", entry, ";");
    const Text text(list);
    if (!found.Behind) {
        const TextView gap = text.empty() ? "" : text.ends_with('\n') ? "\n" : "\n\n";
        return Join(text, gap, kGroup, "\n", line, "\n");
    }
    const TextView lineEnd = found.IsCrLf ? "\r\n" : "\n";
    const bool headEnds = text.substr(0, *found.Behind).ends_with('\n');
    return headEnds ? Join(text.substr(0, *found.Behind), line, lineEnd, text.substr(*found.Behind))
                    : Join(text, lineEnd, line, lineEnd);
}

Text WithoutDefault(TextView list, TextView type, TextView entry) {
    const Found found = Find(list, type);
    const std::vector<Text> entries = DefaultsOf(list, type);
    if (std::ranges::find(entries, entry) == entries.end()) {
        return Text(list);
    }
    const Text rest = Without(Part(list, *found.Value), entry);
    return Trimmed(rest).empty() ? Replaced(list, found.Line, "") : Replaced(list, *found.Value, rest);
}

}  // namespace lv
