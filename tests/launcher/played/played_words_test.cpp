#include "launcher/played/played_words.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

constexpr LocalTime kToday{2024, 3, 1, 0, 5, 0};

struct WordsRow {
    const char* Stamp;
    const char* Words;
    const char* Field;
};

// clang-format off
constexpr WordsRow kRows[] = {
    {"2024-03-01 00:04:59", "today, 00:04", "2024-03-01 00:04"},
    {"2024-03-01 14:30:00", "today, 14:30", "2024-03-01 14:30"},
    {"2024-02-29 23:59:59", "yesterday", "2024-02-29 23:59"},
    {"2024-02-28 12:00:00", "2 days ago", "2024-02-28 12:00"},
    {"2024-02-24 12:00:00", "6 days ago", "2024-02-24 12:00"},
    {"2024-02-23 12:00:00", "2024-02-23", "2024-02-23 12:00"},
    {"1999-12-31 12:00:00", "1999-12-31", "1999-12-31 12:00"},
    {"2024-03-02 12:00:00", "2024-03-02", "2024-03-02 12:00"},  // a clock that went back
    {"9999-12-31 23:59:59", "9999-12-31", "9999-12-31 23:59"},
    {"2024-02-30 12:00:00", "never", ""},
    {"2023-02-29 12:00:00", "never", ""},
    {"2024-13-01 12:00:00", "never", ""},
    {"2024-00-01 12:00:00", "never", ""},
    {"2024-03-01 24:00:00", "never", ""},
    {"2024-03-01 12:60:00", "never", ""},
    {"2024-03-01 12:00", "never", ""},
    {"2024-03-01 12:00:00 ", "never", ""},
    {"2024/03/01 12:00:00", "never", ""},
    {"-024-03-01 12:00:00", "never", ""},
    {"", "never", ""},
};
// clang-format on

TEST(LastPlayedWords, SayHowLongAgoItWas) {
    for (const WordsRow& row : kRows) {
        EXPECT_EQ(LastPlayedWords(row.Stamp, kToday), row.Words) << row.Stamp;
        EXPECT_EQ(LastPlayedField(row.Stamp), row.Field) << row.Stamp;
    }
}

TEST(LastPlayedWords, OnADayThatTheCalendarHasNotAreTheDate) {
    EXPECT_EQ(LastPlayedWords("2024-02-29 12:00:00", {2024, 2, 31}), "2024-02-29");
}

TEST(Stamp, ComesBackAsItWas) {
    const auto read = ReadStamp(Stamp({1999, 1, 2, 3, 4, 5}));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(Stamp(*read), "1999-01-02 03:04:05");
    EXPECT_EQ(Stamp({999, 11, 12, 13, 14, 15}), "0999-11-12 13:14:15");
}

TEST(PlayTimeText, IsHoursAndMinutes) {
    EXPECT_EQ(PlayTimeText(0), "");
    EXPECT_EQ(PlayTimeText(-5), "");
    EXPECT_EQ(PlayTimeText(59), "0:00");
    EXPECT_EQ(PlayTimeText(60), "0:01");
    EXPECT_EQ(PlayTimeText(3599), "0:59");
    EXPECT_EQ(PlayTimeText(43'500), "12:05");
    EXPECT_EQ(PlayTimeText(99'999LL * 3600), "99999:00");
}

}  // namespace
}  // namespace lv
