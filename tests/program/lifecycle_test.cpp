#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <thread>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using ::testing::HasSubstr;

// How long GTK shows a box or a button pressed and hears no other key.
constexpr std::chrono::milliseconds kPressedBox{500};

TEST(Lifecycle, ShowsTheSplashAndThenTheWindow) {
    ProgramHome home("splash");
    home.Prepare();
    ProgramRun program(home);
    EXPECT_TRUE(WaitUntil([&] { return !ShownWindowsOf(program.Id(), kPlainTitle).empty(); }));
    EXPECT_FALSE(program.WindowIsShown());
    EXPECT_NE(program.WaitForWindow(), "");
    EXPECT_TRUE(WaitUntil([&] { return ShownWindowsOf(program.Id(), kPlainTitle).empty(); }));
}

TEST(Lifecycle, EndsByF12WithItsStateStored) {
    ProgramHome home("f12");
    home.Prepare();
    ProgramRun program(home);
    EXPECT_EQ(program.EndByF12(), 0);
    EXPECT_EQ(home.Get("LV-Stuff", "RunCount"), "1");
    EXPECT_EQ(home.Get("VideoProfile_Frm", "LoadAtStartup"), "0");
    EXPECT_EQ(home.Get("LV_Frm", "WindowState"), "0");
    for (const char* const key : {"Top", "Left", "Height", "Width"}) {
        EXPECT_NE(home.Get("LV_Frm", key), "(none)") << key;
    }
}

TEST(Lifecycle, CountsEveryRun) {
    ProgramHome home("run_count");
    home.Prepare();
    ExpectAStartThatWorks(home);
    ExpectAStartThatWorks(home);
    EXPECT_EQ(home.Get("LV-Stuff", "RunCount"), "2");
}

TEST(Lifecycle, ComesUpSmallerWithFewerParts) {
    ProgramHome home("sizes");
    home.Prepare();
    std::vector<Rectangle> places;
    for (const char* const parts : {"Yes", "No", "Hell-No"}) {
        home.Set("Options", "ShowAll", parts);
        ProgramRun program(home);
        places.push_back(PlaceOf(program.WaitForWindow()));
        EXPECT_EQ(program.EndByF12(), 0);
    }
    ASSERT_EQ(places.size(), 3U);
    EXPECT_LT(places[1].Height, places[0].Height);
    EXPECT_LT(places[2].Height, places[1].Height);
    EXPECT_LE(places[1].Width, places[0].Width);
    EXPECT_LE(places[2].Width, places[1].Width);
}

TEST(Lifecycle, ComesUpInTheSizeThatTheMenuGives) {
    ProgramHome home("size_by_menu");
    home.Prepare();
    ProgramRun first(home);
    const std::string window = first.WaitForWindow();
    const int whole = PlaceOf(window).Height;
    ASSERT_TRUE(Activate(window));
    PressKey("alt+o");
    PressKey("b");
    ASSERT_TRUE(WaitUntil([&] { return home.Get("Options", "ShowAll") == "Hell-No"; }));
    ASSERT_TRUE(WaitUntil([&] { return PlaceOf(window).Height < whole; }));
    const int chosen = PlaceOf(window).Height;
    ASSERT_EQ(first.EndByF12(), 0);
    ProgramRun second(home);
    const std::string again = second.WaitForWindow();
    EXPECT_TRUE(WaitUntil([&] { return PlaceOf(again).Height == chosen; }))
        << PlaceOf(again).Height << ", not " << chosen;
}

TEST(Lifecycle, DoesNotGrowWithEveryChangeOfItsParts) {
    ProgramHome home("size_round");
    home.Prepare();
    ProgramRun program(home);
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    const Rectangle whole = PlaceOf(window);
    for (int round = 0; round < 2; ++round) {
        PressKey("alt+o");
        PressKey("s");
        ASSERT_TRUE(WaitUntil([&] { return PlaceOf(window).Height < whole.Height; }));
        PressKey("alt+o");
        PressKey("Return");  // "Show &All Options", the first one; another shares its letter
        EXPECT_TRUE(WaitUntil([&] { return PlaceOf(window).Height == whole.Height; }));
        EXPECT_EQ(PlaceOf(window).Width, whole.Width);
    }
}

TEST(Lifecycle, LetsTheSessionEnd) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        ProgramHome home("session_end");
        home.Prepare();
        home.Set("LV_Frm", "Left", "750");
        home.Set("LV_Frm", "Top", "4500");
        ProgramRun program(home);
        const std::string window = program.WaitForWindow();
        ASSERT_TRUE(Activate(window));
        const Rectangle before = PlaceOf(window);
        OutputOf({"xdotool", "windowmove", window, "60", "320"});
        ASSERT_TRUE(WaitUntil([&] { return PlaceOf(window).Left != before.Left; }));
        program.Signal(signal);
        EXPECT_EQ(program.WaitForEnd(), 128 + signal);
        EXPECT_NE(home.Get("LV_Frm", "Left"), "750");
        EXPECT_NE(home.Get("LV_Frm", "Top"), "4500");
        EXPECT_EQ(home.Get("VideoProfile_Frm", "LoadAtStartup"), "0");
    }
}

TEST(Lifecycle, LetsTheSessionEndUnderABox) {
    ProgramHome home("session_end_box");
    home.Prepare();
    ProgramRun program(home);
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    PressKey("alt+h");
    PressKey("a");
    ASSERT_NE(program.WaitForDialog("About"), "");
    program.Signal(SIGTERM);
    EXPECT_EQ(program.WaitForEnd(), 128 + SIGTERM);
    EXPECT_EQ(home.Get("VideoProfile_Frm", "LoadAtStartup"), "0");
}

TEST(EmptyList, IsAskedAboutAndStaysEmptyOnNo) {
    ProgramHome home("empty_list");
    home.Set("LV-Stuff", "FirstTime", "0");
    ProgramRun program(home);
    ASSERT_NE(program.WaitForDialog("^Executables List Is Empty$"), "");
    PressKey("alt+n");
    EXPECT_NE(program.WaitForWindow(), "");
    EXPECT_EQ(home.Get("Options", "Executables"), "(none)");
    EXPECT_EQ(program.EndByF12(), 0);
}

TEST(FirstRun, FindsTheGameByItsSearchAndF2LaunchesIt) {
    ProgramHome home("first_run");
    home.MakeGame();
    ProgramRun program(home);
    ASSERT_TRUE(WaitUntil([&] { return !ShownWindowsOf(program.Id(), kChipsetTitle).empty(); }));
    KeepScreenshot("first_run_chipset");
    ASSERT_NE(program.WaitForDialog(kChipsetTitle), "");
    PressKey("Return");
    const std::string verify = program.WaitForDialog("^Verify Setup Information$");
    ASSERT_NE(verify, "");
    PressKey("Return");
    ASSERT_TRUE(WaitUntil([&] { return ShownWindowsOf(program.Id(), "^Verify Setup Information$").empty(); }));
    const std::string games = program.WaitForDialog(kChipsetTitle);
    ASSERT_NE(games, "");
    PressKey("space");  // ticks the first game, Quake
    std::this_thread::sleep_for(kPressedBox);
    PressKey("alt+d");  // "&Do An Auto-Search"
    std::this_thread::sleep_for(kPressedBox);
    KeepScreenshot("first_run_games");
    PressKey("alt+o");  // "&OK"
    const std::string window = program.WaitForWindow();
    ASSERT_NE(window, "");
    EXPECT_EQ(home.Get("LV-Stuff", "FirstTime"), "0");
    EXPECT_THAT(home.Get("Options", "Executables"), HasSubstr("c:\\quake\\quake.exe"));
    EXPECT_EQ(home.Get("Options", "VidCard"), "1");
    EXPECT_TRUE(Activate(window));
    PressKey("F2");
    EXPECT_FALSE(WaitForOutput(home.Quake / "output.txt").empty());
}

TEST(FirstRun, StaysAFirstRunWhenItIsCancelled) {
    ProgramHome home("first_run_cancelled");
    ProgramRun program(home);
    ASSERT_NE(program.WaitForDialog(kChipsetTitle), "");
    PressKey("Escape");
    const std::string box = program.WaitForDialog(kPlainTitle);
    EXPECT_EQ(program.TextOfBox(box), "Setup cancelled at users request.");
    PressKey("alt+o");
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(home.Get("LV-Stuff", "FirstTime"), "(none)");
}

}  // namespace

}  // namespace lv
