#include "launcher/window/engine_launch.h"

#include "games/engines/engine_seats.h"
#include "launcher/window/launch_flow.h"
#include "tests/support/launcher_fixture.h"
#include "tests/support/shipped_engines.h"

namespace lv {

class EngineLaunches : public LauncherTest {
  protected:
    /// QuakeSpasm plays the tree from its seat.
    void LoadWith(bool isFull, TextView engine = "quakespasm") {
        AddGames();
        launcher.Engines = ShippedEngines();
        system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak");
        if (isFull) {
            system.Disk.AddFile("C:\\QUAKE\\ID1\\pak1.pak");
        }
        system.Disk.AddFile(Join("Z:\\usr\\games\\", engine));
        const Text seat = Join("c:\\quake\\", engine);
        SeatEngine(run, seat, Join("Z:\\usr\\games\\", engine));
        Save(run, kOptions, "Executables", Join("The engine;", seat));
        Load();
        PickExe(seat);
    }

    static constexpr const char* kBatch = "C:\\QUAKE\\lv_666.bat";
    static constexpr const char* kScript = "C:\\QUAKE\\ID1\\lv_666.qs";
    static constexpr const char* kAutoexec = "C:\\QUAKE\\ID1\\autoexec.cfg";
};

TEST_F(EngineLaunches, StartItFromItsSeatWithoutWhatItMustNotGet) {
    LoadWith(true);
    Click(Option::Script_Chk, 1);
    Click(Option::Memory_Chk, 1);
    DoIt_Cmd_Click(launcher, 0);
    const Text batch = system.Disk.Bytes(kBatch);
    EXPECT_NE(batch.find("QUAKESPASM "), Text::npos) << batch;
    EXPECT_EQ(batch.find("-heapsize"), Text::npos) << batch;
    EXPECT_EQ(batch.find("-winmem"), Text::npos) << batch;
    EXPECT_TRUE(batch.ends_with("+exec lv_666.qs")) << batch;
    EXPECT_TRUE(system.Disk.Bytes(kScript).starts_with("exec my.cfg\r\n"));
    EXPECT_EQ(system.Disk.Bytes(kAutoexec), "(none)");
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake\\lv_666.bat"}));
}

TEST_F(EngineLaunches, ViewShowsWhatWasLeftOutAndWhy) {
    LoadWith(true);
    Click(Option::NOCDAUDIO_Chk, 0);
    user.Expect({"Viewing Commands", "For QuakeSpasm = \r\n", 0});
    DoIt_Cmd_Click(launcher, 1);
}

TEST_F(EngineLaunches, ViewOfTheGamesOwnProgramShowsNoneOfIt) {
    AddGames();
    launcher.Engines = ShippedEngines();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    user.Expect({"Viewing Commands", "Script File = \r\n", 0});
    DoIt_Cmd_Click(launcher, 1);
    EXPECT_EQ(user.Asked.back().Question_Txt.Text.find("For "), Text::npos);
}

TEST_F(EngineLaunches, SharewareDataAskBeforeTheUsersAutoexecIsTouched) {
    LoadWith(false);
    Click(Option::Script_Chk, 1);
    user.Expect({"Shareware Data", "autoexec.cfg", 0, false, false, "&Yes,&No"});
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(system.Disk.Bytes(kAutoexec), "// Lorvane 3D: this launch\r\nexec lv_666.qs\r\n// Lorvane 3D: end\r\n");
}

TEST_F(EngineLaunches, WithoutTheUsersWordTheAutoexecStaysAsItIs) {
    system.Disk.AddFile(kAutoexec, "bind x +jump\n");
    LoadWith(false);
    Click(Option::Script_Chk, 1);
    user.Expect({"Shareware Data", "autoexec.cfg", 1, false, false, "&Yes,&No"});
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(system.Disk.Bytes(kAutoexec), "bind x +jump\n");
    EXPECT_NE(system.Disk.Bytes(kBatch), "(none)");
}

TEST_F(EngineLaunches, ALineThatIsTooShortForTheScriptIsAskedAboutByThatReason) {
    const Text program = Join("quakespasm-", Text(230, 'x'), ".appimage");
    LoadWith(true, program);
    Click(Option::Script_Chk, 1);
    user.Expect({"Command Line Too Short",
                 "(it reads no more than 255 characters of its command line), but\r\nit runs it", 0, false, false,
                 "&Yes,&No"});
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(system.Disk.Bytes(kAutoexec), "// Lorvane 3D: this launch\r\nexec lv_666.qs\r\n// Lorvane 3D: end\r\n");
}

TEST_F(EngineLaunches, AnAutoexecThatHeldTheLastLaunchAloneGoesAgain) {
    system.Disk.AddFile(kAutoexec, "// Lorvane 3D: this launch\r\nexec lv_666.qs\r\n// Lorvane 3D: end\r\n");
    LoadWith(true);
    Click(Option::Script_Chk, 1);
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(system.Disk.Bytes(kAutoexec), "(none)");
}

TEST_F(EngineLaunches, AQuakeWorldClientGetsServersAndNoMaps) {
    LoadWith(true, "ezquake");
    EXPECT_TRUE(run.IsQuakeWorld);
    EXPECT_FALSE(window.Box(Option::Map_Chk).Enabled);
}

TEST_F(EngineLaunches, MemoryIsGreyedWithTheReason) {
    LoadWith(true);
    EXPECT_FALSE(window.Memory_Pan.Enabled);
    EXPECT_EQ(window.Box(Option::Memory_Chk).ToolTip, "QuakeSpasm manages its own memory");
}

TEST_F(EngineLaunches, TheGamesOwnProgramGetsItsMemoryBack) {
    LoadWith(true);
    window.Exe_Cbo.Items.push_back({"Quake", "C:\\QUAKE\\GLQUAKE.EXE", "", ""});
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_TRUE(window.Memory_Pan.Enabled);
    EXPECT_EQ(window.Box(Option::Memory_Chk).ToolTip, OptionBoxOf(Option::Memory_Chk).ToolTip);
}

TEST_F(EngineLaunches, ThePictureIsThatOfTheGame) {
    LoadWith(true);
    EXPECT_NE(window.Exe_Cbo.Items[0].Image, "QUESTION");
}

TEST_F(EngineLaunches, ViewSaysWhatTheUserHasRefused) {
    LoadWith(false);
    Click(Option::Script_Chk, 1);
    user.Expect({"Shareware Data", "autoexec.cfg", 1, false, false, "&Yes,&No"});
    user.Expect({"Viewing Commands", "+exec lv_666.qs:\r\n\tleft out, autoexec.cfg stays as it is", 0});
    DoIt_Cmd_Click(launcher, 1);
}

TEST_F(EngineLaunches, AnEngineInNoGamesDirectoryIsNotStartedAndNothingIsWrittenBesideIt) {
    AddGames();
    launcher.Engines = ShippedEngines();
    system.Disk.AddFile("Z:\\usr\\games\\quakespasm");
    Save(run, kOptions, "Executables", "QuakeSpasm;Z:\\usr\\games\\quakespasm");
    Load();
    PickExe("Z:\\usr\\games\\quakespasm");
    user.Expect({"Lorvane 3D", "QuakeSpasm lies in no game's directory", 0});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes("Z:\\usr\\games\\lv_666.bat"), "(none)");
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(EngineLaunches, AGoneEngineIsNamedWithItsProgram) {
    LoadWith(true);
    system.Disk.Delete("Z:\\usr\\games\\quakespasm");
    user.Expect({"Lorvane 3D",
                 "4) Windows incorrectly reported that the file is missing.\r\n\r\n"
                 "QuakeSpasm plays this game from elsewhere, and its program is not there any more:\r\n\r\n"
                 "\t/z:/usr/games/quakespasm\r\n\r\nIn a terminal, \"apt install quakespasm\" installs it."});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
}

}  // namespace lv
