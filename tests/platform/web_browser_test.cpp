#include "platform/web_browser.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdlib>
#include <string>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

/// Nothing on PATH but an xdg-open that does these lines; without lines, nothing.
class Opener {
  public:
    explicit Opener(const std::string& lines) : path_(std::getenv("PATH")) {
        if (!lines.empty()) {
            WriteBytes(scratch_ / "xdg-open", "#!/bin/sh\ncd \"${0%/*}\"\n" + lines);
            chmod((scratch_ / "xdg-open").c_str(), 0755);
        }
        setenv("PATH", scratch_.Path().c_str(), 1);
    }
    ~Opener() { setenv("PATH", path_.c_str(), 1); }
    Opener(const Opener&) = delete;
    Opener& operator=(const Opener&) = delete;

    [[nodiscard]] std::string Wrote() const { return BytesOf(scratch_ / "out"); }

  private:
    std::string path_;
    ScratchDirectory scratch_;
};

}  // namespace

TEST(WebBrowser, IsHandedTheAddressAsItIs) {
    const Opener opener("printf '%s|' \"$@\" >out");
    EXPECT_EQ(OpenInBrowser("https://lorvane3d.example/?a=1&b=$HOME \xE9").Number, 0);
    EXPECT_EQ(opener.Wrote(), "https://lorvane3d.example/?a=1&b=$HOME \xC3\xA9|");
}

TEST(WebBrowser, IsMissingWithoutAnOpenerOrWithOneThatKnowsNone) {
    {
        const Opener none("");
        EXPECT_EQ(OpenInBrowser("https://lorvane3d.example/").Number, 53);
    }
    const Opener knowsNone("exit 3");
    EXPECT_EQ(OpenInBrowser("https://lorvane3d.example/").Number, 53);
}

TEST(WebBrowser, FailsWhenTheOpenerDoes) {
    for (const char* end : {"exit 1", "exit 2", "exit 4", "kill -9 $$"}) {
        const Opener opener(end);
        EXPECT_EQ(OpenInBrowser("https://lorvane3d.example/").Number, 57) << end;
    }
}

TEST(WebBrowser, MayStayWhenTheOpenerHasBecomeIt) {
    const Opener opener("/bin/sleep 3\n/bin/echo done >out");
    const auto before = std::chrono::steady_clock::now();
    EXPECT_EQ(OpenInBrowser("https://lorvane3d.example/").Number, 0);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(2900));
    EXPECT_EQ(opener.Wrote(), "(none)");
    for (int i = 0; i < 100 && opener.Wrote() != "done\n"; ++i) {
        ASSERT_EQ(std::system("/bin/sleep 0.1"), 0);
    }
    EXPECT_EQ(opener.Wrote(), "done\n");
}

}  // namespace lv
