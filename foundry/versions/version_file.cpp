#include "foundry/versions/version_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <optional>

#include "foundation/check_sum.h"
#include "foundation/field_strings.h"
#include "foundry/versions/version_delta.h"

namespace lv {

namespace {

constexpr TextView kTitle = "Lorvane 3D versions 1\n";
constexpr TextView kWhole = "whole";
constexpr TextView kDelta = "delta";

std::optional<TextView> TakeLine(TextView& bytes) {
    const std::size_t end = bytes.find('\n');
    if (end == TextView::npos) {
        return std::nullopt;
    }
    const TextView line = bytes.substr(0, end);
    bytes.remove_prefix(end + 1);
    return line;
}

/// Numbers of a fixed form, "%4-%2-%2": each "%" takes as many digits as the figure says.
bool TakeDigits(TextView& line, std::size_t count, char sign, int& into) {
    if (line.size() <= count || line[count] != sign) {
        return false;
    }
    const auto [end, fault] = std::from_chars(line.data(), line.data() + count, into);
    if (fault != std::errc() || end != line.data() + count || into < 0) {
        return false;
    }
    line.remove_prefix(count + 1);
    return true;
}

bool TakeDate(TextView& line, LocalTime& date) {
    return TakeDigits(line, 4, '-', date.Year) && TakeDigits(line, 2, '-', date.Month) &&
           TakeDigits(line, 2, ' ', date.Day) && TakeDigits(line, 2, ':', date.Hour) &&
           TakeDigits(line, 2, ':', date.Minute) && TakeDigits(line, 2, ' ', date.Second) && date.Month >= 1 &&
           date.Month <= 12 && date.Day >= 1 && date.Day <= 31;
}

template <class Number>
bool TakeNumber(TextView& line, Number& into, int base = 10) {
    const auto [end, fault] = std::from_chars(line.data(), line.data() + line.size(), into, base);
    if (fault != std::errc()) {
        return false;
    }
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    if (!line.empty() && line.front() == ' ') {
        line.remove_prefix(1);
    }
    return true;
}

struct Head {
    LocalTime Date;
    bool IsWhole = false;
    std::size_t TextSize = 0;
    std::size_t PayloadSize = 0;
    std::uint32_t Sum = 0;
};

std::optional<Head> ReadHead(TextView line) {
    Head head;
    if (!TakeDate(line, head.Date) || line.size() <= kWhole.size()) {
        return std::nullopt;
    }
    const TextView how = line.substr(0, kWhole.size());
    head.IsWhole = how == kWhole;
    line.remove_prefix(how.size() + 1);
    const bool isRead = TakeNumber(line, head.TextSize) && TakeNumber(line, head.PayloadSize) &&
                        TakeNumber(line, head.Sum, 16) && line.empty();
    const bool isSound = (head.IsWhole || how == kDelta) && head.TextSize <= kLargestVersion;
    return isRead && isSound ? std::optional(head) : std::nullopt;
}

std::optional<ScriptVersion> TakeVersion(TextView& bytes, const std::vector<ScriptVersion>& newer) {
    const auto line = TakeLine(bytes);
    const auto head = line ? ReadHead(*line) : std::nullopt;
    if (!head || head->PayloadSize >= bytes.size() || bytes[head->PayloadSize] != '\n' ||
        (!head->IsWhole && newer.empty())) {
        return std::nullopt;
    }
    const TextView payload = bytes.substr(0, head->PayloadSize);
    auto text = head->IsWhole ? std::optional<Text>(payload) : ApplyDelta(newer.back().Text, payload, kLargestVersion);
    if (!text || text->size() != head->TextSize || CheckSum(*text) != head->Sum) {
        return std::nullopt;
    }
    bytes.remove_prefix(payload.size() + 1);
    return ScriptVersion{head->Date, *std::move(text)};
}

Text DateText(const LocalTime& date) {
    std::array<char, 80> room{};
    const int length = std::snprintf(room.data(), room.size(), "%04d-%02d-%02d %02d:%02d:%02d", date.Year, date.Month,
                                     date.Day, date.Hour, date.Minute, date.Second);
    return {room.data(), static_cast<std::size_t>(std::max(length, 0))};
}

}  // namespace

VersionFile ReadVersionFile(TextView bytes) {
    VersionFile file;
    if (bytes.substr(0, kTitle.size()) != kTitle) {
        file.IsDamaged = !bytes.empty();
        return file;
    }
    bytes.remove_prefix(kTitle.size());
    const auto script = TakeLine(bytes);
    file.Script = script.value_or("");
    file.IsDamaged = !script;
    std::size_t size = 0;
    while (!bytes.empty() && !file.IsDamaged && file.Versions.size() < kMostVersions) {
        auto version = TakeVersion(bytes, file.Versions);
        size += version ? version->Text.size() : 0;
        file.IsDamaged = !version || size > kMostVersionBytes;
        if (!file.IsDamaged) {
            file.Versions.push_back(*std::move(version));
        }
    }
    return file;
}

Text WriteVersionFile(const VersionFile& file) {
    Text bytes = Join(kTitle, file.Script, "\n");
    const Text* newer = nullptr;
    for (const ScriptVersion& version : file.Versions) {
        const Text delta = newer != nullptr ? MakeDelta(*newer, version.Text) : Text();
        const bool isWhole = newer == nullptr || delta.size() >= version.Text.size();
        const Text& payload = isWhole ? version.Text : delta;
        bytes += Join(DateText(version.Date), " ", isWhole ? kWhole : kDelta, " ", std::to_string(version.Text.size()),
                      " ", std::to_string(payload.size()), " ", CheckSumText(CheckSum(version.Text)), "\n");
        bytes += payload;
        bytes += '\n';
        newer = &version.Text;
    }
    return bytes;
}

}  // namespace lv
