#include "launcher/menu/button_bar.h"

#include "gamespy/game_spy_config.h"
#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

struct Written {
    const char* ToolTip;
    const char* Picture;
};

constexpr Written kWritten[] = {
    {"Launch [F2]", "launch"},
    {"Edit Current Script with Setup Foundry [F3]", "edit_script"},
    {"Configure & Launch GameSpy", "gamespy"},
    {"Reset GL Options for Speed (Overclocked)", "speed"},
    {"Reset GL Options for Beauty", "beauty"},
    {"Resize Lorvane 3D", "resize"},
    {"Minimize Lorvane 3D", "minimize"},
    {"Close Lorvane 3D [F12]", "close"},
    {"Help!! [F1]", "help"},
};

class BarButtons : public ::testing::TestWithParam<int> {};

class ButtonBar : public LauncherTest {
  protected:
    ButtonBar() { AddGames(); }
};

}  // namespace

TEST_P(BarButtons, HaveTheirToolTipsAndPictures) {
    const auto index = static_cast<std::size_t>(GetParam());
    EXPECT_STREQ(BarButtonRows()[index].ToolTip, kWritten[index].ToolTip);
    EXPECT_STREQ(BarButtonRows()[index].Picture, kWritten[index].Picture);
    EXPECT_EQ(LV_Frm().ButtonBar_Cmd[index].ToolTip, kWritten[index].ToolTip);
}

INSTANTIATE_TEST_SUITE_P(All, BarButtons, ::testing::Range(0, 9));

TEST(BarButtonTable, HasNineRows) {
    EXPECT_EQ(BarButtonRows().size(), 9u);
}

TEST_F(ButtonBar, TheFirstLaunches) {
    Load();
    ButtonBar_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(ButtonBar, EditScriptIsTheClickOfItsMenuItem) {
    int opened = 0;
    launcher.OpenSetupFoundry = [&] { ++opened; };
    ButtonBar_Cmd_Click(launcher, 1);
    EXPECT_EQ(opened, 1);
    window.Bar(MenuItem::SetupFoundry_Bar).Enabled = false;
    ButtonBar_Cmd_Click(launcher, 1);
    EXPECT_EQ(opened, 1);
}

TEST_F(ButtonBar, AProgramWithoutTheScriptEditorOpensNone) {
    ButtonBar_Cmd_Click(launcher, 1);
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(ButtonBar, GameSpyTicksItsBoxAndLaunches) {
    Load();
    user.In<GameSpyConfig_Frm>([](GameSpyConfig_Frm& form) { GameSpyConfig_Cancel_Cmd_Click(form); });
    ButtonBar_Cmd_Click(launcher, 2);
    EXPECT_EQ(window.Box(Option::LaunchQspy_Chk).Value, 1);
    EXPECT_EQ(Stored(kOptions, "LaunchQSpy"), "1");
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(ButtonBar, SpeedSelectsTheSecondProfile) {
    Load();
    ButtonBar_Cmd_Click(launcher, 3);
    EXPECT_EQ(window.VideoProfiles_Cbo.ListIndex, 1);
    EXPECT_EQ(run.VideoProfileSection, "Optimize for Speed");
    EXPECT_EQ(Stored(kOptions, "VideoProfilePos"), "1");
}

TEST_F(ButtonBar, BeautySelectsTheThirdProfile) {
    Load();
    ButtonBar_Cmd_Click(launcher, 4);
    EXPECT_EQ(window.VideoProfiles_Cbo.ListIndex, 2);
    EXPECT_EQ(run.VideoProfileSection, "Optimize for Beauty");
    EXPECT_EQ(Stored(kOptions, "VideoProfilePos"), "2");
}

TEST_F(ButtonBar, BeautyWithTwoProfilesDoesNothing) {
    Save(run, kOptions, "VideoProfileList", "Base;Mine");
    Load();
    ButtonBar_Cmd_Click(launcher, 4);
    EXPECT_EQ(window.VideoProfiles_Cbo.ListIndex, 0);
    EXPECT_EQ(run.VideoProfileSection, "Options");
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(ButtonBar, SpeedWithOneProfileDoesNothing) {
    Save(run, kOptions, "VideoProfileList", "Base");
    Load();
    ButtonBar_Cmd_Click(launcher, 3);
    EXPECT_EQ(window.VideoProfiles_Cbo.ListIndex, 0);
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(ButtonBar, ResizeGoesRound) {
    ButtonBar_Cmd_Click(launcher, 5);
    EXPECT_EQ(window.SizeMode, WindowSizeMode::Some);
    ButtonBar_Cmd_Click(launcher, 5);
    EXPECT_EQ(window.SizeMode, WindowSizeMode::ButtonsOnly);
    ButtonBar_Cmd_Click(launcher, 5);
    EXPECT_EQ(window.SizeMode, WindowSizeMode::All);
}

TEST_F(ButtonBar, MinimizeHides) {
    window.Visible = true;
    ButtonBar_Cmd_Click(launcher, 6);
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(window.Bar(MenuItem::ShowLorvane_Bar).Caption, "&Show Lorvane 3D");
}

TEST_F(ButtonBar, CloseEndsTheProgram) {
    ButtonBar_Cmd_Click(launcher, 7);
    EXPECT_TRUE(run.Ended);
}

TEST_F(ButtonBar, HelpOpensTheHelpFile) {
    system.Disk.AddFile("C:\\LORVANE\\handbook\\handbook.hhp");
    ButtonBar_Cmd_Click(launcher, 8);
    EXPECT_EQ(user.Opened, (std::vector<Text>{"C:\\LORVANE\\handbook\\handbook.hhp"}));
}

TEST_F(ButtonBar, SpeedWithTwoProfilesDoesNothing) {
    Save(run, kOptions, "VideoProfileList", "Base;Mine");
    Load();
    ButtonBar_Cmd_Click(launcher, 3);
    EXPECT_EQ(window.VideoProfiles_Cbo.ListIndex, 0);
    EXPECT_EQ(run.VideoProfileSection, "Options");
    EXPECT_TRUE(user.Asked.empty());
}

}  // namespace lv
