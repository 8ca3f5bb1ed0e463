#include "launcher/setups/setups_frm.h"

#include "launcher/launchers/launcher_frm.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using enum Option;

class SetupsFrm : public LauncherTest {
  protected:
    void LoadGames() {
        AddGames();
        Load();
        PickExe("C:\\QUAKE2\\QUAKE2.EXE");
        Keep("Two");
        PickExe("C:\\QUAKE\\GLQUAKE.EXE");
        Click(Game_Chk, 1);
        Keep("Flag");
    }

    void Keep(TextView name) {
        lv::Setup setup = SetupOf(launcher);
        setup.Name = name;
        ASSERT_TRUE(KeepSetup(run, launcher.Setups, setup));
    }
};

TEST_F(SetupsFrm, SaysWhatToDoWhereThereIsNone) {
    Setups_Frm form(launcher);
    EXPECT_EQ(form.Name, "Setups_Frm");
    EXPECT_EQ(form.Caption, "Setups");
    EXPECT_EQ(form.Setups_Lbl.Caption,
              "No setup is kept yet. Tick and pick in the main window what you want to play, and choose Tools, "
              "Setups, Keep This Setup.");
    EXPECT_TRUE(form.Setups_Lst.Items.empty());
    for (const CommandButton* button : {&form.StartSetup_Cmd, &form.PickSetup_Cmd, &form.KeepSetupChanges_Cmd,
                                        &form.RenameSetup_Cmd, &form.DeleteSetup_Cmd, &form.MakeLauncher_Cmd}) {
        EXPECT_FALSE(button->Enabled) << button->Caption;
    }
    StartSetup_Cmd_Click(form);
    PickSetup_Cmd_Click(form);
    KeepSetupChanges_Cmd_Click(form);
    RenameSetup_Cmd_Click(form);
    DeleteSetup_Cmd_Click(form);
    MakeLauncher_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
    CloseSetups_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    EXPECT_FALSE(form.StartChosen);
}

TEST_F(SetupsFrm, ShowsWhatEachPlaysWithThePickedOneSelected) {
    LoadGames();
    Setups_Frm form(launcher);
    EXPECT_EQ(form.Setups_Lst.Items, (std::vector<Text>{"Two  -  Quake 2", "Flag (picked)  -  Quake, CTF"}));
    EXPECT_EQ(form.Setups_Lst.ListIndex, 1);
    EXPECT_EQ(form.Setups_Lbl.Caption,
              "Each is what was ticked and picked in the main window. Enter starts the selected one.");
    EXPECT_TRUE(form.StartSetup_Cmd.Enabled);
    EXPECT_FALSE(form.KeepSetupChanges_Cmd.Enabled);
}

TEST_F(SetupsFrm, StartingClosesItFirst) {
    LoadGames();
    Setups_Frm form(launcher);
    form.Setups_Lst.ListIndex = 0;
    StartSetup_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    EXPECT_TRUE(form.StartChosen);
    EXPECT_EQ(form.Chosen, 1);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(SetupsFrm, PickingShowsTheSetupInTheMainWindow) {
    LoadGames();
    Setups_Frm form(launcher);
    form.Setups_Lst.ListIndex = 0;
    PickSetup_Cmd_Click(form);
    EXPECT_TRUE(form.Closed);
    EXPECT_FALSE(form.StartChosen);
    EXPECT_EQ(run.GameKind, Game::Quake2);
    EXPECT_EQ(launcher.Setups.Picked, 1);
}

TEST_F(SetupsFrm, StaysWhereTheGameOfASetupIsGone) {
    LoadGames();
    launcher.Setups.All[0].What.ExecutablePath = "C:\\DOOM\\DOOM.EXE";
    Setups_Frm form(launcher);
    EXPECT_EQ(form.Setups_Lst.Items[0], "Two  -  DOOM.EXE, which is not in the list of games");
    form.Setups_Lst.ListIndex = 0;
    user.Expect({"Setups", "The program C:\\DOOM\\DOOM.EXE is not in the list of games any more."});
    PickSetup_Cmd_Click(form);
    EXPECT_FALSE(form.Closed);
}

TEST_F(SetupsFrm, ChangesAreKeptInTheRowOfThePickedOneAlone) {
    LoadGames();
    Click(nosound_chk, 1);
    Setups_Frm form(launcher);
    EXPECT_EQ(form.Setups_Lst.Items[1], "Flag (picked, changed)  -  Quake, CTF");
    EXPECT_TRUE(form.KeepSetupChanges_Cmd.Enabled);
    form.Setups_Lst.ListIndex = 0;
    Setups_Lst_Click(form);
    EXPECT_FALSE(form.KeepSetupChanges_Cmd.Enabled);
    form.Setups_Lst.ListIndex = 1;
    Setups_Lst_Click(form);
    KeepSetupChanges_Cmd_Click(form);
    EXPECT_EQ(form.Setups_Lst.Items[1], "Flag (picked)  -  Quake, CTF");
    EXPECT_FALSE(form.KeepSetupChanges_Cmd.Enabled);
    EXPECT_EQ(launcher.Setups.All[1].What.Ticked, (OptionSet{Game_Chk, nosound_chk}));
}

TEST_F(SetupsFrm, RenamesTheRow) {
    LoadGames();
    Setups_Frm form(launcher);
    form.Setups_Lst.ListIndex = 0;
    user.InputAnswers = {Text("Second"), std::nullopt};
    RenameSetup_Cmd_Click(form);
    EXPECT_EQ(user.Inputs, (std::vector<Text>{"Rename Setup|The new name of this setup:"}));
    EXPECT_EQ(user.Offered, std::vector<Text>{"Two"});
    EXPECT_EQ(form.Setups_Lst.Items[0], "Second  -  Quake 2");
    EXPECT_EQ(form.Setups_Lst.ListIndex, 0);
    RenameSetup_Cmd_Click(form);
    EXPECT_EQ(Stored("Setups", "Names"), "1=Second;2=Flag");
}

TEST_F(SetupsFrm, DeletesTheRowAfterAQuestion) {
    LoadGames();
    Setups_Frm form(launcher);
    user.Expect({"Setups", "Delete this setup?\r\n\r\nFlag", 1, false, true, "&Delete,&Cancel"});
    DeleteSetup_Cmd_Click(form);
    EXPECT_EQ(form.Setups_Lst.Items.size(), 2u);
    user.Expect({"Setups", "Delete this setup?\r\n\r\nFlag", 0, false, true});
    DeleteSetup_Cmd_Click(form);
    EXPECT_EQ(form.Setups_Lst.Items, std::vector<Text>{"Two  -  Quake 2"});
    EXPECT_EQ(form.Setups_Lst.ListIndex, 0);
    user.Expect({"Setups", "Delete this setup?\r\n\r\nTwo", 0, false, true});
    DeleteSetup_Cmd_Click(form);
    EXPECT_EQ(form.Setups_Lst.ListIndex, -1);
    EXPECT_FALSE(form.DeleteSetup_Cmd.Enabled);
    EXPECT_EQ(Stored("Setups", "Names"), "");
}

TEST_F(SetupsFrm, LaunchersFollowANewNameAndGoWithTheirSetup) {
    LoadGames();
    Setups_Frm form(launcher);
    EXPECT_TRUE(form.MakeLauncher_Cmd.Enabled);
    user.In<Launcher_Frm>([](Launcher_Frm& asked) {
        asked.LauncherInMenu_Chk.Value = 1;
        Launcher_Write_Cmd_Click(asked);
    });
    user.Expect({"Make a Launcher", "/menu/lorvane3d-setup-flag.desktop"});
    MakeLauncher_Cmd_Click(form);
    ASSERT_TRUE(system.Launchers.Made.contains("/menu/lorvane3d-setup-flag.desktop"));
    user.InputAnswers = {Text("Evening")};
    RenameSetup_Cmd_Click(form);
    ASSERT_EQ(system.Launchers.Made.size(), 1U);
    EXPECT_EQ(system.Launchers.Made.begin()->first, "/menu/lorvane3d-setup-evening.desktop");
    Click(Game_Chk, 0);
    KeepSetupChanges_Cmd_Click(form);
    EXPECT_EQ(system.Launchers.Made.begin()->second.Comment, "Quake");
    user.Expect({"Setups", "Delete this setup?\r\n\r\nEvening", 0, false, true});
    DeleteSetup_Cmd_Click(form);
    EXPECT_TRUE(system.Launchers.Made.empty());
}

TEST_F(SetupsFrm, WithoutAPlaceForLaunchersNoneAreOffered) {
    LoadGames();
    system.Services.Launchers = nullptr;
    const Setups_Frm form(launcher);
    EXPECT_TRUE(form.StartSetup_Cmd.Enabled);
    EXPECT_FALSE(form.MakeLauncher_Cmd.Enabled);
}

}  // namespace
}  // namespace lv
