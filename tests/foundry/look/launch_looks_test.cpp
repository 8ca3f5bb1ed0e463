#include "foundry/look/launch_looks.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundry/look/file_order_frm.h"
#include "foundry/look/script_check_frm.h"
#include "launcher/window/lv_events.h"
#include "tests/foundry/look/game_start.h"
#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

bool HasRow(const ListBox& list, TextView part) {
    return std::ranges::any_of(list.Items, [&](const Text& row) { return Holds(row, part); });
}

}  // namespace

class StartWithAScript : public GameStart {};

TEST_F(StartWithAScript, LeavesAStartAsItIsThatExecutesIt) {
    const LookedStart start = StartWith(system.Disk, request, "c:\\quake\\ID1\\MORE.CFG");
    EXPECT_EQ(start.Request.Commands, (std::vector<Text>{"exec my.cfg"}));
    EXPECT_EQ(start.Note, "");
}

TEST_F(StartWithAScript, ExecutesAnotherBehindAllElseAndSaysSo) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\two words.cfg", "bind x quit\n");
    const LookedStart start = StartWith(system.Disk, request, "C:\\QUAKE\\ID1\\two words.cfg");
    EXPECT_EQ(start.Request.Commands, (std::vector<Text>{"exec my.cfg", "exec \"two words.cfg\""}));
    EXPECT_EQ(start.Note,
              "A launch as the main window stands now does not execute two words.cfg. Here it is executed behind all "
              "else.");
}

TEST_F(StartWithAScript, SaysWhereTheGameWouldNotFindIt) {
    system.Disk.AddFile("C:\\QUAKE\\CTF\\ctf.cfg", "bind x quit\n");
    EXPECT_EQ(StartWith(system.Disk, request, "C:\\QUAKE\\CTF\\ctf.cfg").Note,
              "A launch as the main window stands now does not execute ctf.cfg, and the game would not find it in "
              "C:\\QUAKE\\CTF.");
}

TEST_F(StartWithAScript, ReadsAnIniInThePlaceOfTheUsualOne) {
    request.Played = {.Of = Console::Unreal, .GameKind = Game::Unreal, .Directory = "C:\\UNREAL\\SYSTEM"};
    request.Commands.clear();
    system.Disk.AddFile("C:\\UNREAL\\SYSTEM\\mine.ini", "[Engine.Input]\r\nX=Jump\r\n");
    const LookedStart start = StartWith(system.Disk, request, "C:\\UNREAL\\SYSTEM\\mine.ini");
    EXPECT_EQ(start.Request.Commands, (std::vector<Text>{"INI=mine.ini"}));
    EXPECT_TRUE(Holds(start.Note, "Here it is read as if it did."));
}

class LaunchLooks : public LauncherTest {
  protected:
    void LoadQuake() {
        AddGames();
        system.Disk.AddFile("C:\\QUAKE\\ID1\\my.cfg", "bind x +attack\nfrobnicate 3\n");
        Load();
        PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    }
};

TEST_F(LaunchLooks, ShowTheLaunchScriptThoughThereIsNoFileYet) {
    LoadQuake();
    Click(Option::Script_Chk, 1);
    user.In<FileOrder_Frm>([](FileOrder_Frm& form) {
        EXPECT_FALSE(form.Note_Lbl.Visible);
        EXPECT_TRUE(HasRow(form.Files_Lst, "lv_666.qs   c:\\quake\\ID1\\lv_666.qs   (as a launch would write it now)"));
        EXPECT_TRUE(HasRow(form.Files_Lst, "    my.cfg   c:\\quake\\ID1\\my.cfg"));
        FileOrder_Close_Cmd_Click(form);
    });
    ShowFileOrderOfLaunch(launcher);
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\lv_666.qs"), "(none)");
}

TEST_F(LaunchLooks, SayWhereTheLaunchLeavesThePickedScriptOut) {
    LoadQuake();
    Click(Option::Script_Chk, 0);
    user.In<FileOrder_Frm>([](FileOrder_Frm& form) {
        EXPECT_TRUE(form.Note_Lbl.Visible);
        EXPECT_EQ(
            form.Note_Lbl.Caption,
            "A launch as the main window stands now does not execute my.cfg. Here it is executed behind all else.");
        FileOrder_Close_Cmd_Click(form);
    });
    ShowFileOrderOfLaunch(launcher);
}

TEST_F(LaunchLooks, CheckThePickedScript) {
    LoadQuake();
    Click(Option::Script_Chk, 1);
    user.In<ScriptCheck_Frm>([](ScriptCheck_Frm& form) {
        EXPECT_FALSE(form.Note_Lbl.Visible);
        EXPECT_TRUE(HasRow(form.Findings_Lst, "my.cfg:2: frobnicate"));
        ScriptCheck_Close_Cmd_Click(form);
    });
    ShowCheckOfLaunch(launcher);
}

TEST_F(LaunchLooks, NeedAnExecutable) {
    Load();
    user.Expect({"Lorvane 3D", "No executable is selected."});
    ShowFileOrderOfLaunch(launcher);
    user.Expect({"Lorvane 3D", "No executable is selected."});
    ShowCheckOfLaunch(launcher);
}

TEST_F(LaunchLooks, NeedAGame) {
    LoadQuake();
    run.GameKind = Game::None;
    user.Expect({"Lorvane 3D", "Nobody knows which scripts this program executes: it belongs to none of the games."});
    ShowFileOrderOfLaunch(launcher);
}

TEST_F(LaunchLooks, WaitForALaunchThatIsUnderWay) {
    LoadQuake();
    launcher.LaunchUnderWay = true;
    ShowFileOrderOfLaunch(launcher);
    ShowCheckOfLaunch(launcher);
}

}  // namespace lv
