#include "foundry/versions/version_record.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

#include "foundation/check_sum.h"
#include "foundation/field_strings.h"
#include "foundry/versions/version_delta.h"

namespace lv {

namespace {

constexpr TextView kWhole = "whole";
constexpr TextView kDelta = "delta";

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

bool TakeRecordCheck(TextView whole, TextView& line, RecordHead& head) {
    if (!TakeNumber(line, head.Total)) {
        return false;
    }
    head.Checked = whole.substr(0, whole.size() - line.size());
    return TakeNumber(line, head.RecordSum, 16) && head.Total > 0 && head.Total <= kMostVersions;
}

Text DateText(const LocalTime& date) {
    std::array<char, 80> room{};
    const int length = std::snprintf(room.data(), room.size(), "%04d-%02d-%02d %02d:%02d:%02d", date.Year, date.Month,
                                     date.Day, date.Hour, date.Minute, date.Second);
    return {room.data(), static_cast<std::size_t>(std::max(length, 0))};
}

}  // namespace

std::optional<RecordHead> ReadRecordHead(TextView line, RecordForm form) {
    const TextView whole = line;
    RecordHead head;
    if (!TakeDate(line, head.Date) || line.size() <= kWhole.size()) {
        return std::nullopt;
    }
    const TextView how = line.substr(0, kWhole.size());
    head.IsWhole = how == kWhole;
    line.remove_prefix(how.size() + 1);
    bool isRead = TakeNumber(line, head.TextSize) && TakeNumber(line, head.PayloadSize) &&
                  TakeNumber(line, head.Sum, 16) &&
                  (form == RecordForm::Either || (form == RecordForm::Old) == line.empty());
    isRead = isRead && (line.empty() || TakeRecordCheck(whole, line, head)) && line.empty();
    const bool isSound =
        (head.IsWhole || how == kDelta) && head.TextSize <= kLargestVersion && head.PayloadSize <= 2 * kLargestVersion;
    return isRead && isSound ? std::optional(head) : std::nullopt;
}

Text RecordOf(const ScriptVersion& version, const Text* newer, std::size_t total) {
    const Text delta = newer != nullptr ? MakeDelta(*newer, version.Text) : Text();
    const bool isWhole = newer == nullptr || delta.size() >= version.Text.size();
    const Text& payload = isWhole ? version.Text : delta;
    const Text line = Join(DateText(version.Date), " ", isWhole ? kWhole : kDelta, " ",
                           std::to_string(version.Text.size()), " ", std::to_string(payload.size()), " ",
                           CheckSumText(CheckSum(version.Text)), " ", std::to_string(total), " ");
    return Join(line, CheckSumText(CheckSum(payload, CheckSum(line))), "\n", payload, "\n");
}

}  // namespace lv
