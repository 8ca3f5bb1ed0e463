// platform/clock.h
//
// Time, and how the user's locale writes numbers and dates.

#pragma once

#include <string>

namespace lv {

struct LocalTime {
    int Year = 1970;
    int Month = 1;  // 1 to 12
    int Day = 1;
    int Hour = 0;
    int Minute = 0;
    int Second = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    virtual LocalTime Now() = 0;
    /// Seconds from some fixed moment; never runs backwards.
    virtual double Seconds() = 0;
    virtual void Sleep(int milliseconds) = 0;
    /// The full name of a month, 1 to 12, in the user's language.
    virtual std::string MonthName(int month) = 0;
    /// The locale's decimal separator, "." or ",".
    virtual char DecimalSeparator() = 0;
    /// True on the Windows 95 line, whose command lines end at 128 characters.
    virtual bool IsWin9x() = 0;
};

}  // namespace lv
