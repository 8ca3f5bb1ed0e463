#include "commands/rehearse_launch.h"

#include "launcher/setups/row_picks.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class RehearseLaunchTest : public LauncherTest {
  protected:
    void Open() {
        AddGames();
        Load();
        ConnectDryRun(launcher, [this] { return CommandPlace{system.Services}; });
    }
};

TEST_F(RehearseLaunchTest, TheWindowsDryRunIsOfWhatItHoldsBoxesThatAreNotStoredToo) {
    Open();
    ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE2\\QUAKE2.EXE"));
    Click(Option::nosound_chk, 1);
    user.Expect({"Dry Run", "QUAKE2.EXE -zone 512 +set s_initsound 0", 0});
    launcher.ShowDryRun();
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE2\\lv_666.bat"));
    EXPECT_EQ(window.Box(Option::nosound_chk).Value, 1);
}

TEST_F(RehearseLaunchTest, TheReportCanBeCopied) {
    Open();
    user.Expect({"Dry Run", "A dry run: nothing was written", 1});
    launcher.ShowDryRun();
    EXPECT_TRUE(system.Clip.Held.starts_with("A dry run: nothing was written"));
}

TEST_F(RehearseLaunchTest, WithoutGamesItSaysWhy) {
    Load();
    ConnectDryRun(launcher, [this] { return CommandPlace{system.Services}; });
    user.Expect({"Dry Run", "No games are set up yet.", 0});
    launcher.ShowDryRun();
}

TEST_F(RehearseLaunchTest, WhatTheWindowHoldsAndIsGoneIsMissing) {
    Open();
    Click(Option::Map_Chk, 1);
    window.Map_Cbo.Items.push_back("GONE");
    window.Map_Cbo.ListIndex = static_cast<int>(window.Map_Cbo.Items.size()) - 1;
    user.Expect({"Dry Run", "Is missing:", 0});
    launcher.ShowDryRun();
}

}  // namespace
}  // namespace lv
