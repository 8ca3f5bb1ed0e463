#include "launcher/setups/setup.h"

#include "foundation/field_strings.h"
#include "launcher/setups/row_picks.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/option_rules.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using enum Option;

class Setups : public LauncherTest {
  protected:
    void LoadGames() {
        AddGames();
        system.Disk.AddFile("C:\\QUAKE\\ID1\\other.cfg");
        system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\e1m1.bsp");
        Save(run, kOptions, "NetServers", "Home;10.0.0.1;26000;0;;Club;club.example;26000;0;Secret");
        Load();
        ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE\\GLQUAKE.EXE"));
    }

    /// Capture the Flag with a script, a map and more for the command line.
    void PrepareFlag() {
        Click(Game_Chk, 1);
        ASSERT_TRUE(PickModification(launcher, "-game CTF"));
        ASSERT_TRUE(PickScript(launcher, "c:\\quake\\ctf\\flag.cfg"));
        Click(Script_Chk, 1);
        ASSERT_TRUE(PickMap(launcher, "CTF1"));
        Click(Map_Chk, 1);
        window.CommandLineAdditions_Txt.Text = "+skill 3";
        CommandLineAdditions_Txt_Change(launcher);
        Click(CommandLineAdditions_Chk, 1);
    }

    /// Another game with whatever is different there.
    void Scramble() {
        ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE2\\QUAKE2.EXE"));
        Click(Dedicated_Chk, 1);
        Click(nosound_chk, 1);
        ASSERT_TRUE(PickVideoProfile(launcher, "Optimize for Speed"));
        window.CommandLineAdditions_Txt.Text = "+other";
        CommandLineAdditions_Txt_Change(launcher);
    }

    std::vector<Text> Apply(const lv::Setup& setup) { return ApplySetup(launcher, setup); }
};

TEST_F(Setups, HoldsWhatIsTickedAndPicked) {
    LoadGames();
    PrepareFlag();
    const lv::Setup setup = SetupOf(launcher);
    EXPECT_EQ(setup.ExecutablePath, "C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_EQ(setup.Ticked, (OptionSet{Game_Chk, Script_Chk, Map_Chk, CommandLineAdditions_Chk}));
    EXPECT_EQ(setup.Modification, "-game CTF");
    EXPECT_EQ(setup.Memory, "-winmem 16");
    EXPECT_EQ(setup.Script, "c:\\quake\\ctf\\flag.cfg");
    EXPECT_EQ(setup.Demo, "playdemo nodemo.dem");
    EXPECT_EQ(setup.Map, "CTF1");
    EXPECT_EQ(setup.VideoProfile, "Base");
    EXPECT_EQ(setup.CommandLineAdditions, "+skill 3");
    EXPECT_EQ(setup.Name, "");
}

TEST_F(Setups, WhatAnotherGameShowsIsNoPartOfIt) {
    LoadGames();
    ASSERT_TRUE(PickExecutable(launcher, "C:\\UNREAL\\SYSTEM\\UNREAL.EXE"));
    Click(UnrealNoDirectSound_Chk, 1);
    EXPECT_TRUE(SetupOf(launcher).Ticked.Has(UnrealNoDirectSound_Chk));
    ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE\\GLQUAKE.EXE"));
    EXPECT_EQ(window.Box(UnrealNoDirectSound_Chk).Value, 1);
    const lv::Setup quake = SetupOf(launcher);
    EXPECT_FALSE(quake.Ticked.Has(UnrealNoDirectSound_Chk));
    EXPECT_EQ(Apply(quake), std::vector<Text>());
    EXPECT_EQ(window.Box(UnrealNoDirectSound_Chk).Value, 1);
}

TEST_F(Setups, ComesBackOverAnotherGame) {
    LoadGames();
    PrepareFlag();
    const lv::Setup setup = SetupOf(launcher);
    Scramble();
    EXPECT_EQ(Apply(setup), std::vector<Text>());
    EXPECT_EQ(SetupOf(launcher), setup);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_EQ(run.VideoProfileSection, "Options");
    EXPECT_EQ(Stored(kOptions, "UseGames"), "1");
    EXPECT_EQ(Stored(kOptions, "Dedicated"), "0");
    EXPECT_EQ(Stored(kOptions, "CustomCommandLineText"), "+skill 3");
}

TEST_F(Setups, AProgramThatIsNotListedChangesNothing) {
    LoadGames();
    lv::Setup setup = SetupOf(launcher);
    setup.ExecutablePath = "C:\\DOOM\\DOOM.EXE";
    setup.Ticked = {nosound_chk};
    const std::size_t writes = system.Settings.Log.size();
    EXPECT_EQ(Apply(setup),
              (std::vector<Text>{"The program C:\\DOOM\\DOOM.EXE is not in the list of games any more."}));
    EXPECT_EQ(window.Box(nosound_chk).Value, 0);
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

TEST_F(Setups, WhatIsGoneIsToldAndUntickedAndNothingTakesItsPlace) {
    LoadGames();
    Click(Script_Chk, 1);
    lv::Setup setup = SetupOf(launcher);
    setup.Modification = "-game rogue";
    setup.Script = "c:\\quake\\rogue\\my.cfg";
    setup.Map = "HIP1M1";
    setup.VideoProfile = "Mine";
    setup.Ticked = {Game_Chk, Script_Chk, Map_Chk, nosound_chk};
    EXPECT_EQ(Apply(setup), (std::vector<Text>{"The video profile Mine is not there any more.",
                                               "The modification rogue is not there any more.",
                                               "The script c:\\quake\\rogue\\my.cfg is not there any more.",
                                               "The map HIP1M1 is not there any more."}));
    EXPECT_EQ(SetupOf(launcher).Ticked, OptionSet{nosound_chk});
    EXPECT_EQ(run.CurrentGameDir, "ID1");
    EXPECT_EQ(Stored(kOptions, "UseGames"), "0");
    EXPECT_EQ(Stored(kOptions, "UseScripts"), "0");
}

TEST_F(Setups, AServerThatIsGoneIsToldWithoutItsPassword) {
    LoadGames();
    lv::Setup setup = SetupOf(launcher);
    setup.Server = "old.example;26001;0;Secret";
    setup.Ticked = {Server_Chk};
    EXPECT_EQ(Apply(setup), (std::vector<Text>{"The server old.example:26001 is not there any more."}));
    EXPECT_EQ(window.Box(Server_Chk).Value, 0);
}

TEST_F(Setups, ARowWhoseBoxIsNotTickedIsNotMissed) {
    LoadGames();
    lv::Setup setup = SetupOf(launcher);
    setup.Map = "HIP1M1";
    setup.Demo = "playdemo gone.dem";
    EXPECT_EQ(Apply(setup), std::vector<Text>());
    EXPECT_EQ(window.Map_Cbo.Selected(), "START");
}

TEST_F(Setups, ATickWithoutARowIsNotGivenTheRowThatIsThereNow) {
    LoadGames();
    lv::Setup setup = SetupOf(launcher);
    setup.Server.reset();
    setup.Ticked = {Server_Chk};
    window.Server_Cbo.ListIndex = 1;
    EXPECT_EQ(Apply(setup), std::vector<Text>());
    EXPECT_EQ(window.Box(Server_Chk).Value, 0);
}

TEST_F(Setups, AGreyedBoxStaysGreyed) {
    LoadGames();
    Click(Memory_Chk, 1);
    ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE2\\QUAKE2.EXE"));
    ASSERT_EQ(window.Box(Memory_Chk).Value, 2);
    const lv::Setup setup = SetupOf(launcher);
    EXPECT_FALSE(setup.Ticked.Has(Memory_Chk));
    EXPECT_EQ(Apply(setup), std::vector<Text>());
    EXPECT_EQ(window.Box(Memory_Chk).Value, 2);
}

TEST_F(Setups, ABoxThatTheGameDoesNotTakeAnyMoreIsTold) {
    LoadGames();
    ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE2\\QUAKE2.EXE"));
    window.Box(Memory_Chk).Value = 2;
    lv::Setup setup = SetupOf(launcher);
    setup.Ticked = {Memory_Chk, UnrealDisableLogWindow_Chk};
    EXPECT_EQ(Apply(setup), (std::vector<Text>{"The game has no use any more for: memory size.",
                                               "The game has no use any more for: Disable Log Window."}));
    EXPECT_EQ(window.Box(Memory_Chk).Value, 2);
}

TEST_F(Setups, ABoxThatOnlyOthersClearComesBehindThem) {
    LoadGames();
    Click(Server_Chk, 1);
    Click(Bench_Chk, 1);  // clears nothing, but the server would clear it
    ASSERT_EQ(window.Box(Server_Chk).Value, 1);
    const lv::Setup setup = SetupOf(launcher);
    Scramble();
    EXPECT_EQ(Apply(setup), std::vector<Text>());
    EXPECT_EQ(window.Box(Server_Chk).Value, 1);
    EXPECT_EQ(window.Box(Bench_Chk).Value, 1);
}

TEST(SetupOrder, WhatOnlyOthersClearIsTickedBehindThem) {
    std::vector<Option> order = {LaunchQspy_Chk, Game_Chk};
    for (const OptionBox& box : OptionBoxes()) {
        if (box.Box != LaunchQspy_Chk && box.Box != Game_Chk) {
            order.push_back(box.Box);
        }
    }
    for (std::size_t later = 0; later < order.size(); ++later) {
        for (std::size_t sooner = 0; sooner < later; ++sooner) {
            EXPECT_TRUE(!ExcludedBy(order[later]).Has(order[sooner]) || ExcludedBy(order[sooner]).Has(order[later]))
                << OptionBoxOf(order[later]).Name << " would clear " << OptionBoxOf(order[sooner]).Name;
        }
    }
}

TEST_F(Setups, WhatExcludesEachOtherComesBackAsItWasShown) {
    LoadGames();
    PrepareFlag();
    // As a start may show it: no click has been between them.
    for (const Option option : {LaunchQspy_Chk, Server_Chk, Demo_Chk}) {
        window.Box(option).Value = 1;
    }
    const lv::Setup setup = SetupOf(launcher);
    Scramble();
    EXPECT_EQ(Apply(setup), std::vector<Text>());
    EXPECT_EQ(SetupOf(launcher), setup);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_FALSE(window.DoIt_Cmd[1].Enabled);
    EXPECT_EQ(Stored(kOptions, "LaunchQSpy"), "1");
    EXPECT_EQ(Stored(kOptions, "UseGames"), "1");
}

TEST_F(Setups, AProfileThatIsShownLiveIsChangedWithoutAWord) {
    LoadGames();
    lv::Setup setup = SetupOf(launcher);
    setup.VideoProfile = "Optimize for Beauty";
    launcher.VideoProfile.VideoProfileWindowOpen = true;
    EXPECT_EQ(Apply(setup), std::vector<Text>());
    EXPECT_EQ(run.VideoProfileSection, "Optimize for Beauty");
    EXPECT_FALSE(launcher.ProfileChangeQuiet);
}

TEST_F(Setups, StartTheSameWhereOnlyNamesAndRowsWithoutATickDiffer) {
    lv::Setup a;
    a.ExecutablePath = "C:\\QUAKE\\GLQUAKE.EXE";
    a.Ticked = {Game_Chk};
    a.Modification = "-game ctf";
    lv::Setup b = a;
    b.Name = "other";
    b.ExecutablePath = "c:\\quake\\glquake.exe";
    b.Modification = "-game CTF";
    b.Map = "START";
    b.Demo = "playdemo demo1.dem";
    EXPECT_TRUE(StartTheSame(a, b));
}

TEST_F(Setups, StartSomethingElseWhereATickARowATextOrTheProfileDiffers) {
    lv::Setup a;
    a.ExecutablePath = "C:\\QUAKE\\GLQUAKE.EXE";
    a.Ticked = {Server_Chk, Demo_Chk};
    a.Server = "club.example;26000;0;Secret";
    lv::Setup b = a;
    b.Ticked.Set(nosound_chk);
    EXPECT_FALSE(StartTheSame(a, b));
    b = a;
    b.Server = "club.example;26000;0;secret";
    EXPECT_FALSE(StartTheSame(a, b));
    b = a;
    b.Demo = "playdemo demo1.dem";
    EXPECT_FALSE(StartTheSame(a, b));
    b = a;
    b.CommandLineAdditions = "+skill 3";
    EXPECT_FALSE(StartTheSame(a, b));
    b = a;
    b.VideoProfile = "Mine";
    EXPECT_FALSE(StartTheSame(a, b));
    b = a;
    b.ExecutablePath = "C:\\QUAKE\\QUAKE.EXE";
    EXPECT_FALSE(StartTheSame(a, b));
}

TEST(SetupRows, AreThoseOfTheSixBoxes) {
    std::vector<Option> boxes;
    for (const SetupRow& row : SetupRows()) {
        boxes.push_back(row.Box);
    }
    EXPECT_EQ(boxes, (std::vector<Option>{Game_Chk, Memory_Chk, Script_Chk, Demo_Chk, Server_Chk, Map_Chk}));
}

}  // namespace
}  // namespace lv
