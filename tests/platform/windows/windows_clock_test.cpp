#include "platform/windows/windows_clock.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "platform/windows/system.h"

namespace lv {

namespace {

// In units of 100 ns.
std::uint64_t Ticks(const SYSTEMTIME& time) {
    FILETIME ticks{};
    SystemTimeToFileTime(&time, &ticks);
    return (static_cast<std::uint64_t>(ticks.dwHighDateTime) << 32) | ticks.dwLowDateTime;
}

std::uint64_t LocalTicks() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    now.wMilliseconds = 0;
    return Ticks(now);
}

// The user's locale, and back what it was.
class UserLocale {
  public:
    UserLocale(const wchar_t* decimal) {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before_, 8);
        SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, decimal);
    }
    ~UserLocale() { SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before_); }
    UserLocale(const UserLocale&) = delete;
    UserLocale& operator=(const UserLocale&) = delete;

  private:
    wchar_t before_[8] = L"";
};

}  // namespace

TEST(WindowsClock, TellsTheLocalTime) {
    WindowsClock clock;
    const std::uint64_t before = LocalTicks();
    const LocalTime now = clock.Now();
    const std::uint64_t after = LocalTicks();
    SYSTEMTIME told{};
    told.wYear = static_cast<WORD>(now.Year);
    told.wMonth = static_cast<WORD>(now.Month);
    told.wDay = static_cast<WORD>(now.Day);
    told.wHour = static_cast<WORD>(now.Hour);
    told.wMinute = static_cast<WORD>(now.Minute);
    told.wSecond = static_cast<WORD>(now.Second);
    EXPECT_GE(Ticks(told), before);
    EXPECT_LE(Ticks(told), after);
}

TEST(WindowsClock, SleepsAsLongAsToldAndNeverRunsBackwards) {
    WindowsClock clock;
    const double before = clock.Seconds();
    clock.Sleep(60);
    clock.Sleep(-1);
    EXPECT_GE(clock.Seconds() - before, 0.040);  // the system's tick is 16 ms
}

TEST(WindowsClock, NamesTwelveMonths) {
    WindowsClock clock;
    EXPECT_EQ(clock.MonthName(1), "January");
    EXPECT_EQ(clock.MonthName(5), "May");
    EXPECT_EQ(clock.MonthName(12), "December");
}

TEST(WindowsClock, ReadsTheUsersOwnDecimalSeparator) {
    {
        const UserLocale german(L",");
        EXPECT_EQ(WindowsClock().DecimalSeparator(), ',');
    }
    const UserLocale english(L".");
    EXPECT_EQ(WindowsClock().DecimalSeparator(), '.');
}

TEST(WindowsClock, IsNoWindows95) {
    EXPECT_FALSE(WindowsClock().IsWin9x());
}

}  // namespace lv
