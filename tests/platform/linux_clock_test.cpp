#include "platform/linux/linux_clock.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

#include "tests/platform/scratch_directory.h"

// The C library's newlocale forgets to free its copy of LOCPATH, which only these tests set.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:argz_add_sep";  // with "__" before it where libc has its debug symbols
}

namespace lv {

namespace {

// Gives the environment a value, and back what it had.
class Setting {
  public:
    Setting(const char* name, const std::string& value) : name_(name) {
        if (const char* old = std::getenv(name)) {
            old_ = old;
        }
        setenv(name, value.c_str(), 1);
    }
    ~Setting() {
        if (old_) {
            setenv(name_, old_->c_str(), 1);
        } else {
            unsetenv(name_);
        }
    }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

  private:
    const char* name_;
    std::optional<std::string> old_;
};

// A locale of the system's own sources (Debian: locales), compiled for this test.
void MakeLocale(const ScratchDirectory& scratch, const std::string& source, const std::string& encoding,
                const std::string& name) {
    const std::string line =
        "localedef -i " + source + " -f " + encoding + " '" + (scratch / name).string() + "' >/dev/null 2>&1";
    ASSERT_EQ(std::system(line.c_str()), 0) << line;
}

}  // namespace

TEST(LinuxClock, TellsTheLocalTime) {
    const Setting zone("TZ", "UTC0");
    tzset();
    LinuxClock clock;
    const std::time_t before = std::time(nullptr);
    const LocalTime now = clock.Now();
    const std::time_t after = std::time(nullptr);
    std::tm told{};
    told.tm_year = now.Year - 1900;
    told.tm_mon = now.Month - 1;
    told.tm_mday = now.Day;
    told.tm_hour = now.Hour;
    told.tm_min = now.Minute;
    told.tm_sec = now.Second;
    const std::time_t moment = timegm(&told);
    EXPECT_GE(moment, before);
    EXPECT_LE(moment, after);
}

TEST(LinuxClock, SleepsAsLongAsToldAndNeverRunsBackwards) {
    LinuxClock clock;
    const double before = clock.Seconds();
    clock.Sleep(30);
    clock.Sleep(-1);
    EXPECT_GE(clock.Seconds() - before, 0.030);
}

TEST(LinuxClock, SpeaksTheUsersLanguageInCodePage1252) {
    const ScratchDirectory scratch;
    MakeLocale(scratch, "fr_FR", "UTF-8", "fr_FR.UTF-8");
    const Setting path("LOCPATH", scratch.Path().string());
    const Setting all("LC_ALL", "fr_FR.UTF-8");
    LinuxClock clock;
    EXPECT_EQ(clock.MonthName(2), "f\xE9vrier");
    EXPECT_EQ(clock.MonthName(8), "ao\xFBt");
    EXPECT_EQ(clock.DecimalSeparator(), ',');
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
}

TEST(LinuxClock, UnderstandsALocaleOfAnotherEncoding) {
    const ScratchDirectory scratch;
    MakeLocale(scratch, "de_AT", "ISO-8859-1", "de_AT.ISO-8859-1");
    const Setting path("LOCPATH", scratch.Path().string());
    const Setting all("LC_ALL", "de_AT.ISO-8859-1");
    LinuxClock clock;
    EXPECT_EQ(clock.MonthName(1), "J\xE4nner");
    EXPECT_EQ(clock.DecimalSeparator(), ',');
}

TEST(LinuxClock, FallsBackToEnglishWithAPoint) {
    const Setting all("LC_ALL", "xx_XX.none");
    LinuxClock clock;
    EXPECT_EQ(clock.MonthName(1), "January");
    EXPECT_EQ(clock.MonthName(12), "December");
    EXPECT_EQ(clock.DecimalSeparator(), '.');
}

TEST(LinuxClock, IsNoWindows95) {
    EXPECT_FALSE(LinuxClock().IsWin9x());
}

}  // namespace lv
