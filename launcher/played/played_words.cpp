#include "launcher/played/played_words.h"

#include <chrono>

namespace lv {

namespace {

constexpr TextView kPattern = "0000-00-00 00:00:00";
constexpr std::size_t kDayLength = 10;
constexpr std::size_t kTimeAt = 11;
constexpr std::size_t kTimeLength = 5;
constexpr int kDaysInWords = 7;

bool FitsPattern(TextView text) {
    if (text.size() != kPattern.size()) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isDigit = text[i] >= '0' && text[i] <= '9';
        if (kPattern[i] == '0' ? !isDigit : text[i] != kPattern[i]) {
            return false;
        }
    }
    return true;
}

int NumberAt(TextView text, std::size_t at, std::size_t length) {
    int number = 0;
    for (const char digit : text.substr(at, length)) {
        number = number * 10 + (digit - '0');
    }
    return number;
}

std::chrono::year_month_day DayOf(const LocalTime& time) {
    return {std::chrono::year(time.Year), std::chrono::month(static_cast<unsigned>(time.Month)),
            std::chrono::day(static_cast<unsigned>(time.Day))};
}

/// Empty where the calendar has no such days.
std::optional<long long> DaysBetween(const LocalTime& from, const LocalTime& to) {
    if (!DayOf(from).ok() || !DayOf(to).ok()) {
        return std::nullopt;
    }
    return (std::chrono::sys_days(DayOf(to)) - std::chrono::sys_days(DayOf(from))).count();
}

Text TwoDigits(long long number) {
    return Join(number < 10 ? "0" : "", std::to_string(number));
}

}  // namespace

Text Stamp(const LocalTime& time) {
    Text year = std::to_string(time.Year);
    year.insert(0, year.size() < 4 ? 4 - year.size() : 0, '0');
    return Join(year, "-", TwoDigits(time.Month), "-", TwoDigits(time.Day), " ", TwoDigits(time.Hour), ":",
                TwoDigits(time.Minute), ":", TwoDigits(time.Second));
}

std::optional<LocalTime> ReadStamp(TextView stamp) {
    if (!FitsPattern(stamp)) {
        return std::nullopt;
    }
    const LocalTime time{NumberAt(stamp, 0, 4),  NumberAt(stamp, 5, 2),  NumberAt(stamp, 8, 2),
                         NumberAt(stamp, 11, 2), NumberAt(stamp, 14, 2), NumberAt(stamp, 17, 2)};
    constexpr int kLeapSecond = 60;
    if (!DayOf(time).ok() || time.Hour > 23 || time.Minute > 59 || time.Second > kLeapSecond) {
        return std::nullopt;
    }
    return time;
}

Text LastPlayedWords(TextView stamp, const LocalTime& today) {
    const auto last = ReadStamp(stamp);
    if (!last) {
        return "never";
    }
    const long long days = DaysBetween(*last, today).value_or(kDaysInWords);
    if (days == 0) {
        return Join("today, ", stamp.substr(kTimeAt, kTimeLength));
    }
    if (days == 1) {
        return "yesterday";
    }
    return days > 1 && days < kDaysInWords ? Join(std::to_string(days), " days ago")
                                           : Text(stamp.substr(0, kDayLength));
}

Text LastPlayedField(TextView stamp) {
    return Text(ReadStamp(stamp) ? stamp.substr(0, kTimeAt + kTimeLength) : TextView());
}

Text PlayTimeText(std::int64_t seconds) {
    constexpr std::int64_t kMinute = 60;
    constexpr std::int64_t kHour = 60 * kMinute;
    return seconds <= 0 ? Text() : Join(std::to_string(seconds / kHour), ":", TwoDigits(seconds % kHour / kMinute));
}

}  // namespace lv
