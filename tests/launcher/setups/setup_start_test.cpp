#include "launcher/setups/setup_start.h"

#include "launcher/setups/row_picks.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using enum Option;

class SetupStart : public LauncherTest {
  protected:
    void LoadGames() {
        AddGames();
        Load();
        ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE\\GLQUAKE.EXE"));
        Keep("Plain");
        Click(Game_Chk, 1);
        Keep("Flag");
    }

    void Keep(TextView name) {
        lv::Setup setup = SetupOf(launcher);
        setup.Name = name;
        ASSERT_TRUE(KeepSetup(run, launcher.Setups, setup));
    }

    int NumberOfSetup(TextView name) { return launcher.Setups.Named(name)->Number; }

    const std::vector<std::string> quakeStarted = {"c:\\quake\\lv_666.bat"};
};

TEST_F(SetupStart, StartsWhatTheSetupSays) {
    LoadGames();
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_TRUE(StartSetup(launcher, NumberOfSetup("Flag")));
    EXPECT_EQ(system.Programs.Started, quakeStarted);
    EXPECT_TRUE(system.Disk.Bytes("C:\\QUAKE\\lv_666.bat").ends_with(" -game ctf"));
    EXPECT_EQ(PickedSetup(launcher)->What.Name, "Flag");
}

TEST_F(SetupStart, PickingStartsNothing) {
    LoadGames();
    EXPECT_TRUE(PickSetup(launcher, NumberOfSetup("Plain")));
    EXPECT_EQ(window.Box(Game_Chk).Value, 0);
    EXPECT_EQ(PickedSetup(launcher)->What.Name, "Plain");
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(SetupStart, KnowsWhetherTheWindowHasChangedSince) {
    EXPECT_FALSE(PickedSetupIsChanged(launcher));
    LoadGames();
    EXPECT_FALSE(PickedSetupIsChanged(launcher));
    Click(nosound_chk, 1);
    EXPECT_TRUE(PickedSetupIsChanged(launcher));
    Click(nosound_chk, 0);
    EXPECT_FALSE(PickedSetupIsChanged(launcher));
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_TRUE(PickedSetupIsChanged(launcher));
}

TEST_F(SetupStart, WhatIsGoneIsAskedAboutBeforeTheStart) {
    LoadGames();
    launcher.Setups.All[1].What.Modification = "-game rogue";
    const Text question = "The modification rogue is not there any more.\r\n\r\nStart without it?";
    user.Expect({"Setups", question, 1, false, true, "&Start,&Cancel"});
    EXPECT_FALSE(StartSetup(launcher, NumberOfSetup("Flag")));
    EXPECT_TRUE(system.Programs.Started.empty());
    user.Expect({"Setups", question, 0, false, true});
    EXPECT_TRUE(StartSetup(launcher, NumberOfSetup("Flag")));
    EXPECT_EQ(system.Programs.Started, quakeStarted);
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\lv_666.bat").find("-game"), Text::npos);
}

TEST_F(SetupStart, WhatIsGoneIsToldWhenASetupIsPicked) {
    LoadGames();
    launcher.Setups.All[1].What.Modification = "-game ro\tgue";
    user.Expect({"Setups", "The modification rogue is not there any more.", 0, false, true, "&OK"});
    EXPECT_TRUE(PickSetup(launcher, NumberOfSetup("Flag")));
}

TEST_F(SetupStart, NothingIsStartedInThePlaceOfAGameThatIsGone) {
    LoadGames();
    launcher.Setups.All[0].What.ExecutablePath = "C:\\DOOM\\DOOM.EXE";
    for (const bool start : {false, true}) {
        user.Expect({"Setups", "The program C:\\DOOM\\DOOM.EXE is not in the list of games any more.", 0, false, true});
        EXPECT_FALSE(start ? StartSetup(launcher, 1) : PickSetup(launcher, 1));
    }
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_EQ(PickedSetup(launcher)->What.Name, "Flag");
    EXPECT_EQ(window.Box(Game_Chk).Value, 1);
}

TEST_F(SetupStart, ANumberOfNoneDoesNothing) {
    LoadGames();
    EXPECT_FALSE(StartSetup(launcher, 0));
    EXPECT_FALSE(PickSetup(launcher, 7));
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(SetupStart, WhileALaunchWaitsNothingIsChanged) {
    LoadGames();
    launcher.LaunchUnderWay = true;
    EXPECT_FALSE(StartSetup(launcher, NumberOfSetup("Plain")));
    EXPECT_FALSE(PickSetup(launcher, NumberOfSetup("Plain")));
    EXPECT_EQ(window.Box(Game_Chk).Value, 1);
}

}  // namespace
}  // namespace lv
