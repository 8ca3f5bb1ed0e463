#include <gtest/gtest.h>
#include <signal.h>

#include <filesystem>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

/// Starts a second program in that home, which is to end by itself and to say nothing.
void ExpectASilentEnd(const ProgramHome& home) {
    ProgramRun second(home);
    EXPECT_EQ(second.WaitForEnd(), 0);
    EXPECT_FALSE(second.WindowIsShown());
}

TEST(SecondInstance, BringsACoveredWindowToTheFront) {
    ProgramHome home("second_covered");
    home.Prepare();
    ProgramRun first(home);
    const std::string window = first.WaitForWindow();
    const OwnProcess cover(home, {"xterm", "-geometry", "160x60+0+0", "-T", "Cover", "-e", "sleep", "60"});
    ASSERT_TRUE(WaitUntil([&] { return !TopWindow().empty() && TopWindow() != window; }));
    ExpectASilentEnd(home);
    EXPECT_TRUE(WaitUntil([&] { return TopWindow() == window && ActiveWindow() == window; }));
    EXPECT_EQ(first.EndByF12(), 0);
    EXPECT_EQ(home.Get("LV-Stuff", "RunCount"), "1");
}

TEST(SecondInstance, BringsAMinimisedWindowBack) {
    ProgramHome home("second_minimised");
    home.Prepare();
    ProgramRun first(home);
    const std::string window = first.WaitForWindow();
    OutputOf({"xdotool", "windowminimize", window});
    ASSERT_TRUE(WaitUntil([&] { return StateOf(window) == "Iconic"; }));
    ExpectASilentEnd(home);
    EXPECT_TRUE(WaitUntil([&] { return IsShown(window) && ActiveWindow() == window; }));
    EXPECT_EQ(StateOf(window), "Normal");
}

TEST(SecondInstance, BringsAWindowBackFromTheTray) {
    ProgramHome home("second_tray");
    home.Prepare();
    const OwnProcess tray(home, kTrayHost);
    ASSERT_TRUE(WaitForTrayHost());
    ProgramRun first(home);
    const std::string window = first.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey("alt+F4");
    ASSERT_TRUE(WaitUntil([&] { return StateOf(window) == "Withdrawn"; }));
    ExpectASilentEnd(home);
    EXPECT_TRUE(WaitUntil([&] { return IsShown(window) && ActiveWindow() == window; }));
}

TEST(SecondInstance, IsNotKeptFromStartingByOneThatWasKilled) {
    ProgramHome home("second_killed");
    home.Prepare();
    ProgramRun first(home);
    ASSERT_NE(first.WaitForWindow(), "");
    first.Kill();
    ExpectAStartThatWorks(home);
}

TEST(SecondInstance, ThatWasInterruptedLaunchesNothingLater) {
    ProgramHome home("second_interrupted");
    home.Prepare();
    home.Set("Options", "Executables", "Quake;c:\\quake\\quake.exe;Gone;c:\\gone\\gone.exe");
    ProgramRun first(home);
    ASSERT_NE(first.WaitForDialog("^Game Not Found...$"), "");
    OwnProcess impatient(home, {TestBinaryDir() + "/lorvane3d", "--launch", "Quake"});
    EXPECT_EQ(impatient.WaitForEnd(700), std::nullopt) << "it waits";
    impatient.Signal(SIGINT);
    EXPECT_TRUE(impatient.WaitForEnd().has_value());
    PressKey("alt+g");
    const std::string window = first.WaitForWindow();
    ASSERT_NE(window, "");
    ExpectASilentEnd(home);  // its knock stands behind the launch
    EXPECT_FALSE(std::filesystem::exists(home.Quake / "lv_666.bat"));
    EXPECT_TRUE(IsShown(window));
    EXPECT_EQ(first.EndByF12(), 0);
}

TEST(SecondInstance, IsAProgramOfItsOwnWithOtherSettings) {
    ProgramHome home("second_here");
    ProgramHome other("second_there");
    home.Prepare();
    other.Prepare();
    ProgramRun first(home);
    ASSERT_NE(first.WaitForWindow(), "");
    ProgramRun second(other);
    EXPECT_NE(second.WaitForWindow(), "");
    EXPECT_TRUE(first.WindowIsShown());
    EXPECT_EQ(second.EndByF12(), 0);
    EXPECT_EQ(first.EndByF12(), 0);
}

}  // namespace

}  // namespace lv
