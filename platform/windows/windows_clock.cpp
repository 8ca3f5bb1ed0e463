#include "platform/windows/windows_clock.h"

#include <algorithm>
#include <array>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

// The system's numbers of the twelve names follow one another.
static_assert(LOCALE_SMONTHNAME12 == LOCALE_SMONTHNAME1 + 11);

std::wstring OfLocale(LCTYPE what) {
    std::array<wchar_t, 128> text{};
    const int length = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, what, text.data(), static_cast<int>(text.size()));
    return {text.data(), static_cast<std::size_t>(std::max(length - 1, 0))};
}

}  // namespace

LocalTime WindowsClock::Now() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

double WindowsClock::Seconds() {
    LARGE_INTEGER ticks{};
    LARGE_INTEGER second{};
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&second);
    return static_cast<double>(ticks.QuadPart) / static_cast<double>(second.QuadPart);
}

void WindowsClock::Sleep(int milliseconds) {
    ::Sleep(static_cast<DWORD>(std::max(milliseconds, 0)));
}

std::string WindowsClock::MonthName(int month) {
    return FromWideLossy(OfLocale(LOCALE_SMONTHNAME1 + static_cast<LCTYPE>(std::clamp(month, 1, 12) - 1)));
}

char WindowsClock::DecimalSeparator() {
    return OfLocale(LOCALE_SDECIMAL) == L"," ? ',' : '.';
}

bool WindowsClock::IsWin9x() {
    return (GetVersion() & 0x80000000u) != 0;
}

}  // namespace lv
