#include "commands/launch_choice.h"

#include "launcher/setups/row_picks.h"
#include "launcher/setups/setup_store.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class LaunchChoice : public LauncherTest {
  protected:
    std::vector<Text> Say(const std::vector<Text>& words) {
        const Result<Command> command = ReadCommand(words);
        EXPECT_TRUE(command.Ok()) << command.Fault.Text;
        return Choose(launcher, command.Value, notes);
    }
    void Open() {
        AddGames();
        Load();
    }
    Text notes;
};

TEST_F(LaunchChoice, WhatIsNamedIsPickedAndTicked) {
    Open();
    EXPECT_TRUE(Say({"--launch", "Quake", "--mod", "CTF", "--script", "flag.cfg", "--map", "ctf1"}).empty());
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 0);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_EQ(window.Box(Option::Script_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 1);
    EXPECT_EQ(window.Map_Cbo.Selected(), "CTF1");
}

TEST_F(LaunchChoice, TheProgramMayBeNamedByItsPath) {
    Open();
    EXPECT_TRUE(Say({"--launch", "c:\\quake2\\quake2.exe"}).empty());
    EXPECT_EQ(run.GameKind, Game::Quake2);
}

TEST_F(LaunchChoice, ThePathMayBeSpelledAsTheHostDoes) {
    Open();
    for (const Text path : {"c:/quake2/quake2.exe", "C:\\QUAKE2/QUAKE2.EXE"}) {
        ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE\\GLQUAKE.EXE"));
        EXPECT_TRUE(Say({"--launch", path}).empty()) << path;
        EXPECT_EQ(run.GameKind, Game::Quake2) << path;
    }
    system.Disk.AddFile("Z:\\srv\\q2\\QUAKE2.EXE");
    window.Exe_Cbo.Items.push_back({"Far", "Z:/srv/q2/QUAKE2.EXE", "", ""});
    EXPECT_TRUE(Say({"--launch", "/srv/q2/QUAKE2.EXE"}).empty());
    EXPECT_EQ(window.Exe_Cbo.Items[static_cast<std::size_t>(window.Exe_Cbo.ListIndex)].Title, "Far");
    ASSERT_EQ(Say({"--launch", "/srv/q2/GONE.EXE"}).size(), 1U);
}

TEST_F(LaunchChoice, AServerExcludesWhatTheWindowExcludes) {
    Open();
    Click(Option::Demo_Chk, 1);
    EXPECT_TRUE(Say({"--launch", "Quake", "--server", "10.0.0.1:26000"}).empty());
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Demo_Chk).Value, 0);
}

TEST_F(LaunchChoice, AnUnknownProgramEndsTheChoice) {
    Open();
    const std::vector<Text> missing = Say({"--launch", "Quack", "--map", "nowhere"});
    EXPECT_EQ(missing, std::vector<Text>{"No program is called \"Quack\". Did you mean \"Quake\"?"});
}

TEST_F(LaunchChoice, AllThatIsNotThereIsTold) {
    Open();
    EXPECT_EQ(Say({"--launch", "Quake", "--map", "DM7", "--script", "gone.cfg"}),
              (std::vector<Text>{"No script is called \"gone.cfg\".", "No map is called \"DM7\"."}));
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 0);
    EXPECT_EQ(window.Box(Option::Script_Chk).Value, 0);
}

TEST_F(LaunchChoice, ASetupIsPickedByItsName) {
    Open();
    SetupList setups = LoadSetups(run);
    ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE\\GLQUAKE.EXE"));
    ASSERT_TRUE(PickModification(launcher, "-game CTF"));
    Click(Option::Game_Chk, 1);
    lv::Setup duel = SetupOf(launcher);
    duel.Name = "Duel";
    ASSERT_TRUE(KeepSetup(run, setups, duel));
    ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE2\\QUAKE2.EXE"));
    EXPECT_TRUE(Say({"--setup", "duel", "--map", "ctf1"}).empty());
    EXPECT_EQ(run.GameKind, Game::Quake);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_EQ(window.Map_Cbo.Selected(), "CTF1");
    const std::vector<Text> missing = Say({"--setup", "Dual"});
    ASSERT_EQ(missing.size(), 1U);
    EXPECT_EQ(missing[0], "No setup is called \"Dual\". Did you mean \"Duel\"?");
}

class ChoiceBesideASetup : public LaunchChoice {
  protected:
    /// The setup "Duel" of Quake with these boxes ticked, whatever the window would exclude.
    void Keep(const std::vector<Option>& ticked, TextView map) {
        Open();
        Save(run, kOptions, "NetServers", "Club;club.example;27910;0;");
        SetupList setups = LoadSetups(run);
        ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE\\GLQUAKE.EXE"));
        lv::Setup duel = SetupOf(launcher);
        duel.Name = "Duel";
        for (const Option box : ticked) {
            duel.Ticked.Set(box, true);
        }
        duel.Map = Text(map);
        ASSERT_TRUE(KeepSetup(run, setups, duel));
    }
};

TEST_F(ChoiceBesideASetup, AServerPutsTheSetupsMapAside) {
    Keep({Option::Map_Chk}, "START");
    EXPECT_TRUE(Say({"--setup", "Duel", "--server", "10.0.0.1:26000"}).empty());
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 0);
}

TEST_F(ChoiceBesideASetup, AMapPutsTheSetupsServerAside) {
    Keep({Option::Server_Chk}, "START");
    EXPECT_TRUE(Say({"--setup", "Duel", "--map", "start"}).empty());
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 0);
}

TEST_F(ChoiceBesideASetup, TheWordWinsWhereTheSetupHasBoth) {
    Keep({Option::Map_Chk, Option::Server_Chk}, "START");
    EXPECT_TRUE(Say({"--setup", "Duel", "--map", "start"}).empty());
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 0);
    EXPECT_TRUE(Say({"--setup", "Duel", "--server", "10.0.0.1"}).empty());
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 0);
}

TEST_F(ChoiceBesideASetup, WhatIsPutAsideMayBeGone) {
    Keep({Option::Map_Chk}, "GONE");
    EXPECT_TRUE(Say({"--setup", "Duel", "--server", "10.0.0.1"}).empty());
    EXPECT_TRUE(Say({"--setup", "Duel", "--map", "start"}).empty());
    EXPECT_EQ(window.Map_Cbo.Selected(), "START");
}

TEST_F(LaunchChoice, ATickedBoxLosesWhatItExcludesToo) {
    Open();
    window.Box(Option::Server_Chk).Value = window.Box(Option::Map_Chk).Value = 1;
    EXPECT_TRUE(Say({"--launch", "Quake", "--map", "start"}).empty());
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 0);
}

TEST_F(LaunchChoice, WhatASetupHasLostIsTold) {
    Open();
    SetupList setups = LoadSetups(run);
    ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE\\GLQUAKE.EXE"));
    Click(Option::Map_Chk, 1);
    lv::Setup duel = SetupOf(launcher);
    duel.Name = "Duel";
    duel.Map = "GONE";
    ASSERT_TRUE(KeepSetup(run, setups, duel));
    EXPECT_EQ(Say({"--setup", "Duel"}), std::vector<Text>{"The map GONE is not there any more."});
    duel.ExecutablePath = "C:\\GONE.EXE";
    ASSERT_TRUE(KeepSetup(run, setups, duel));
    EXPECT_EQ(Say({"--setup", "Duel"}),
              std::vector<Text>{"The program C:\\GONE.EXE is not in the list of games any more."});
}

TEST_F(LaunchChoice, TheWindowIsNotLeftAfterTheLaunch) {
    Open();
    Click(Option::EndOnLaunch_Chk, 1);
    (void)Say({"--launch", "Quake"});
    EXPECT_EQ(window.Box(Option::EndOnLaunch_Chk).Value, 0);
}

}  // namespace
}  // namespace lv
