#include "launcher/window/launch_flow.h"

#include <new>
#include <set>

#include "tests/launcher/window/launch_flow_fixture.h"

namespace lv {
namespace {

TEST_F(LaunchFlow, WritesTheThreeFilesByteForByteAndStartsTheBatch) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    SetProfile("VidCard", "1");
    SetProfile("FX_GLIDE_SWAPINTERVAL", "1");
    SetProfile("FX_GLIDE_SWAPINTERVAL_Setting", "0");
    SetProfile("FX_GLIDE_SWAPINTERVAL_Setting_Content", "0");
    SetProfile("SST_RGAMMA", "1");
    SetProfile("SST_RGAMMA_Setting", "4");
    SetProfile("SST_RGAMMA_Setting_Content", "1.7");
    SetProfile("gl_polyblend", "1");
    SetProfile("gl_polyblend_Setting", "0");
    SetProfile("gl_polyblend_Setting_Content", "0");
    SetProfile("UseRez", "1");
    SetProfile("ResolutionsPos", "4");
    SetProfile("ResolutionsPos_Content", Text("640x480") + Text(93, ' ') + "-width 640");
    Click(Option::Script_Chk, 1);
    Click(Option::Memory_Chk, 1);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes(kScript), "exec my.cfg\r\ngl_polyblend 0\r\n");
    EXPECT_EQ(system.Disk.Bytes(kBatch),
              "SET FX_GLIDE_SWAPINTERVAL=0\r\nSET SST_RGAMMA=1.7\r\nC:\r\ncd c:\\quake\r\n"
              "GLQUAKE.EXE -zone 512 -heapsize 16384 -width 640 +exec lv_666.qs");
    EXPECT_EQ(system.Disk.Bytes(kPif), "the pif of most");
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake\\lv_666.bat"}));
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "1");
    EXPECT_EQ(Stored("Played", "c:\\quake\\glquake.exe"), "1999-11-21 12:30:00;0;1");
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(window.Bar(MenuItem::ShowLorvane_Bar).Caption, "&Show Lorvane 3D");
}

TEST_F(LaunchFlow, AGameThatCannotBeStartedWasNotPlayed) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    system.Programs.Refuse = MakeError(error::kFileNotFound);
    user.Expect({"Lorvane 3D", "Error Number = 53"});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(Stored("Played", "c:\\quake\\glquake.exe"), "(none)");
}

TEST_F(LaunchFlow, WithoutASelectedExecutableWritesNothing) {
    Load();
    const std::size_t writes = system.Disk.Log.size();
    user.Expect({"Lorvane 3D", "No executable is selected.", 0, false, true});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Log.size(), writes);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LaunchFlow, AnEmptyPathIsTold) {
    Load();
    window.Exe_Cbo.Items = {{"Nothing", "", "QUESTION", "QUESTION"}};
    window.Exe_Cbo.ListIndex = 0;
    user.Expect({"Error in executable path", "Executable defined as an empty string.", 0, false, true});
    DoIt_Cmd_Click(launcher, 0);
}

TEST_F(LaunchFlow, AMissingExecutableIsToldWithItsPossibilities) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    (void)system.Disk.Delete("C:\\QUAKE\\GLQUAKE.EXE");
    user.Expect({"Lorvane 3D",
                 "The executable game file -->\r\n\r\n\t\"C:\\QUAKE\\GLQUAKE.EXE\"\r\n\r\n"
                 "could not be found. The following possiblities exist.\r\n\r\n"
                 "1) The game has been moved.\r\n2) The game has been removed.\r\n3) The game is corrupted.\r\n"
                 "4) Windows incorrectly reported that the file is missing.\r\n",
                 0, false, true, "&OK"});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_FALSE(system.Disk.FileExists(kBatch));
}

TEST_F(LaunchFlow, APathWithSlashesWorksAsOneWithBackslashes) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    window.Exe_Cbo.Items[0].Key = "C:/QUAKE/GLQUAKE.EXE";
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_TRUE(system.Disk.Bytes(kBatch).ends_with("GLQUAKE.EXE -zone 512"));
}

TEST_F(LaunchFlow, CreateOnlyWritesScriptAndBatchAndNothingElse) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    system.Disk.AddFile(kPif, "as it was");
    window.Visible = true;
    Click(Option::Script_Chk, 1);
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(system.Disk.Bytes(kScript), "exec my.cfg\r\n");
    EXPECT_TRUE(system.Disk.FileExists(kBatch));
    EXPECT_EQ(system.Disk.Bytes(kPif), "as it was");
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "(none)");
    EXPECT_TRUE(window.Visible);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LaunchFlow, ViewShowsTheTextsAndStopsAtCool) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Save(run, kOptions, "VidCard", "0");
    Click(Option::Script_Chk, 1);
    user.Expect({"Viewing Commands",
                 "AppDir = C:\\LORVANE\r\n\r\nBatch File = \r\nC:\r\ncd c:\\quake\r\n"
                 "GLQUAKE.EXE -zone 512 +exec lv_666.qs\r\n\r\nScript File = \r\nexec my.cfg\r\n",
                 0, false, true, "&Cool - Thanks Man!,P&lace in Clipboard,Launch Me!"});
    DoIt_Cmd_Click(launcher, 1);
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_EQ(system.Clip.Held, "");
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "(none)");
}

TEST_F(LaunchFlow, ViewPlacesTheTextInTheClipboard) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    user.Expect({"Viewing Commands", "GLQUAKE.EXE", 1});
    DoIt_Cmd_Click(launcher, 1);
    EXPECT_TRUE(system.Clip.Held.starts_with("AppDir = C:\\LORVANE\r\n\r\nBatch File = \r\n"));
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LaunchFlow, ViewLaunchesByItsThirdButton) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    user.Expect({"Viewing Commands", "GLQUAKE.EXE", 2});
    DoIt_Cmd_Click(launcher, 1);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "1");
}

TEST_F(LaunchFlow, ViewShowsTheSecondDialectForItsFamily) {
    LoadWith("C:\\QUAKE2\\QUAKE2.EXE");
    Save(run, kOptions, "Windowed", "1");
    user.Expect({"Viewing Commands", "Script File = \r\nset _windowed_mouse 1\r\n", 0});
    DoIt_Cmd_Click(launcher, 1);
}

// Fills the command line up to a length by the user's own additions; two blanks frame them.
TEST_F(LaunchFlow, ALineOf129CharactersAsksOnWindows95) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    run.IsWin9x = true;
    const Text command = "GLQUAKE.EXE -zone 512 ";
    window.CommandLineAdditions_Txt.Text = Text(129 - command.size() - 1, 'x');
    window.Box(Option::CommandLineAdditions_Chk).Value = 1;
    const Text whole = command + window.CommandLineAdditions_Txt.Text + " ";
    user.Expect({"Command Line Problem",
                 "Command Line = " + whole +
                     "\r\nLength = 129\r\nThe total command line exceedes 128 characters.\r\n"
                     "This will cause it to not work properly.",
                 1, false, true, "&That's OK,&Abort Launch"});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
    user.Expect({"Command Line Problem", "Length = 129", 0});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(LaunchFlow, ALineOf128CharactersDoesNotAsk) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    run.IsWin9x = true;
    window.CommandLineAdditions_Txt.Text = Text(128 - Text("GLQUAKE.EXE -zone 512 ").size() - 1, 'x');
    window.Box(Option::CommandLineAdditions_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(LaunchFlow, OnWindowsNtNoLengthAsks) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    window.CommandLineAdditions_Txt.Text = Text(500, 'x');
    window.Box(Option::CommandLineAdditions_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(LaunchFlow, WithoutAGameDirectoryTheOnlyWordComesBehindTheCount) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    run.DefaultGameDirectory.clear();
    const std::size_t writes = system.Disk.Log.size();
    user.Expect({"Lorvane 3D", "DefaultGameDirectory not set - cannot launch", 0, false, true});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "1");
    EXPECT_EQ(system.Disk.Log.size(), writes);
}

TEST_F(LaunchFlow, AnEmptyScriptTakesTheLastOneAway) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    system.Disk.AddFile(kScript, "of the last launch");
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_FALSE(system.Disk.FileExists(kScript));
    EXPECT_FALSE(TextView(system.Disk.Bytes(kBatch)).ends_with("+exec lv_666.qs"));
}

TEST_F(LaunchFlow, WithoutADataDirectoryTheScriptLiesBesideTheBatch) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    run.CurrentGameDir.clear();
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\lv_666.qs"), "exec my.cfg\r\n");
}

TEST_F(LaunchFlow, AScriptThatCannotBeWrittenIsReportedAndEndsTheClick) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    system.Disk.Refused["c:\\quake\\id1\\lv_666.qs"] = MakeError(error::kDiskFull);
    user.Expect({"Lorvane 3D",
                 "Error Number = 61\r\nError Code = EC00205\r\nError String = Disk full\r\n"
                 "Curreny System Directory = C:\\\r\nDefault Game Directory = c:\\quake\r\n"
                 "Current Command Line = GLQUAKE.EXE -zone 512 ",
                 0, false, true});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_FALSE(system.Disk.FileExists(kBatch));
}

TEST_F(LaunchFlow, ABatchThatCannotBeWrittenIsReportedWithItsTag) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    system.Disk.Refused["c:\\quake\\lv_666.bat"] = MakeError(error::kPathFileAccess);
    user.Expect({"Lorvane 3D",
                 "Error Number = 75\r\nError Code = EC00230\r\nError String = Path/File access error\r\n"
                 "Curreny System Directory = C:\\\r\nDefault Game Directory = c:\\quake\r\n"
                 "Current Command Line = GLQUAKE.EXE -zone 512 \r\n0000005 File = c:\\quake\\lv_666.bat",
                 0, false, true});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LaunchFlow, AGameThatCannotBeStartedIsReportedAndTheWindowComesBack) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    system.Programs.Refuse = MakeError(error::kFileNotFound, "wine");
    user.Expect({"Lorvane 3D", "Error Number = 53\r\nError Code = EC00480\r\nError String = File not found: wine", 0});
    window.Visible = true;
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(window.Bar(MenuItem::ShowLorvane_Bar).Caption, "&Hide Lorvane 3D");
}

TEST_F(LaunchFlow, AMissingTemplateLeavesTheGameStartingWithoutPif) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    (void)system.Disk.Delete("C:\\LORVANE\\lv_666.hid");
    system.Disk.AddFile(kPif, "of the last launch");
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_FALSE(system.Disk.FileExists(kPif));
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(LaunchFlow, Quake2GetsItsOwnTemplate) {
    LoadWith("C:\\QUAKE2\\QUAKE2.EXE");
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE2\\lv_666.pif"), "the pif of two");
}

TEST_F(LaunchFlow, UnrealGetsNoScriptFile) {
    LoadWith("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
    Save(run, kOptions, "VidCard", "0");
    Click(Option::Script_Chk, 1);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes("C:\\UNREAL\\SYSTEM\\lv_666.bat"),
              "C:\r\ncd c:\\unreal\\system\r\nUNREAL.EXE -nohard INI=unreal.ini ");
    EXPECT_FALSE(system.Disk.FileExists("C:\\UNREAL\\SYSTEM\\lv_666.qs"));
}

TEST_F(LaunchFlow, DedicatedOnAGlExecutableIsRefused) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Dedicated_Chk, 1);
    user.Expect({"Lorvane 3D",
                 "The '-dedicated' parameter causes a fat GPF when used with glqauke.exe.\r\n\r\n"
                 "Besides, there is no reason for a dedicated server to run GL. Please use quake.exe, or winquake.exe.",
                 0, false, true});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_FALSE(system.Disk.FileExists(kBatch));
}

TEST_F(LaunchFlow, ExitOnLaunchEndsTheProgramBehindTheStart) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::EndOnLaunch_Chk, 1);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
    EXPECT_TRUE(user.ProgramEnded);
}

TEST_F(LaunchFlow, ConnectsToTheServerInGameSpysWindow) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::QSpy_Chk, 1);
    system.Windows.Windows[7] = {"GameSpy 3D 2.20", "Afx:1"};
    system.Clip.Held = "43 10.0.0.1 27500 Home";
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes(kScript), "connect 10.0.0.1:27500\r\n");
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(LaunchFlow, WithoutAServerInGameSpysWindowStopsWithoutAnotherWord) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::QSpy_Chk, 1);
    user.Expect({"Error Looking for GameSpy 3D", "GameSpy 3D was not found.", 0, false, true, "&OK"});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_FALSE(system.Disk.FileExists(kBatch));
}

TEST_F(LaunchFlow, AnotherClickWhileGameSpyIsWaitedForDoesNothing) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::QSpy_Chk, 1);
    system.Windows.Windows[7] = {"GameSpy 3D 2.20", "Afx:1"};
    system.Clip.Held = "10.0.0.1:27500";
    user.OnPump = [this] { DoIt_Cmd_Click(launcher, 0); };
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "1");
}

TEST_F(LaunchFlow, AProgramThatEndsWhileGameSpyIsAskedStartsNoGame) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::QSpy_Chk, 1);
    system.Windows.Windows[7] = {"GameSpy 3D 2.20", "Afx:1"};
    system.Clip.Held = "10.0.0.1:27500";
    user.OnPump = [this] { run.Ended = user.WindowCalls.empty() && !system.Windows.Log.empty(); };
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_FALSE(system.Disk.FileExists(kBatch));
}

TEST_F(LaunchFlow, AnotherGamePickedWhileGameSpyIsAskedDoesNotChangeWhatStarts) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::QSpy_Chk, 1);
    system.Windows.Windows[7] = {"GameSpy 3D 2.20", "Afx:1"};
    system.Clip.Held = "10.0.0.1:27500";
    user.OnPump = [this] { run.DefaultGameDirectory = "c:\\quake2"; };
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake\\lv_666.bat"}));
}

TEST_F(LaunchFlow, ALaunchMakesTheGamesDirectoryCurrent) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(LowerCase(system.Disk.CurrentDirectory()), "c:\\quake");
}

TEST_F(LaunchFlow, ATickCountsOnlyWhenItIsOne) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    window.Box(Option::NOLAN_Chk).Value = 2;
    EXPECT_FALSE(SelectionOf(window).Ticked.Has(Option::NOLAN_Chk));
    window.Box(Option::NOLAN_Chk).Value = 1;
    EXPECT_TRUE(SelectionOf(window).Ticked.Has(Option::NOLAN_Chk));
}

TEST_F(LaunchFlow, AListCountsOnlyWithASelectedRow) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    window.Mem_Cbo.ListIndex = -1;
    EXPECT_FALSE(SelectionOf(window).Memory.has_value());
    window.Mem_Cbo.ListIndex = 0;
    EXPECT_EQ(SelectionOf(window).Memory, "-winmem 8");
}

// What strangers name, and who reads it

TEST_F(LaunchFlow, ANameThatTheCommandProcessorWouldMisreadIsToldBeforeAnythingIsWritten) {
    AddGames();
    system.Disk.AddDirectory("C:\\QUAKE\\M&CALC\\maps");
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    system.Programs.Reader = LineReader::kCommandProcessor;
    window.Game_Cbo.ListIndex = static_cast<int>(window.Game_Cbo.Items.size()) - 1;
    ASSERT_TRUE(window.Game_Cbo.Selected().ends_with("-game M&CALC"));
    window.Box(Option::Game_Chk).Value = 1;
    const std::size_t writes = system.Disk.Log.size();
    for (const int mode : {0, 1, 2}) {
        user.Expect({"Lorvane 3D",
                     "Nothing was written, and nothing was started.\r\n\r\n"
                     "The modification \"m&calc\" comes from the directories of the game.\r\n"
                     "The command processor would not read it as one word of text.\r\n\r\n"
                     "Rename its directory, or pick another modification.",
                     0, false, true});
        DoIt_Cmd_Click(launcher, mode);
    }
    EXPECT_EQ(system.Disk.Log.size(), writes);
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "(none)");
}

TEST_F(LaunchFlow, WhereNobodyReadsTheCommandTheBatchIsWrittenAndTheNameHandedOverWhole) {
    AddGames();
    system.Disk.AddDirectory("C:\\QUAKE\\X +CONNECT EVIL.EXAMPLE\\maps");
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    window.Game_Cbo.ListIndex = static_cast<int>(window.Game_Cbo.Items.size()) - 1;
    window.Box(Option::Game_Chk).Value = 1;
    const std::size_t writes = system.Disk.Log.size();
    const auto expectQuestion = [this](int answer) {
        user.Expect({"A Command In A Name",
                     "The modification \"x +connect evil.example\" comes from the directories of the game.\r\n"
                     "Many games carry out what stands behind a \"+\" as a command of their own.\r\n\r\n"
                     "Start it only if that may happen.",
                     answer, false, true, "&Don't Start,&Start It"});
    };
    expectQuestion(0);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Log.size(), writes);
    EXPECT_TRUE(system.Programs.Started.empty());
    expectQuestion(1);
    DoIt_Cmd_Click(launcher, 0);
    const Text batch = system.Disk.Bytes(kBatch);
    EXPECT_TRUE(batch.ends_with("GLQUAKE.EXE -zone 512 -game x +connect evil.example"));
    EXPECT_EQ(system.Programs.Known.Program, "GLQUAKE.EXE");
    ASSERT_EQ(system.Programs.Known.Given.size(), 1u);
    EXPECT_EQ(system.Programs.Known.Given[0].Written, "x +connect evil.example");
    EXPECT_EQ(system.Programs.Known.Given[0].At, batch.size() - 23);
}

TEST_F(LaunchFlow, ADirectoryThatDosBoxCannotMountIsToldBeforeAnythingIsWritten) {
    AddGames();
    system.Disk.AddFile("C:\\A\"B\\GLQUAKE.EXE");
    system.Disk.AddDirectory("C:\\A\"B\\ID1");
    Save(run, kOptions, "Executables", "Quake;C:\\A\"B\\GLQUAKE.EXE");
    Load();
    PickExe("C:\\A\"B\\GLQUAKE.EXE");
    system.Programs.Reader = LineReader::kDosShell;
    const std::size_t writes = system.Disk.Log.size();
    for (const int mode : {0, 1, 2}) {
        user.Expect({"Lorvane 3D",
                     "The game directory \"c:\\a\"b\" comes from the path of the executable.\r\n"
                     "DOS's shell would not read it as one word of text."});
        DoIt_Cmd_Click(launcher, mode);
    }
    EXPECT_EQ(system.Disk.Log.size(), writes);
}

TEST_F(LaunchFlow, ADirectoryAtTheNameOfALaunchFileIsToldWithItsPath) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    system.Disk.AddDirectory("C:\\QUAKE\\LV_666.BAT");
    user.Expect({"Lorvane 3D",
                 "Error Number = 75\r\nError Code = EC00230\r\nError String = Path/File access error: "
                 "c:\\quake\\lv_666.bat is a directory. Rename it, or remove it.\r\n"});
    DoIt_Cmd_Click(launcher, 0);
    (void)system.Disk.Delete(kScript);
    system.Disk.AddDirectory(kScript);
    user.Expect({"Lorvane 3D",
                 "Error Number = 75\r\nError Code = EC00205\r\nError String = Path/File access error: "
                 "c:\\quake\\ID1\\lv_666.qs is a directory. Rename it, or remove it.\r\n"});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LaunchFlow, AScriptThatMayNotBeWrittenIsToldWithItsPath) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    for (const int number : {70, 75}) {
        system.Disk.Refused["c:\\quake\\id1\\lv_666.qs"] = MakeError(number);
        user.Expect({"Lorvane 3D", Join(MakeError(number).Text, ": c:\\quake\\ID1\\lv_666.qs\r\n")});
        DoIt_Cmd_Click(launcher, 0);
    }
}

TEST_F(LaunchFlow, PipesAtTheNamesOfTheLaunchFilesAreReplaced) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    for (const char* const file : {kBatch, kScript, kPif}) {
        system.Disk.AddDevice(file);
    }
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes(kScript), "exec my.cfg\r\n");
    EXPECT_EQ(system.Disk.Bytes(kPif), "the pif of most");
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(LaunchFlow, ADataDirectoryThatIsALinkOutOfTheGameIsAskedAboutOnce) {
    AddGames();
    system.Disk.AddFile("C:\\SRV\\ID1\\their.cfg");
    system.Disk.AddFile("C:\\SRV\\ID1\\lv_666.qs", "theirs");
    system.Disk.AddLink("C:\\QUAKE\\ID1", "C:\\SRV\\ID1");
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    DoIt_Cmd_Click(launcher, 2);  // without a script nothing there is touched
    EXPECT_EQ(system.Disk.Bytes("C:\\SRV\\ID1\\lv_666.qs"), "theirs");
    Click(Option::Script_Chk, 1);
    ASSERT_TRUE(window.Script_Cbo.HasSelection());
    const auto expectQuestion = [this](int answer) {
        user.Expect({"Link To Another Place",
                     "The directory -->\r\n\r\n\t\"c:\\quake\\ID1\"\r\n\r\n"
                     "is a link that leads out of the game, to -->\r\n\r\n\t\"c:\\srv\\id1\"\r\n\r\n"
                     "If it came in an archive from somebody else, leave that directory alone.",
                     answer, false, true, "&Leave It Alone,&Write There"});
    };
    expectQuestion(0);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes("C:\\SRV\\ID1\\lv_666.qs"), "theirs");
    EXPECT_TRUE(system.Programs.Started.empty());
    expectQuestion(1);
    DoIt_Cmd_Click(launcher, 0);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Disk.Bytes("C:\\SRV\\ID1\\lv_666.qs").starts_with("exec "));
    EXPECT_EQ(system.Programs.Started.size(), 2u);
}

TEST_F(LaunchFlow, TheUsersOwnAdditionsRemainTheUsers) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    for (const LineReader reader : {LineReader::kCommandProcessor, LineReader::kBatch, LineReader::kDosShell}) {
        system.Programs.Reader = reader;
        window.CommandLineAdditions_Txt.Text = "+name \"a & b\" & echo %PATH%";
        window.Box(Option::CommandLineAdditions_Chk).Value = 1;
        DoIt_Cmd_Click(launcher, 0);
        EXPECT_TRUE(system.Disk.Bytes(kBatch).ends_with("+name \"a & b\" & echo %PATH%"));
    }
    EXPECT_EQ(system.Programs.Started.size(), 3u);
}

TEST_F(LaunchFlow, AHalfLifePasswordRunsNoFileCalledConnect) {
    LoadWith("C:\\HL\\HL.EXE");
    system.Disk.AddFile("C:\\HL\\CONNECT.BAT");
    window.Server_Cbo.Items = {Text("Mine") + Text(96, ' ') + "10.0.0.1;27015;9;secret"};
    window.Server_Cbo.ListIndex = 0;
    window.Box(Option::Server_Chk).Value = 1;
    system.Programs.Reader = LineReader::kCommandProcessor;
    const std::size_t writes = system.Disk.Log.size();
    user.Expect({"Lorvane 3D",
                 "Nothing was written, and nothing was started.\r\n\r\n"
                 "The file \"c:\\hl\\connect.bat\" lies in the game's directory.\r\n"
                 "The command processor would run it behind the game, for the server's password breaks the command "
                 "line.\r\n\r\nRemove the file, or the password of the server.",
                 0, false, true});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Log.size(), writes);
    system.Programs.Reader = LineReader::kNobody;
}

TEST_F(LaunchFlow, LinksAtTheLaunchFilesAreReplacedAndNeverFollowed) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    system.Disk.AddFile("C:\\HOME\\.bashrc", "mine");
    for (const char* const file : {kBatch, kScript, kPif}) {
        system.Disk.AddFileLink(file, "C:\\HOME\\.bashrc");
    }
    Click(Option::Script_Chk, 1);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes("C:\\HOME\\.bashrc"), "mine");
    EXPECT_EQ(system.Disk.Bytes(kScript), "exec my.cfg\r\n");
    EXPECT_TRUE(system.Disk.Bytes(kBatch).ends_with("+exec lv_666.qs"));
    EXPECT_EQ(system.Disk.Bytes(kPif), "the pif of most");
}

TEST_F(LaunchFlow, TheLaunchFilesAreTheirOwnersAlone) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Private,
              (std::set<std::string>{"c:\\quake\\id1\\lv_666.qs", "c:\\quake\\lv_666.bat", "c:\\quake\\lv_666.pif"}));
}

TEST_F(LaunchFlow, WantOfMemoryIsReportedAndTheNextLaunchWorks) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::QSpy_Chk, 1);
    system.Windows.Windows[7] = {"GameSpy 3D 2.20", "Afx:1"};
    system.Clip.Held = "10.0.0.1:27500";
    user.OnPump = [] { throw std::bad_alloc(); };
    user.Expect({"Lorvane 3D", "Error Number = 7\r\n", 0});
    window.Visible = true;
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_TRUE(window.Visible);
    user.OnPump = nullptr;
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(LaunchFlow, UnrealsIniIsNotRewrittenForALaunchThatIsRefused) {
    AddGames();
    system.Disk.AddFile("C:\\UNREAL\\MAPS\\x&calc&.unr");
    Load();
    PickExe("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
    ASSERT_TRUE(window.Map_Cbo.HasSelection());
    window.Box(Option::Map_Chk).Value = 1;
    system.Programs.Reader = LineReader::kCommandProcessor;
    const std::size_t writes = system.Disk.Log.size();
    user.Expect({"Lorvane 3D", "The map \"x&calc&.unr\" comes from the maps and archives of the game."});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Log.size(), writes);
}

}  // namespace
}  // namespace lv
