#include "launcher/setups/setups_menu.h"

#include "launcher/setups/setup_start.h"
#include "launcher/setups/setups_frm.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using enum MenuItem;

class SetupsMenu : public LauncherTest {
  protected:
    void LoadGames() {
        AddGames();
        Load();
        PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    }

    void Keep(TextView name) {
        user.InputAnswers.push_back(Text(name));
        Menu_Click(launcher, KeepSetup_Bar);
        ShowSetupsInMenu(launcher);
    }

    std::vector<Text> Shown() {
        ShowSetupsInMenu(launcher);
        std::vector<Text> captions;
        for (int i = 0; i < 9; ++i) {
            const MenuItemState& item = window.Bar(static_cast<MenuItem>(static_cast<int>(Setup_Bar_0) + i));
            if (item.Visible) {
                captions.push_back((item.Checked ? "* " : "") + item.Caption);
            }
        }
        return captions;
    }
};

TEST_F(SetupsMenu, KeepsTheWindowUnderTheNameThatIsAskedFor) {
    LoadGames();
    Click(Option::nosound_chk, 1);
    Keep(" Duel ");
    EXPECT_EQ(user.Inputs,
              (std::vector<Text>{"Keep This Setup|What is ticked and picked now is kept under this name:"}));
    EXPECT_EQ(user.Offered, std::vector<Text>{"Quake"});
    EXPECT_EQ(Stored("Setups", "Names"), "1=Duel");
    EXPECT_EQ(launcher.Setups.Named("duel")->What.Ticked, OptionSet{Option::nosound_chk});
    EXPECT_EQ(Shown(), std::vector<Text>{"* &1 Duel"});
}

TEST_F(SetupsMenu, KeepsNothingWithoutAGameOrWithoutAName) {
    Load();
    user.Expect({"Setups", "Pick a game first: a setup is for one.", 0, false, true});
    Menu_Click(launcher, KeepSetup_Bar);
    EXPECT_TRUE(user.Inputs.empty());
}

TEST_F(SetupsMenu, AsksAgainForANameThatIsNone) {
    LoadGames();
    user.InputAnswers.push_back(Text("  "));
    user.Expect({"Setups", "A setup must have a name.", 0, false, true});
    user.InputAnswers.push_back(std::nullopt);
    Menu_Click(launcher, KeepSetup_Bar);
    EXPECT_EQ(user.Inputs.size(), 2u);
    EXPECT_EQ(Stored("Setups", "Names"), "(none)");
}

TEST_F(SetupsMenu, AsksBeforeASetupIsReplaced) {
    LoadGames();
    Keep("Duel");
    Click(Option::nosound_chk, 1);
    const Text question = "There is a setup of this name already:\r\n\r\nDuel";
    user.Expect({"Setups", question, 1, false, true, "&Replace,&Cancel"});
    user.InputAnswers = {Text("DUEL"), std::nullopt};
    Menu_Click(launcher, KeepSetup_Bar);
    EXPECT_EQ(user.Offered, (std::vector<Text>{"Quake", "Duel", "DUEL"}));
    EXPECT_EQ(launcher.Setups.All[0].What.Ticked, OptionSet{});
    user.Expect({"Setups", question, 0, false, true});
    Keep("Duel");
    EXPECT_EQ(launcher.Setups.All[0].What.Ticked, OptionSet{Option::nosound_chk});
}

TEST_F(SetupsMenu, ChangesAreKeptOrDropped) {
    LoadGames();
    Keep("Duel");
    EXPECT_FALSE(window.Bar(KeepSetupChanges_Bar).Enabled);
    EXPECT_FALSE(window.Bar(DropSetupChanges_Bar).Enabled);
    Click(Option::nosound_chk, 1);
    EXPECT_EQ(Shown(), std::vector<Text>{"* &1 Duel (changed)"});
    EXPECT_TRUE(window.Bar(KeepSetupChanges_Bar).Enabled);
    Menu_Click(launcher, DropSetupChanges_Bar);
    EXPECT_EQ(window.Box(Option::nosound_chk).Value, 0);
    EXPECT_EQ(Shown(), std::vector<Text>{"* &1 Duel"});
    Click(Option::nosound_chk, 1);
    ShowSetupsInMenu(launcher);
    Menu_Click(launcher, KeepSetupChanges_Bar);
    EXPECT_EQ(Shown(), std::vector<Text>{"* &1 Duel"});
    EXPECT_EQ(LoadSetups(run).All[0].What.Ticked, OptionSet{Option::nosound_chk});
}

TEST_F(SetupsMenu, ANameOfItsOwnStartsItsSetup) {
    LoadGames();
    Keep("Quiet");
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    Keep("Two");
    Menu_Click(launcher, Setup_Bar_0);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake\\lv_666.bat"}));
    Menu_Click(launcher, Setup_Bar_5);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(SetupsMenu, AStrangersNameIsNoAccessKeyAndNoShortcut) {
    LoadGames();
    Keep("Q&A\tF12");
    EXPECT_EQ(Shown(), std::vector<Text>{"* &1 Q&&AF12"});
}

TEST_F(SetupsMenu, ShowsNineAndAmongThemThePickedOne) {
    LoadGames();
    for (int i = 1; i <= 11; ++i) {
        Keep("S" + std::to_string(i));
    }
    EXPECT_EQ(Shown(),
              (std::vector<Text>{"&1 S1", "&2 S2", "&3 S3", "&4 S4", "&5 S5", "&6 S6", "&7 S7", "&8 S8", "* &9 S11"}));
    ASSERT_TRUE(PickSetup(launcher, 3));
    EXPECT_EQ(Shown(),
              (std::vector<Text>{"&1 S1", "&2 S2", "* &3 S3", "&4 S4", "&5 S5", "&6 S6", "&7 S7", "&8 S8", "&9 S9"}));
}

TEST_F(SetupsMenu, IsThereAtTheNextStart) {
    LoadGames();
    Keep("Duel");
    Launcher next(run);
    ASSERT_TRUE(launcher.Window.Bar(Setup_Bar_0).Visible);
    next.Setups = LoadSetups(run);
    ShowSetupsInMenu(next);
    EXPECT_TRUE(next.Window.Bar(Setup_Bar_0).Visible);
    EXPECT_FALSE(next.Window.Bar(Setup_Bar_1).Visible);
}

TEST_F(SetupsMenu, WhatTheWindowChoseIsStartedWhenItHasGone) {
    LoadGames();
    Keep("Duel");
    user.In<Setups_Frm>([this](Setups_Frm& form) {
        StartSetup_Cmd_Click(form);
        EXPECT_TRUE(form.Closed);
        EXPECT_TRUE(system.Programs.Started.empty());
    });
    Menu_Click(launcher, ShowSetups_Bar);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
    user.In<Setups_Frm>([](Setups_Frm& form) { CloseSetups_Cmd_Click(form); });
    Menu_Click(launcher, ShowSetups_Bar);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

}  // namespace
}  // namespace lv
