#include "launcher/setups/setup_store.h"

#include "launcher/setups/row_picks.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using enum Option;

class SetupStore : public LauncherTest {
  protected:
    static lv::Setup Of(TextView name, TextView path = "C:\\A.EXE") {
        lv::Setup setup;
        setup.Name = name;
        setup.ExecutablePath = path;
        return setup;
    }

    static std::vector<Text> NamesIn(const SetupList& setups) {
        std::vector<Text> names;
        for (const KeptSetup& kept : setups.All) {
            names.push_back(kept.What.Name);
        }
        return names;
    }

    SetupList setups;
};

TEST_F(SetupStore, KeepsNamesAndTextsUnderStableNumbers) {
    ASSERT_TRUE(KeepSetup(run, setups, Of("Duel")));
    ASSERT_TRUE(KeepSetup(run, setups, Of("A;B = 100%", "C:\\B.EXE")));
    EXPECT_EQ(Stored("Setups", "Names"), "1=Duel;2=A%3BB = 100%25");
    EXPECT_EQ(Stored("Setups", "Setup1"), "1;Executable=C:\\A.EXE;Ticked=;VideoProfile=;CommandLine=");
    EXPECT_EQ(Stored("Setups", "Picked"), "2");
    ASSERT_TRUE(DeleteSetup(run, setups, 1));
    EXPECT_EQ(Stored("Setups", "Names"), "2=A%3BB = 100%25");
    EXPECT_EQ(Stored("Setups", "Setup1"), "");
    EXPECT_EQ(Stored("Setups", "Picked"), "2");
}

TEST_F(SetupStore, ReadsBackWhatWasKept) {
    lv::Setup full = Of("R\xE9my & \"Co\"; 100%\t", "C:\\QUAKE\\GLQUAKE.EXE");
    full.Ticked = {Server_Chk};
    full.Server = "club.example;26000;0;Secret";
    full.CommandLineAdditions = "+name \"\x80\"";
    ASSERT_TRUE(KeepSetup(run, setups, Of("Duel")));
    ASSERT_TRUE(KeepSetup(run, setups, full));
    const SetupList read = LoadSetups(run);
    ASSERT_EQ(read.All.size(), 2u);
    EXPECT_EQ(read.All[0].What, Of("Duel"));
    EXPECT_EQ(read.All[1].What, full);
    EXPECT_EQ(read.All[1].Number, 2);
    EXPECT_EQ(read.Picked, 2);
    EXPECT_TRUE(read.Unread.empty());
}

TEST_F(SetupStore, TheSameNameInAnyCaseTakesItsPlace) {
    KeepSetup(run, setups, Of("Duel"));
    KeepSetup(run, setups, Of("Practice"));
    ASSERT_TRUE(KeepSetup(run, setups, Of(" DUEL ", "C:\\B.EXE")));
    EXPECT_EQ(NamesIn(setups), (std::vector<Text>{"DUEL", "Practice"}));
    EXPECT_EQ(NamesIn(LoadSetups(run)), (std::vector<Text>{"DUEL", "Practice"}));
    EXPECT_EQ(setups.Named("duel")->What.ExecutablePath, "C:\\B.EXE");
    EXPECT_EQ(setups.Named("duel")->Number, 1);
    EXPECT_EQ(setups.Named("du"), nullptr);
}

TEST_F(SetupStore, ARenamedOneKeepsItsNumber) {
    KeepSetup(run, setups, Of("Duel"));
    KeepSetup(run, setups, Of("Practice"));
    ASSERT_TRUE(RenameSetup(run, setups, 1, "  Finals "));
    EXPECT_EQ(Stored("Setups", "Names"), "1=Finals;2=Practice");
    ASSERT_TRUE(RenameSetup(run, setups, 1, "FINALS"));
    user.Expect({"Setups", "Another setup has this name already.", 0, false, true});
    EXPECT_FALSE(RenameSetup(run, setups, 1, "practice"));
    EXPECT_EQ(NamesIn(setups), (std::vector<Text>{"FINALS", "Practice"}));
    EXPECT_FALSE(RenameSetup(run, setups, 7, "none"));
}

TEST_F(SetupStore, ANameIsNeitherEmptyNorEndless) {
    user.Expect({"Setups", "A setup must have a name.", 0, false, true});
    EXPECT_FALSE(KeepSetup(run, setups, Of("  ")));
    EXPECT_TRUE(KeepSetup(run, setups, Of(Text(60, 'n'))));
    user.Expect({"Setups", "The name of a setup has at most 60 characters.", 0, false, true});
    EXPECT_FALSE(KeepSetup(run, setups, Of(Text(61, 'n'))));
    user.Expect({"Setups", "The name of a setup has at most 60 characters.", 0, false, true});
    EXPECT_FALSE(RenameSetup(run, setups, 1, Text(61, 'm')));
    EXPECT_EQ(setups.All.size(), 1u);
}

TEST_F(SetupStore, ATextThatIsTooLongIsRefusedInPlainWords) {
    KeepSetup(run, setups, Of("Duel"));
    lv::Setup large = Of("Large");
    large.CommandLineAdditions = Text(16000, 'x');
    user.Expect({"Setups", "This setup is too long to be kept."});
    EXPECT_FALSE(KeepSetup(run, setups, large));
    EXPECT_EQ(NamesIn(setups), std::vector<Text>{"Duel"});
    EXPECT_EQ(Stored("Setups", "Names"), "1=Duel");
    EXPECT_EQ(Stored("Setups", "Setup2"), "(none)");
}

TEST_F(SetupStore, NamesThatAreTooLongTogetherAreRefused) {
    const Text name(56, ';');  // thrice as long where it is stored
    int kept = 0;
    user.Expect({"Setups", "The names of all setups together are too long to be kept."});
    while (KeepSetup(run, setups, Of(name + std::to_string(kept)))) {
        ASSERT_LT(++kept, 200);
    }
    EXPECT_GT(kept, 80);
    EXPECT_EQ(LoadSetups(run).All.size(), static_cast<std::size_t>(kept));
}

TEST_F(SetupStore, TwoHundredAreEnough) {
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(KeepSetup(run, setups, Of("Setup " + std::to_string(i))));
    }
    user.Expect({"Setups", "There are 200 setups already. Delete one first.", 0, false, true});
    EXPECT_FALSE(KeepSetup(run, setups, Of("One more")));
    EXPECT_TRUE(KeepSetup(run, setups, Of("Setup 7", "C:\\B.EXE")));
    EXPECT_EQ(LoadSetups(run).All.size(), 200u);
}

TEST_F(SetupStore, WhatIsDamagedIsToldAndStaysAsItIs) {
    Save(run, "Setups", "Names", "1=Duel;2=Broken;3=Gone;x=Odd;4;5=%1;6=duel;1=Again;7=%20;8=Whole");
    Save(run, "Setups", "Setup1", "1;Executable=C:\\A.EXE");
    Save(run, "Setups", "Setup2", "1;Executable");
    Save(run, "Setups", "Setup6", "1;Executable=C:\\A.EXE");
    Save(run, "Setups", "Setup8", "1;Executable=C:\\A.EXE");
    user.Expect({"Setups",
                 "\r\n2=Broken: nothing is stored for this number, or what is stored is damaged"
                 "\r\n3=Gone: nothing is stored for this number, or what is stored is damaged"
                 "\r\nx=Odd: no number and no name, as in \"3=Practice\""
                 "\r\n4: no number and no name, as in \"3=Practice\""
                 "\r\n5=%1: no number and no name, as in \"3=Practice\""
                 "\r\n6=duel: another setup has this name, and letter case has no meaning in names"
                 "\r\n1=Again: another setup has this number"
                 "\r\n7= : no number and no name, as in \"3=Practice\"\r\n"});
    setups = LoadSetups(run);
    EXPECT_EQ(NamesIn(setups), (std::vector<Text>{"Duel", "Whole"}));
    ASSERT_TRUE(KeepSetup(run, setups, Of("New")));
    EXPECT_EQ(Stored("Setups", "Names"), "1=Duel;8=Whole;3=New;2=Broken;3=Gone;x=Odd;4;5=%1;6=duel;1=Again;7=%20");
    EXPECT_EQ(Stored("Setups", "Setup2"), "1;Executable");
    setups = LoadSetups(run);  // and not a word more of it
    EXPECT_EQ(NamesIn(setups), (std::vector<Text>{"Duel", "Whole", "New"}));
    Save(run, "Setups", "Setup8", "1;Executable");
    user.Expect({"Setups", "\r\n8=Whole: nothing is stored"});
    EXPECT_EQ(NamesIn(LoadSetups(run)), (std::vector<Text>{"Duel", "New"}));
}

TEST_F(SetupStore, ASecondNameIsThereOnceTheFirstIsRenamed) {
    Save(run, "Setups", "Names", "31=Quake;32=QUAKE");
    Save(run, "Setups", "Setup31", "1;Executable=C:\\A.EXE");
    Save(run, "Setups", "Setup32", "1;Executable=C:\\B.EXE");
    user.Expect({"Setups",
                 "Some setups can't be read and are left out. They stay among the settings as they are:\r\n"
                 "\r\n32=QUAKE: another setup has this name, and letter case has no meaning in names\r\n"
                 "\r\nGive that other setup a new name (Tools, Setups), and this one is there at the next start.",
                 0, false, true});
    setups = LoadSetups(run);
    EXPECT_EQ(NamesIn(setups), std::vector<Text>{"Quake"});
    ASSERT_TRUE(RenameSetup(run, setups, 31, "Old Quake"));
    EXPECT_EQ(NamesIn(LoadSetups(run)), (std::vector<Text>{"Old Quake", "QUAKE"}));
}

TEST_F(SetupStore, TheTwoHundredAndFirstIsThereOnceAnotherIsDeleted) {
    Text names;
    for (int i = 1; i <= 201; ++i) {
        names += Join(i == 1 ? "" : ";", std::to_string(i), "=S", std::to_string(i));
        Save(run, "Setups", TextView(Join("Setup", std::to_string(i))), "1;Executable=C:\\A.EXE");
    }
    Save(run, "Setups", "Names", TextView(names));
    user.Expect({"Setups", "\r\n201=S201: there are 200 setups ahead of it\r\n\r\nDelete a setup that you don't use"});
    setups = LoadSetups(run);
    ASSERT_TRUE(DeleteSetup(run, setups, 7));
    EXPECT_NE(LoadSetups(run).Named("S201"), nullptr);
}

TEST_F(SetupStore, AFullDiskLeavesAllAsItWas) {
    KeepSetup(run, setups, Of("Duel"));
    system.Settings.RefuseWrites = MakeError(error::kDiskFull);
    user.Expect({"Lorvane 3D", "This setting could not be saved"});
    EXPECT_FALSE(KeepSetup(run, setups, Of("Practice")));
    EXPECT_EQ(NamesIn(setups), std::vector<Text>{"Duel"});
    EXPECT_EQ(setups.Picked, 1);
}

TEST_F(SetupStore, TheDeletedOneIsNotPickedAnyMore) {
    KeepSetup(run, setups, Of("Duel"));
    ASSERT_TRUE(DeleteSetup(run, setups, 1));
    EXPECT_EQ(setups.Picked, 0);
    EXPECT_EQ(Stored("Setups", "Picked"), "0");
    EXPECT_EQ(Stored("Setups", "Names"), "");
    EXPECT_FALSE(DeleteSetup(run, setups, 1));
}

/// A window, kept, read again and applied over any other window, launches what it launched before.
class WholeWay : public SetupStore {
  protected:
    struct State {
        TextView Program;
        TextView Modification;  // ticked; "": none
        std::vector<Option> Clicks;
        TextView Map;
        TextView Profile;
        TextView Additions;
    };

    void Bring(const State& state) {
        ASSERT_TRUE(PickExecutable(launcher, state.Program));
        for (const OptionBox& box : OptionBoxes()) {
            if (window.Box(box.Box).Visible && window.Box(box.Box).Value == 1) {
                SetOption(launcher, box.Box, 0);
            }
        }
        if (!state.Modification.empty()) {
            ASSERT_TRUE(PickModification(launcher, state.Modification));
            SetOption(launcher, Game_Chk, 1);
        }
        if (!state.Map.empty()) {
            ASSERT_TRUE(PickMap(launcher, state.Map));
        }
        for (const Option click : state.Clicks) {
            SetOption(launcher, click, 1);
        }
        ASSERT_TRUE(PickVideoProfile(launcher, state.Profile));
        window.CommandLineAdditions_Txt.Text = state.Additions;
        CommandLineAdditions_Txt_Change(launcher);
    }
};

TEST_F(WholeWay, EndsWhereItBegan) {
    AddGames();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\other.cfg");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\e1m1.bsp");
    Save(run, kOptions, "NetServers",
         "Home;10.0.0.1;26000;0;;Club;club.example;26000;0;Secret;World;w.example;27500;1;;Two;two.example;27910;3;");
    Save(run, "ShowMessage", "HL_Listen_Server", 0);
    Load();
    const std::vector<State> states = {
        {"C:\\QUAKE\\GLQUAKE.EXE",
         "-game CTF",
         {Script_Chk, Map_Chk, Listen_Chk},
         "CTF1",
         "Base",
         "+skill 3; +\"x\" %1"},
        {"C:\\QUAKE\\QUAKE.EXE", "", {Memory_Chk, Demo_Chk, NOLAN_Chk, nosound_chk}, "E1M1", "Default", ""},
        {"C:\\QUAKE\\QUAKE.EXE", "", {Server_Chk, Bench_Chk, CommandLineAdditions_Chk}, "", "Base", " +a\t+b "},
        {"C:\\QUAKE\\QWCL.EXE", "-game CTF", {Server_Chk, Script_Chk}, "", "Optimize for Speed", ""},
        {"C:\\QUAKE2\\QUAKE2.EXE", "", {Dedicated_Chk, EndOnLaunch_Chk}, "", "Base", "\x80\xFF"},
        {"C:\\UNREAL\\SYSTEM\\UNREAL.EXE", "", {UnrealNoDirectSound_Chk, ShowSet_Chk}, "", "Optimize for Beauty", ""},
        {"C:\\HL\\HL.EXE", "", {Listen_Chk}, "", "Base", "-console"},
        {"C:\\QUAKE\\GLQUAKE.EXE", "", {LaunchQspy_Chk}, "", "Base", ""},
    };
    for (std::size_t i = 0; i < states.size(); ++i) {
        Bring(states[i]);
        const LaunchSelection before = SelectionOf(window);
        const Text profile = run.VideoProfileSection;
        const Text directory = run.CurrentGameDir;
        lv::Setup setup = SetupOf(launcher);
        setup.Name = "State " + std::to_string(i);
        ASSERT_TRUE(KeepSetup(run, setups, setup));
        const SetupList read = LoadSetups(run);
        for (std::size_t other = 0; other < states.size(); ++other) {
            Bring(states[other]);
            ASSERT_NE(read.Named(setup.Name), nullptr);
            EXPECT_EQ(ApplySetup(launcher, read.Named(setup.Name)->What), std::vector<Text>());
            const LaunchSelection after = SelectionOf(window);
            EXPECT_TRUE(after.ExecutablePath == before.ExecutablePath && after.Server == before.Server &&
                        after.Game == before.Game && after.Memory == before.Memory && after.Script == before.Script &&
                        after.Demo == before.Demo && after.Map == before.Map &&
                        after.CommandLineAdditions_Txt == before.CommandLineAdditions_Txt)
                << i << " over " << other;
            for (const OptionBox& box : OptionBoxes()) {
                EXPECT_TRUE(!window.Box(box.Box).Visible || after.Ticked.Has(box.Box) == before.Ticked.Has(box.Box))
                    << i << " over " << other << ": " << box.Name;
            }
            EXPECT_EQ(run.VideoProfileSection, profile);
            EXPECT_EQ(run.CurrentGameDir, directory);
        }
    }
}

}  // namespace
}  // namespace lv
