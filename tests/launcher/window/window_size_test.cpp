#include "launcher/window/window_size.h"

#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

// Pixels: OtherOpts_Pan ends at 500, Exe_Pan at 60, Command_Pan at 400, the last button at 200; the frame takes 97 down
// and 10 across.
constexpr WindowMeasures kMeasured = {500, 60, 400, 200, 97, 10};

class WindowSize : public LauncherTest {
  protected:
    WindowSize() {
        launcher.Measure = [] { return kMeasured; };
    }
    std::vector<bool> Checks() {
        return {window.Bar(MenuItem::ShowAll_Bar_0).Checked, window.Bar(MenuItem::ShowAll_Bar_1).Checked,
                window.Bar(MenuItem::ShowAll_Bar_2).Checked};
    }
};

}  // namespace

// 500 + 97 + 97 / 4 = 621.25; 400 * 1.04 + 10 = 426.
TEST(MainWindowSize, OfAllIsMadeFromTheOtherOptions) {
    EXPECT_EQ(MainWindowSize(WindowSizeMode::All, kMeasured), (PixelSize{426, 621}));
}

// 60 + 97 + 97 / 4.85 = 177.
TEST(MainWindowSize, OfSomeIsMadeFromTheExecutables) {
    EXPECT_EQ(MainWindowSize(WindowSizeMode::Some, kMeasured), (PixelSize{426, 177}));
}

// 200 * 1.05 + 10 = 220.
TEST(MainWindowSize, IsNeverMoreThanTheScreenHasRoomFor) {
    WindowMeasures measured = kMeasured;
    measured.RoomWidth = 960;
    measured.RoomHeight = 540;
    measured.BarWidth = 15;
    EXPECT_EQ(MainWindowSize(WindowSizeMode::All, measured), (PixelSize{441, 540}));
    EXPECT_EQ(MainWindowSize(WindowSizeMode::Some, measured), (PixelSize{426, 177}));
    measured.RoomWidth = 400;
    EXPECT_EQ(MainWindowSize(WindowSizeMode::All, measured), (PixelSize{400, 540}));
    EXPECT_EQ(MainWindowSize(WindowSizeMode::Some, measured), (PixelSize{400, 192}));
}

TEST(MainWindowSize, OfButtonsOnlyIsAsWideAsTheButtons) {
    EXPECT_EQ(MainWindowSize(WindowSizeMode::ButtonsOnly, kMeasured), (PixelSize{220, 177}));
}

TEST(WindowSizeParts, AllShowsEverything) {
    const ShownParts parts = PartsOf(WindowSizeMode::All);
    EXPECT_TRUE(parts.ButtonBar && parts.Exe && parts.Command && parts.Others);
}

TEST(WindowSizeParts, SomeShowsButtonsExecutablesAndCommands) {
    const ShownParts parts = PartsOf(WindowSizeMode::Some);
    EXPECT_TRUE(parts.ButtonBar && parts.Exe && parts.Command);
    EXPECT_FALSE(parts.Others);
}

TEST(WindowSizeParts, ButtonsOnlyShowsThoseAlone) {
    const ShownParts parts = PartsOf(WindowSizeMode::ButtonsOnly);
    EXPECT_TRUE(parts.ButtonBar);
    EXPECT_FALSE(parts.Exe || parts.Command || parts.Others);
}

TEST_F(WindowSize, BigWritesYes) {
    BigSize(launcher);
    EXPECT_EQ(window.SizeMode, WindowSizeMode::All);
    EXPECT_EQ(Checks(), (std::vector<bool>{true, false, false}));
    EXPECT_EQ(Stored(kOptions, "ShowAll"), "Yes");
    EXPECT_EQ(window.Size, (PixelSize{426, 621}));
}

TEST_F(WindowSize, LittleWritesNo) {
    LittleSize(launcher);
    EXPECT_EQ(window.SizeMode, WindowSizeMode::Some);
    EXPECT_EQ(Checks(), (std::vector<bool>{false, true, false}));
    EXPECT_EQ(Stored(kOptions, "ShowAll"), "No");
    EXPECT_EQ(window.Size, (PixelSize{426, 177}));
}

TEST_F(WindowSize, MiniWritesHellNo) {
    MiniSize(launcher);
    EXPECT_EQ(window.SizeMode, WindowSizeMode::ButtonsOnly);
    EXPECT_EQ(Checks(), (std::vector<bool>{false, false, true}));
    EXPECT_EQ(Stored(kOptions, "ShowAll"), "Hell-No");
    EXPECT_EQ(window.Size, (PixelSize{220, 177}));
}

TEST_F(WindowSize, TheWordsReadBack) {
    EXPECT_EQ(ModeOfWord("Yes"), WindowSizeMode::All);
    EXPECT_EQ(ModeOfWord("No"), WindowSizeMode::Some);
    EXPECT_EQ(ModeOfWord("Hell-No"), WindowSizeMode::ButtonsOnly);
    EXPECT_EQ(ModeOfWord("yes"), WindowSizeMode::ButtonsOnly);
}

TEST_F(WindowSize, TheNewSizeIsRemembered) {
    ShowAll_Bar_Click(launcher, 2);
    EXPECT_EQ(window.Remembered, (PixelSize{220, 177}));
    EXPECT_EQ(window.Placement.Width, 3300);
    EXPECT_EQ(window.Placement.Height, 2655);
}

TEST_F(WindowSize, IsMeasuredWhileTheFlagIsUpAndTheModeIsSet) {
    bool changing = false;
    WindowSizeMode mode = WindowSizeMode::All;
    launcher.Measure = [&] {
        changing = window.SizeChanging;
        mode = window.SizeMode;
        return kMeasured;
    };
    MiniSize(launcher);
    EXPECT_TRUE(changing);
    EXPECT_EQ(mode, WindowSizeMode::ButtonsOnly);
    EXPECT_FALSE(window.SizeChanging);
}

TEST_F(WindowSize, OneThatTheProgramSetsStartsNoTimer) {
    launcher.Measure = [&] {
        LV_Frm_Resize(launcher, kWindowNormal, {1, 1});
        return kMeasured;
    };
    BigSize(launcher);
    EXPECT_FALSE(window.Size_Tmr_Enabled);
}

TEST_F(WindowSize, OneThatTheUserDragsComesBack) {
    BigSize(launcher);
    LV_Frm_Resize(launcher, kWindowNormal, {900, 700});
    EXPECT_TRUE(window.Size_Tmr_Enabled);
    Size_Tmr_Timer(window, {900, 700});
    EXPECT_EQ(window.Size, (PixelSize{426, 621}));
    EXPECT_TRUE(window.Size_Tmr_Enabled);
    Size_Tmr_Timer(window, {426, 621});
    EXPECT_FALSE(window.Size_Tmr_Enabled);
    EXPECT_EQ(kSizeTimerMilliseconds, 2000);
}

TEST_F(WindowSize, TheRememberedOneStartsNoTimer) {
    BigSize(launcher);
    LV_Frm_Resize(launcher, kWindowNormal, {426, 621});
    EXPECT_FALSE(window.Size_Tmr_Enabled);
}

TEST_F(WindowSize, MinimisingHides) {
    window.Visible = true;
    window.EverShown = true;
    run.MainFormLoaded = true;
    LV_Frm_Resize(launcher, kWindowMinimised, {});
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(window.Bar(MenuItem::ShowLorvane_Bar).Caption, "&Show Lorvane 3D");
    EXPECT_EQ(window.Placement.WindowState, kWindowMinimised);
    EXPECT_FALSE(window.Size_Tmr_Enabled);
}

TEST_F(WindowSize, AnotherStateShowsTheWindowAgain) {
    window.EverShown = true;
    run.MainFormLoaded = true;
    LV_Frm_Resize(launcher, kWindowNormal, {});
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(window.Bar(MenuItem::ShowLorvane_Bar).Caption, "&Hide Lorvane 3D");
}

TEST_F(WindowSize, AResizeInTheLoadShowsNothing) {
    LV_Frm_Resize(launcher, kWindowNormal, {});
    EXPECT_FALSE(window.Visible);
}

}  // namespace lv
