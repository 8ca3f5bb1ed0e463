// platform/windows/windows_clock.h
//
// Time, and the user's locale as the system's control panel has it.

#pragma once

#include "platform/clock.h"

namespace lv {

class WindowsClock : public Clock {
  public:
    LocalTime Now() override;
    double Seconds() override;
    void Sleep(int milliseconds) override;
    std::string MonthName(int month) override;
    char DecimalSeparator() override;
    bool IsWin9x() override;
};

}  // namespace lv
