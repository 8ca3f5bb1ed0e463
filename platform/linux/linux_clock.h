// platform/linux/linux_clock.h
//
// Time, and the user's locale for dates and numbers. The C locale of the process stays "C".

#pragma once

#include <clocale>

#include "platform/clock.h"

namespace lv {

class LinuxClock : public Clock {
  public:
    /// Takes the locale from the environment; one that is not installed counts as "C".
    LinuxClock();
    ~LinuxClock() override;
    LinuxClock(const LinuxClock&) = delete;
    LinuxClock& operator=(const LinuxClock&) = delete;

    LocalTime Now() override;
    double Seconds() override;
    void Sleep(int milliseconds) override;
    std::string MonthName(int month) override;
    char DecimalSeparator() override;
    bool IsWin9x() override { return false; }

  private:
    locale_t locale_;
};

}  // namespace lv
