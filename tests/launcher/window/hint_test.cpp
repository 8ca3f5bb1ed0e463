#include "launcher/window/hint.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using Hint = LauncherTest;

TEST_F(Hint, SaysThatNoGameIsThereYet) {
    EXPECT_EQ(HintText(launcher), "No game is in the list yet.");
}

TEST_F(Hint, AsksForAPick) {
    window.Exe_Cbo.Items = {{"Quake", "c:\\quake\\quake.exe", "QUAKE", "QUAKE"}};
    EXPECT_EQ(HintText(launcher), "Pick a game.");
}

TEST_F(Hint, TellsOfAProgramWithoutAGame) {
    window.Exe_Cbo.Items = {{"Editor", "c:\\tools\\edit.exe", "QUESTION", "QUESTION"}};
    window.Exe_Cbo.ListIndex = 0;
    EXPECT_EQ(HintText(launcher), "No known game lies beside edit.exe.");
}

TEST_F(Hint, NamesWhatF2Starts) {
    window.Exe_Cbo.Items = {{"Quake", "c:\\quake\\quake.exe", "QUAKE", "QUAKE"}};
    window.Exe_Cbo.ListIndex = 0;
    run.GameKind = Game::Quake;
    EXPECT_EQ(HintText(launcher), "F2 starts quake.exe.");
    window.Game_Cbo.Items = {Text("Capture the Flag") + Text(84, ' ') + "-game ctf"};
    window.Script_Cbo.Items = {Text("my.cfg") + Text(94, ' ') + "c:\\quake\\id1\\my.cfg"};
    window.Map_Cbo.Items = {"START"};
    window.Game_Cbo.ListIndex = window.Script_Cbo.ListIndex = window.Map_Cbo.ListIndex = 0;
    window.Box(Option::Game_Chk).Value = window.Box(Option::Script_Chk).Value = window.Box(Option::Map_Chk).Value = 1;
    EXPECT_EQ(HintText(launcher), "F2 starts quake.exe, Capture the Flag, with my.cfg, at START.");
}

TEST_F(Hint, SaysThatF2ConfiguresGameSpyWhereThatIsTicked) {
    window.Box(Option::LaunchQspy_Chk).Value = 1;
    EXPECT_EQ(HintText(launcher), "No game is in the list yet.");
    window.Exe_Cbo.Items = {{"Quake", "c:\\quake\\quake.exe", "QUAKE", "QUAKE"}};
    window.Exe_Cbo.ListIndex = 0;
    run.GameKind = Game::Quake;
    EXPECT_EQ(HintText(launcher), "F2 configures GameSpy 3D to start your games.");
    window.Box(Option::LaunchQspy_Chk).Value = 0;
    EXPECT_EQ(HintText(launcher), "F2 starts quake.exe.");
}

}  // namespace
}  // namespace lv
