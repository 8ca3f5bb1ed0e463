#include "commands/dry_run/missing_parts.h"

#include "launcher/setups/row_picks.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class MissingPartsTest : public LauncherTest {
  protected:
    void Open(TextView path) {
        AddGames();
        Load();
        ASSERT_TRUE(PickExecutable(launcher, path));
    }
};

TEST_F(MissingPartsTest, OfALaunchThatHasAllNothingIsMissing) {
    Open("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_TRUE(MissingParts(launcher).empty());
}

TEST_F(MissingPartsTest, TheProgram) {
    Open("C:\\QUAKE\\GLQUAKE.EXE");
    (void)system.Disk.Delete("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_EQ(MissingParts(launcher), std::vector<Text>{"The program C:\\QUAKE\\GLQUAKE.EXE is not there."});
}

TEST_F(MissingPartsTest, WhatRunsTheProgram) {
    Open("C:\\QUAKE\\GLQUAKE.EXE");
    system.Programs.WithoutRunner.insert("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_EQ(MissingParts(launcher),
              std::vector<Text>{"What runs C:\\QUAKE\\GLQUAKE.EXE here is not installed: wine for a Windows program, "
                                "dosbox for one for DOS."});
}

TEST_F(MissingPartsTest, TheScriptAndTheModification) {
    Open("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    Click(Option::Game_Chk, 1);
    ASSERT_TRUE(PickModification(launcher, "-game CTF"));
    window.Game_Cbo.Items[static_cast<std::size_t>(window.Game_Cbo.ListIndex)] =
        Text("x") + Text(99, ' ') + "-game GONE";
    window.Script_Cbo.Items = {Text("x") + Text(99, ' ') + "C:\\QUAKE\\ID1\\gone.cfg"};
    window.Script_Cbo.ListIndex = 0;
    EXPECT_EQ(MissingParts(launcher), (std::vector<Text>{"The modification's directory c:\\quake\\GONE is not there.",
                                                         "The script C:\\QUAKE\\ID1\\gone.cfg is not there."}));
}

TEST_F(MissingPartsTest, TheMap) {
    Open("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Map_Chk, 1);
    EXPECT_TRUE(MissingParts(launcher).empty());
    window.Map_Cbo.Items = {"DM7\x1B"};
    EXPECT_EQ(MissingParts(launcher),
              std::vector<Text>{"The map \"DM7?\" lies in no archive and no directory of the game."});
}

TEST_F(MissingPartsTest, AScriptThatThePlayersScriptExecutes) {
    Open("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    system.Disk.AddFile("C:\\QUAKE\\ID1\\lv_666.qs", "exec my.cfg\r\n");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\my.cfg", "exec gone.cfg\n");
    const std::vector<Text> missing = MissingParts(launcher);
    ASSERT_EQ(missing.size(), 1U);
    EXPECT_TRUE(missing[0].find("gone.cfg") != Text::npos) << missing[0];
}

}  // namespace
}  // namespace lv
