#include "foundry/versions/version_delta.h"

#include <charconv>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "console/line_matching.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr char kShared = '=';
constexpr char kOwn = '+';

std::vector<TextView> WholeLines(TextView text) {
    std::vector<TextView> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines.push_back(text.substr(0, end == TextView::npos ? end : end + 1));
        text.remove_prefix(lines.back().size());
    }
    return lines;
}

std::vector<std::uint32_t> Numbered(const std::vector<TextView>& lines,
                                    std::unordered_map<TextView, std::uint32_t>& numbers) {
    std::vector<std::uint32_t> numbered;
    numbered.reserve(lines.size());
    for (const TextView line : lines) {
        numbered.push_back(numbers.try_emplace(line, static_cast<std::uint32_t>(numbers.size())).first->second);
    }
    return numbered;
}

void AddOwn(Text& delta, TextView bytes) {
    if (!bytes.empty()) {
        delta += Join(TextView(&kOwn, 1), std::to_string(bytes.size()), "\n", bytes);
    }
}

/// The number at the start of the text, which loses it and the sign behind it.
std::optional<std::size_t> TakeNumber(TextView& text, char sign) {
    std::size_t number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    const auto length = static_cast<std::size_t>(end - text.data());
    if (fault != std::errc() || length >= text.size() || text[length] != sign) {
        return std::nullopt;
    }
    text.remove_prefix(length + 1);
    return number;
}

struct Step {
    bool IsShared = false;
    std::size_t First = 0;
    std::size_t Count = 0;  // of lines, or of bytes
};

std::optional<Step> TakeStep(TextView& delta) {
    Step step{.IsShared = delta.front() == kShared};
    if (!step.IsShared && delta.front() != kOwn) {
        return std::nullopt;
    }
    delta.remove_prefix(1);
    if (step.IsShared) {
        const auto first = TakeNumber(delta, ' ');
        if (!first) {
            return std::nullopt;
        }
        step.First = *first;
    }
    const auto count = TakeNumber(delta, '\n');
    if (!count) {
        return std::nullopt;
    }
    step.Count = *count;
    return step;
}

}  // namespace

Text MakeDelta(TextView base, TextView text) {
    const std::vector<TextView> from = WholeLines(base);
    const std::vector<TextView> to = WholeLines(text);
    std::unordered_map<TextView, std::uint32_t> numbers;
    const std::vector<LineMatch> matches = MatchLines(Numbered(from, numbers), Numbered(to, numbers));
    Text delta;
    const char* own = text.data();  // what has not been said yet
    for (std::size_t i = 0; i < matches.size();) {
        std::size_t count = 1;
        while (i + count < matches.size() && matches[i + count].Left == matches[i].Left + count &&
               matches[i + count].Right == matches[i].Right + count) {
            ++count;
        }
        const TextView last = to[matches[i].Right + count - 1];
        AddOwn(delta, {own, static_cast<std::size_t>(to[matches[i].Right].data() - own)});
        delta += Join("=", std::to_string(matches[i].Left), " ", std::to_string(count), "\n");
        own = last.data() + last.size();
        i += count;
    }
    AddOwn(delta, {own, static_cast<std::size_t>(text.data() + text.size() - own)});
    return delta;
}

std::optional<Text> ApplyDelta(TextView base, TextView delta, std::size_t most) {
    const std::vector<TextView> lines = WholeLines(base);
    Text text;
    while (!delta.empty()) {
        const auto step = TakeStep(delta);
        if (!step) {
            return std::nullopt;
        }
        TextView part;
        if (!step->IsShared) {
            if (step->Count > delta.size()) {
                return std::nullopt;
            }
            part = delta.substr(0, step->Count);
            delta.remove_prefix(step->Count);
        } else if (step->First >= lines.size() || step->Count > lines.size() - step->First || step->Count == 0) {
            return std::nullopt;
        } else {
            const TextView first = lines[step->First];
            const TextView last = lines[step->First + step->Count - 1];
            part = {first.data(), static_cast<std::size_t>(last.data() + last.size() - first.data())};
        }
        if (part.size() > most - text.size()) {
            return std::nullopt;
        }
        text += part;
    }
    return text;
}

}  // namespace lv
