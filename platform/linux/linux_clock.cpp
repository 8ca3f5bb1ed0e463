#include "platform/linux/linux_clock.h"

#include <iconv.h>
#include <langinfo.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <ctime>

#include "platform/code_page.h"

namespace lv {

namespace {

constexpr nl_item kMonths[] = {MON_1, MON_2, MON_3, MON_4, MON_5, MON_6, MON_7, MON_8, MON_9, MON_10, MON_11, MON_12};

// A locale's text in UTF-8; as it is if its encoding is not known here.
std::string LocaleTextToUtf8(std::string text, const char* encoding) {
    const iconv_t converter = iconv_open("UTF-8", encoding);
    if (reinterpret_cast<std::intptr_t>(converter) == -1) {
        return text;
    }
    std::string utf8(text.size() * 4 + 16, '\0');
    char* in = text.data();
    char* out = utf8.data();
    std::size_t inLeft = text.size();
    std::size_t outLeft = utf8.size();
    iconv(converter, &in, &inLeft, &out, &outLeft);
    iconv_close(converter);
    utf8.resize(utf8.size() - outLeft);
    return utf8;
}

}  // namespace

LinuxClock::LinuxClock() : locale_(newlocale(LC_ALL_MASK, "", nullptr)) {
    if (locale_ == nullptr) {
        locale_ = newlocale(LC_ALL_MASK, "C", nullptr);
    }
}

LinuxClock::~LinuxClock() {
    freelocale(locale_);
}

LocalTime LinuxClock::Now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

double LinuxClock::Seconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

void LinuxClock::Sleep(int milliseconds) {
    milliseconds = std::max(milliseconds, 0);
    timespec left{milliseconds / 1000, milliseconds % 1000 * 1000000L};
    while (nanosleep(&left, &left) != 0 && errno == EINTR) {
    }
}

std::string LinuxClock::MonthName(int month) {
    const nl_item item = kMonths[std::clamp(month, 1, 12) - 1];
    return FromUtf8Lossy(LocaleTextToUtf8(nl_langinfo_l(item, locale_), nl_langinfo_l(CODESET, locale_)));
}

char LinuxClock::DecimalSeparator() {
    return std::string_view(nl_langinfo_l(RADIXCHAR, locale_)) == "," ? ',' : '.';
}

}  // namespace lv
