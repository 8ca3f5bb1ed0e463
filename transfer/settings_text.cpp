#include "transfer/settings_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <unordered_set>

#include "foundation/check_sum.h"
#include "foundation/percent_text.h"
#include "foundation/settings.h"

namespace lv {

namespace {

constexpr TextView kTitle = "Lorvane 3D settings ";
constexpr TextView kEnd = "end ";
constexpr std::size_t kFields = 3;
constexpr std::size_t kLongestField = 3 * kLongestValue;  // each character escaped

bool IsPlain(char letter) {
    return letter >= ' ' && letter <= '~';
}

bool IsName(TextView name) {
    return !name.empty() && name.size() <= kLongestSettingName && name.find('\0') == TextView::npos;
}

Error Damaged(std::size_t line, TextView what) {
    return {error::kPathFileAccess,
            Join("The file is damaged: in line ", std::to_string(line), " ", what, ". Nothing of it was used")};
}

Text IdOf(const StoredValue& value) {
    return Join(LowerCase(value.Section), TextView("\0", 1), LowerCase(value.Key));
}

Text WithoutCarriageReturns(TextView text) {
    Text lines;
    lines.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' || i + 1 == text.size() || text[i + 1] != '\n') {
            lines += text[i];
        }
    }
    return lines;
}

std::optional<std::size_t> NumberOf(TextView digits) {
    std::size_t number = 0;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return fault == std::errc() && end == digits.data() + digits.size() ? std::optional(number) : std::nullopt;
}

/// The lines of a text, one after the other.
class Lines {
  public:
    explicit Lines(TextView text) : text_(text) {}

    /// Nothing at the end, and of a line without one.
    std::optional<TextView> Next() {
        const std::size_t end = text_.find('\n', at_);
        if (end == TextView::npos) {
            return std::nullopt;
        }
        start_ = at_;
        at_ = end + 1;
        ++number_;
        return text_.substr(start_, end - start_);
    }
    [[nodiscard]] std::size_t Number() const { return number_; }
    [[nodiscard]] TextView AboveThisLine() const { return text_.substr(0, start_); }
    [[nodiscard]] bool AtEnd() const { return at_ == text_.size(); }

  private:
    TextView text_;
    std::size_t start_ = 0;
    std::size_t at_ = 0;
    std::size_t number_ = 0;
};

Error FaultOfTitle(Lines& lines) {
    const auto title = lines.Next();
    if (!title || !title->starts_with(kTitle)) {
        return {error::kPathFileAccess, "This is no file of Lorvane 3D's settings"};
    }
    const auto number = NumberOf(title->substr(kTitle.size()));
    if (number && *number > kSettingsTextNumber) {
        return {error::kPathFileAccess, Join("The file is of a newer Lorvane 3D: its format has the number ",
                                             std::to_string(*number), ", and this program reads number ",
                                             std::to_string(kSettingsTextNumber), ". Nothing of it was used")};
    }
    return number == kSettingsTextNumber ? Error() : Damaged(1, "the number of the format is wrong");
}

Result<StoredValue> ReadValue(TextView line, std::size_t number) {
    if (!std::ranges::all_of(line, [](char letter) { return IsPlain(letter) || letter == '\t'; })) {
        return Damaged(number, "is a character that cannot stand there");
    }
    std::array<Text, kFields> fields;
    for (std::size_t i = 0; i < kFields; ++i) {
        const bool isLast = i + 1 == kFields;
        const std::size_t end = line.find('\t');
        if ((end == TextView::npos) != isLast) {
            return Damaged(number, "are not a section, a key and a value");
        }
        const TextView field = line.substr(0, end);
        const auto bytes = field.size() <= kLongestField ? FromPercentText(field) : std::nullopt;
        if (!bytes) {
            return Damaged(number, field.size() <= kLongestField ? "a character is cut" : "is too long a text");
        }
        fields[i] = *bytes;
        line.remove_prefix(isLast ? line.size() : end + 1);
    }
    StoredValue value{std::move(fields[0]), std::move(fields[1]), std::move(fields[2])};
    return FitsSettingsText(value) ? Result<StoredValue>(std::move(value))
                                   : Damaged(number, "is a name or a value that cannot be stored");
}

Error FaultOfEnd(TextView line, const Lines& lines, std::size_t count) {
    line.remove_prefix(kEnd.size());
    const std::size_t blank = std::min(line.find(' '), line.size());
    if (NumberOf(line.substr(0, blank)) != count) {
        return Damaged(lines.Number(), "the count of values is another");
    }
    if (line.substr(std::min(blank + 1, line.size())) != CheckSumText(CheckSum(lines.AboveThisLine()))) {
        return Damaged(lines.Number(), "the check sum is another, so something above it was changed");
    }
    return lines.AtEnd() ? Error() : Damaged(lines.Number() + 1, "is something behind the end");
}

Result<std::vector<StoredValue>> ReadLines(Lines lines) {
    std::vector<StoredValue> values;
    std::unordered_set<Text> seen;
    if (Error fault = FaultOfTitle(lines)) {
        return fault;
    }
    while (const auto line = lines.Next()) {
        if (line->starts_with(kEnd) && line->find('\t') == TextView::npos) {
            const Error fault = FaultOfEnd(*line, lines, values.size());
            return fault ? Result<std::vector<StoredValue>>(fault) : std::move(values);
        }
        auto value = ReadValue(*line, lines.Number());
        if (!value.Ok()) {
            return value.Fault;
        }
        if (values.size() == kMostSettings) {
            return Damaged(lines.Number(), "begins more than there can be");
        }
        if (!seen.insert(IdOf(value.Value)).second) {
            return Damaged(lines.Number(), "is a value that was there before");
        }
        values.push_back(std::move(value.Value));
    }
    return Damaged(lines.Number() + 1, "its end is missing");
}

}  // namespace

bool FitsSettingsText(const StoredValue& value) {
    return IsName(value.Section) && IsName(value.Key) && value.Value.size() <= kLongestValue;
}

bool BeginsSettingsText(TextView start) {
    return start.starts_with(kTitle);
}

Result<Text> WriteSettingsText(const std::vector<StoredValue>& values) {
    Text text = Join(kTitle, std::to_string(kSettingsTextNumber), "\n");
    for (const StoredValue& value : values) {
        text += Join(PercentText(value.Section, IsPlain), TabChar, PercentText(value.Key, IsPlain), TabChar,
                     PercentText(value.Value, IsPlain), "\n");
    }
    text += Join(kEnd, std::to_string(values.size()), " ", CheckSumText(CheckSum(text)), "\n");
    if (text.size() > kLargestSettingsText) {
        return MakeTooLarge(kLargestSettingsText);
    }
    if (values.size() > kMostSettings) {
        return MakeError(error::kOutOfMemory, "more settings than a file can hold");
    }
    return text;
}

Result<std::vector<StoredValue>> ReadSettingsText(TextView text) {
    if (text.size() > kLargestSettingsText) {
        return MakeTooLarge(kLargestSettingsText);
    }
    if (text.find('\r') == TextView::npos) {
        return ReadLines(Lines(text));
    }
    const Text lines = WithoutCarriageReturns(text);
    return ReadLines(Lines(lines));
}

}  // namespace lv
