// What the real program does when there is no memory for what a click wants.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

using ::testing::HasSubstr;

namespace fs = std::filesystem;

constexpr const char* kAboutTitle = "^About Lorvane 3D";

void OpenAboutBox(const std::string& window) {
    ASSERT_TRUE(Activate(window));
    PressKey("alt+h");
    PressKey("a");
}

}  // namespace

TEST(Memory, ThatAClickCannotHaveIsToldAndTheProgramGoesOn) {
    ProgramHome home("want_of_memory");
    home.Prepare();
    const fs::path sign = home.Root / "want_of_memory";
    ProgramRun program(home, Environment{"LD_PRELOAD=" + TestBinaryDir() + "/tests/liblv_want_of_memory.so",
                                         "LV_WANT_OF_MEMORY=" + sign.string()});
    const std::string window = program.WaitForWindow();
    // The click reads it, and nothing else does.
    home.Set("LV-Stuff", "LaunchCount", "1" + std::string(2 << 20, ' '));
    std::ofstream(sign) << "no";
    OpenAboutBox(window);
    const std::string box = program.WaitForDialog(kPlainTitle);
    KeepScreenshot("want_of_memory");
    const std::string text = program.TextOfBox(box);
    EXPECT_THAT(text, HasSubstr("What was under way has been given up."));
    EXPECT_THAT(text, HasSubstr("Error Number = 7"));
    PressKey("Escape");
    ASSERT_TRUE(WaitUntil([&] { return !IsShown(box); }));

    fs::remove(sign);
    home.Set("LV-Stuff", "LaunchCount", "1");
    OpenAboutBox(window);
    ASSERT_NE(program.WaitForDialog(kAboutTitle), "") << "what was given up can be had again";
    PressKey("Escape");
    EXPECT_EQ(program.EndByF12(), 0);
}

}  // namespace lv
