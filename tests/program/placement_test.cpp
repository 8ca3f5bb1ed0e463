#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"

namespace lv {

namespace {

void MoveTo(const std::string& window, int left, int top) {
    OutputOf({"xdotool", "windowmove", window, std::to_string(left), std::to_string(top)});
}

TEST(Placement, IsTheOneOfTheLastRun) {
    ProgramHome home("placement");
    home.Prepare();
    home.Set("Options", "ShowAll", "No");
    ProgramRun first(home);
    const std::string window = first.WaitForWindow();
    const Rectangle start = PlaceOf(window);
    ASSERT_TRUE(Activate(window));
    MoveTo(window, 40, 350);
    ASSERT_TRUE(WaitUntil([&] { return std::abs(PlaceOf(window).Top - 350) < 40; }));
    const Rectangle left = PlaceOf(window);
    ASSERT_GT(std::abs(left.Top - start.Top), 20);
    ASSERT_EQ(first.EndByF12(), 0);

    ProgramRun second(home);
    const std::string again = second.WaitForWindow();
    EXPECT_TRUE(WaitUntil([&] {
        const Rectangle now = PlaceOf(again);
        return now.Left == left.Left && now.Top == left.Top;
    })) << PlaceOf(again).Left
        << ", " << PlaceOf(again).Top << ", not " << left.Left << ", " << left.Top;
    ASSERT_EQ(second.EndByF12(), 0);
}

TEST(Placement, DoesNotWanderFromRunToRun) {
    ProgramHome home("placement_steady");
    home.Prepare();
    home.Set("Options", "ShowAll", "No");
    home.Set("LV_Frm", "Left", "750");
    home.Set("LV_Frm", "Top", "4500");
    for (int run = 0; run < 3; ++run) {
        ExpectAStartThatWorks(home);
        EXPECT_EQ(home.Get("LV_Frm", "Left"), "750");
        EXPECT_EQ(home.Get("LV_Frm", "Top"), "4500");
    }
}

TEST(Placement, IsTheMiddleForAWindowLeftBelowTheScreen) {
    ProgramHome home("placement_below");
    home.Prepare();
    home.Set("LV_Frm", "Left", "300");
    home.Set("LV_Frm", "Top", "30000");
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    // The virtual screen has 1024 by 768 pixels.
    EXPECT_TRUE(WaitUntil([&] {
        const Rectangle now = PlaceOf(window);
        return std::abs(now.Left + now.Width / 2 - 512) <= 20 && std::abs(now.Top + now.Height / 2 - 384) <= 40;
    })) << PlaceOf(window).Left
        << ", " << PlaceOf(window).Top;
}

// As it was stored on 1920 by 1080 pixels, in the middle.
TEST(Placement, IsWhollyOnAScreenThatIsSmallerThanTheLast) {
    ProgramHome home("placement_smaller");
    home.Prepare();
    home.Set("LV_Frm", "Left", std::to_string(600 * 15));
    home.Set("LV_Frm", "Top", std::to_string(300 * 15));
    home.Set("LV_Frm", "ScreenWidth", std::to_string(1920 * 15));
    home.Set("LV_Frm", "ScreenHeight", std::to_string(1080 * 15));
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    EXPECT_TRUE(WaitUntil([&] {
        const Rectangle now = PlaceOf(window);
        return now.Left >= 0 && now.Top >= 0 && now.Left + now.Width <= 1024 && now.Top + now.Height <= 768;
    })) << PlaceOf(window).Left
        << ", " << PlaceOf(window).Top;
    ASSERT_EQ(program.EndByF12(), 0);
    EXPECT_EQ(home.Get("LV_Frm", "ScreenWidth"), std::to_string(1024 * 15));
}

TEST(Placement, PutsTheSizeBackWithinTwoSecondsAndAHalf) {
    ProgramHome home("placement_size");
    home.Prepare();
    home.Set("Options", "ShowAll", "No");
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    const Rectangle before = PlaceOf(window);
    OutputOf({"xdotool", "windowsize", window, std::to_string(before.Width + 60), std::to_string(before.Height + 80)});
    EXPECT_TRUE(WaitUntil(
        [&] {
            const Rectangle now = PlaceOf(window);
            return now.Width == before.Width && now.Height == before.Height;
        },
        2500));
}

}  // namespace

}  // namespace lv
