#include "foundry/foundry.h"

#include "foundry/editor/lifecycle.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "tests/foundry/half_life_fixture.h"
#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

class ConnectFoundryTest : public HalfLifeTest {
  protected:
    ConnectFoundryTest() {
        ConnectFoundry(launcher);
        AddGames();
    }
};

TEST_F(ConnectFoundryTest, PickingHalfLifeWritesItsScriptAndListsIt) {
    Load();
    Hold("player", "|chat nickname", "Gordon");
    ExpectTold("c:\\hl\\valve\\lv3dhlrg.cfg");
    PickExe("C:\\HL\\HL.EXE");
    EXPECT_EQ(CountLines(Script(), "name \"Gordon\""), 1);
    const auto& rows = window.Script_Cbo.Items;
    ASSERT_FALSE(rows.empty());
    EXPECT_TRUE(TextView(rows[0]).starts_with("Registry Settings "));
    EXPECT_EQ(rows[0].substr(100), "c:\\hl\\valve\\lv3dhlrg.cfg");
}

TEST_F(ConnectFoundryTest, EachPickConvertsAnew) {
    BeQuiet();
    Load();
    PickExe("C:\\HL\\HL.EXE");
    Hold("player", "|chat nickname", "Gordon");
    PickExe("C:\\HL\\HL.EXE");
    EXPECT_EQ(CountLines(Script(), "name \"Gordon\""), 1);
}

TEST_F(ConnectFoundryTest, PickingAnotherGameConvertsNothing) {
    Load();
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_EQ(Script(), "(none)");
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE2\\valve\\lv3dhlrg.cfg"), "(none)");
}

TEST_F(ConnectFoundryTest, ALaunchWithAScriptWritesItToTheRegistryBeforeTheGameStarts) {
    BeQuiet();
    Load();
    PickExe("C:\\HL\\HL.EXE");
    system.Disk.AddFile("C:\\HL\\VALVE\\life.cfg", "name \"Alyx\"\nbind w +forward\n");
    for (std::size_t i = 0; i < window.Script_Cbo.Items.size(); ++i) {
        if (TextView(window.Script_Cbo.Items[i]).starts_with("life.cfg")) {
            window.Script_Cbo.ListIndex = static_cast<int>(i);
        }
    }
    Click(Option::Script_Chk, 1);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(Held("player", "|chat nickname"), "Alyx");
    EXPECT_EQ(Held("player", "\\kb|119"), "+forward");
    EXPECT_EQ(system.Programs.Started.size(), 1u);
    EXPECT_EQ(system.Disk.Bytes("C:\\HL\\VALVE\\lv_666.qs"), "exec life.cfg\r\n");
}

TEST_F(ConnectFoundryTest, ALaunchWithoutAScriptLeavesTheRegistryAlone) {
    BeQuiet();
    Load();
    PickExe("C:\\HL\\HL.EXE");
    Click(Option::Script_Chk, 0);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Registry.Values.empty());
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(ConnectFoundryTest, ARegistryThatRefusesTheScriptStopsTheLaunch) {
    BeQuiet();
    Load();
    Hold("player", "|chat nickname", "Gordon");
    PickExe("C:\\HL\\HL.EXE");
    Click(Option::Script_Chk, 1);
    system.Registry.RefuseWrites = Error{5, "Access is denied."};
    user.Expect({"Lorvane 3D", "Error Number = 5\r\nError Code = EC00080"});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
}

class ConnectEditorTest : public LauncherTest {
  protected:
    SetupFoundry foundry{launcher};
};

TEST_F(ConnectEditorTest, ALauncherHasNoEditorOfItsOwn) {
    EXPECT_FALSE(launcher.OpenSetupFoundry);
    EXPECT_FALSE(launcher.KeepUnsavedEdits);
}

TEST_F(ConnectEditorTest, TheLauncherOpensTheEditorsWindow) {
    AddGames();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\MY.CFG", "bind w +forward\r\n");
    Load();
    ConnectEditor(foundry);
    int opened = 0;
    user.Expect({.Title = "SetupFoundry Information", .Text_ = "A backup copy has been stored"});
    user.In<Fig_Frm>([&opened](Fig_Frm& form) {
        ++opened;
        Fig_Frm_Unload(form);
    });
    launcher.OpenSetupFoundry();
    EXPECT_EQ(opened, 1);
}

TEST_F(ConnectEditorTest, WithoutAnOpenEditorThereAreNoEditsToKeep) {
    ConnectEditor(foundry);
    const std::size_t written = system.Disk.Log.size();
    launcher.KeepUnsavedEdits();
    EXPECT_EQ(system.Disk.Log.size(), written);
}

}  // namespace
}  // namespace lv
