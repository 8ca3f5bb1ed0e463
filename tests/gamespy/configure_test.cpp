// The whole click with LaunchQspy_Chk ticked.

#include "gamespy/configure.h"

#include "foundation/field_strings.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "tests/gamespy/game_spy_fixture.h"

namespace lv {
namespace {

class Configure : public GameSpyTest {
  protected:
    Configure() {
        AddGames();
        system.Disk.AddFile("C:\\QUAKE\\VQUAKE.EXE");
        system.Disk.AddFile("C:\\HEXEN2\\GLH2.EXE");
        system.Disk.AddDirectory("C:\\HEXEN2\\DATA1");
        system.Disk.AddFile("C:\\SIN\\SIN.EXE");
        system.Disk.AddDirectory("C:\\SIN\\BASE");
        system.Disk.AddFile("C:\\gamespy\\gamespy.exe");
        Save(run, kOptions, "Executables",
             "Quake;C:\\QUAKE\\GLQUAKE.EXE;QuakeWorld;C:\\QUAKE\\QWCL.EXE;Hexen 2;C:\\HEXEN2\\GLH2.EXE;"
             "Quake 2;C:\\QUAKE2\\QUAKE2.EXE;Unreal;C:\\UNREAL\\SYSTEM\\UNREAL.EXE;Sin;C:\\SIN\\SIN.EXE");
        Save(run, kOptions, "Scripts",
             "Mine;c:\\quake\\id1\\my.cfg;Two;c:\\quake2\\baseq2\\two.cfg;Ini;c:\\unreal\\system\\unreal.ini");
        Save(run, kOptions, "VidCard", "2");
        Load();
        PickExe("C:\\QUAKE\\GLQUAKE.EXE");
        Click(Option::LaunchQspy_Chk, 1);
        launcher.Window.Visible = true;
    }

    /// Only these slots are to be in use.
    static void Use(GameSpyConfig_Frm& form, std::initializer_list<std::size_t> slots) {
        form.LaunchSpyNow_Chk.Value = 0;
        const auto wanted = [&](std::size_t slot) {
            return std::find(slots.begin(), slots.end(), slot) != slots.end();
        };
        for (std::size_t slot = 0; slot < kSpySlots; ++slot) {
            if (CheckBox* const box = InstalledBox(form, slot)) {
                box->Value = wanted(slot) ? 1 : 0;
            } else if (!wanted(slot)) {
                form.ExeSpy_Cbo[slot].ListIndex = -1;
            }
        }
    }

    /// Presses OK in the window after `choose`.
    void Run(const std::function<void(GameSpyConfig_Frm&)>& choose) {
        user.In<GameSpyConfig_Frm>([choose](GameSpyConfig_Frm& form) {
            choose(form);
            GameSpyConfig_DoIt_Cmd_Click(form);
        });
        DoIt_Cmd_Click(launcher, 0);
    }
    void RunFor(std::initializer_list<std::size_t> slots) {
        const std::vector<std::size_t> kept(slots);
        Run([kept](GameSpyConfig_Frm& form) {
            Use(form, {});
            for (const std::size_t slot : kept) {
                if (CheckBox* const box = InstalledBox(form, slot)) {
                    box->Value = 1;
                } else {
                    form.ExeSpy_Cbo[slot].ListIndex = 0;
                }
            }
        });
    }
    void RunStarting() {
        Run([](GameSpyConfig_Frm& form) {
            Use(form, {0});
            form.LaunchSpyNow_Chk.Value = 1;
        });
    }
    void SetTunable(const Text& key, TextView value) {
        Save(run, kOptions, key, 1);
        Save(run, kOptions, key + "_Setting", 0);
        Save(run, kOptions, key + "_Setting_Content", value);
    }
    Text Bytes(TextView path) { return system.Disk.Bytes(path); }
    Text Value(const Text& key, const Text& name) {
        const auto found = system.Registry.Values.find("software\\gamespy\\gamespy 3d\\" + key + "|" + name);
        return found == system.Registry.Values.end() ? "(none)" : found->second.Text;
    }
};

TEST_F(Configure, ACancelledWindowDoesNothing) {
    const auto before = system.Disk.Log;
    user.In<GameSpyConfig_Frm>([](GameSpyConfig_Frm& form) { GameSpyConfig_Cancel_Cmd_Click(form); });
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Log, before);
    EXPECT_TRUE(system.Registry.Values.empty());
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(Configure, ComesBeforeTheTestOfTheMainExecutable) {
    window.Exe_Cbo.ListIndex = -1;
    user.In<GameSpyConfig_Frm>([](GameSpyConfig_Frm& form) { GameSpyConfig_DoIt_Cmd_Click(form); });
    ExpectTold("Lorvane 3D", "No executable is selected.");
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Registry.Values.empty());
}

TEST_F(Configure, WritesScriptBatchAndPifForQuake) {
    SetTunable("gl_polyblend", "0");
    Run([](GameSpyConfig_Frm& form) {
        Use(form, {0});
        form.ScriptSpy_Cbo[0].ListIndex = 0;
    });
    EXPECT_EQ(Bytes("C:\\QUAKE\\ID1\\lvgs_666.qs"), "exec my.cfg\r\ngl_polyblend 0\r\n");
    const Text batch = Bytes("C:\\QUAKE\\QSL1_666.bat");
    EXPECT_EQ(batch.substr(batch.find("C:\r\n")),
              "C:\r\ncd \"C:\\QUAKE\"\r\nqlaunch quakeudp.dll GLQUAKE.EXE -zone 512 "
              "%1 %2 %3 %4 %5 %6 %7 %8 %9 +exec lvgs_666.qs ");
    EXPECT_EQ(Bytes("C:\\QUAKE\\qsl1_666.pif"), "the pif of most");
    EXPECT_EQ(Value("qspy quake", "workdir"), "\\");
    EXPECT_EQ(Value("qspy quake", "cmdline"), "QSL1_666.bat");
    EXPECT_EQ(system.Registry.Values.size(), 2u);
}

TEST_F(Configure, TheBatchBeginsWithTheCardsLinesAndNeverShowsThem) {
    Click(Option::ShowSet_Chk, 1);
    RunFor({0});
    const Text batch = Bytes("C:\\QUAKE\\QSL1_666.bat");
    EXPECT_TRUE(batch.starts_with("SET FX_GLIDE_SWAPINTERVAL=")) << batch;
    EXPECT_EQ(batch.find("PAUSE"), Text::npos);
    EXPECT_EQ(batch.find("SET\r\n"), Text::npos);
}

TEST_F(Configure, TheClickEndsThereWithoutTheFilesOfALaunch) {
    system.Disk.AddFile("C:\\QUAKE\\lv_666.bat", "old");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\lv_666.qs", "old");
    RunFor({0});
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\lv_666.bat"));
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\ID1\\lv_666.qs"));
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_EQ(Stored("LV-Stuff", "LaunchCount"), "(none)");
}

TEST_F(Configure, TheMainExecutableNeedNotBeThere) {
    system.Disk.Delete("C:\\QUAKE\\GLQUAKE.EXE");
    RunFor({3});
    EXPECT_TRUE(system.Disk.FileExists("C:\\QUAKE2\\QSL4_666.bat"));
}

TEST_F(Configure, AScriptOfNoLengthIsNotWrittenAndAnOldOneGoes) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\lvgs_666.qs", "old");
    RunFor({0});
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\ID1\\lvgs_666.qs"));
}

TEST_F(Configure, WithQuakeWorldAloneTheScriptsPathBeginsWithId1AndFailsSilently) {
    SetTunable("gl_polyblend", "0");
    RunFor({1});
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\ID1\\lvgs_666.qs"));
    EXPECT_TRUE(system.Disk.FileExists("C:\\QUAKE\\QSL2_666.bat"));
    EXPECT_EQ(Value("qspy quake", "workdir"), "C:\\QUAKE\\");
    EXPECT_EQ(Value("qspy quake", "cmdline"), "(none)");
    EXPECT_EQ(Value("quakeworld", "cmdlineqw"), "QSL2_666.bat");
}

TEST_F(Configure, WithQuakeWorldAloneTheScriptGoesToId1OfTheCurrentDrive) {
    SetTunable("gl_polyblend", "0");
    system.Disk.AddDirectory("C:\\ID1");
    RunFor({1});
    EXPECT_EQ(Bytes("C:\\ID1\\lvgs_666.qs"), "gl_polyblend 0\r\n");
}

TEST_F(Configure, AllSixGamesAreConfigured) {
    SetTunable("gl_polyblend", "0");
    Run([](GameSpyConfig_Frm& form) {
        form.LaunchSpyNow_Chk.Value = 0;
        form.ScriptSpy_Cbo[3].ListIndex = 0;
        form.ScriptSpy_Cbo[4].ListIndex = 0;
    });
    EXPECT_EQ(Bytes("C:\\QUAKE\\ID1\\lvgs_666.qs"), "gl_polyblend 0\r\n");
    EXPECT_EQ(Bytes("C:\\HEXEN2\\DATA1\\lvgs_666.qs"), "gl_polyblend 0\r\n");
    EXPECT_EQ(Bytes("C:\\QUAKE2\\BASEQ2\\lvgs_666.qs"), "exec two.cfg\r\nset gl_polyblend 0\r\n");
    const Text tail = " -zone 512 %1 %2 %3 %4 %5 %6 %7 %8 %9 +exec lvgs_666.qs ";
    EXPECT_TRUE(
        Bytes("C:\\QUAKE\\QSL1_666.bat").ends_with("cd \"C:\\QUAKE\"\r\nqlaunch quakeudp.dll GLQUAKE.EXE" + tail));
    EXPECT_TRUE(Bytes("C:\\QUAKE\\QSL2_666.bat").ends_with("cd \"C:\\QUAKE\"\r\nQWCL.EXE" + tail));
    EXPECT_TRUE(Bytes("C:\\HEXEN2\\QSL3_666.bat").ends_with("cd \"C:\\HEXEN2\"\r\nGLH2.EXE" + tail));
    EXPECT_TRUE(Bytes("C:\\QUAKE2\\QSL4_666.bat").ends_with("cd \"C:\\QUAKE2\"\r\nQUAKE2.EXE" + tail));
    EXPECT_TRUE(Bytes("C:\\UNREAL\\SYSTEM\\QSL5_666.bat")
                    .ends_with("cd \"C:\\UNREAL\\SYSTEM\"\r\nUNREAL.EXE %1 %2 %3 %4 %5 %6 %7 %8 %9 INI=unreal.ini"));
    EXPECT_TRUE(Bytes("C:\\SIN\\QSL6_666.bat").ends_with("cd \"C:\\SIN\"\r\nSIN.EXE" + tail));
    EXPECT_EQ(system.Registry.Values.size(), 11u);
    EXPECT_EQ(Value("unreal", "workdir"), "C:\\UNREAL\\SYSTEM\\");
    EXPECT_EQ(Value("sin", "cmdline"), "QSL6_666.bat");
}

TEST_F(Configure, PifsLieBesideTheirBatchesButUnreals) {
    Run([](GameSpyConfig_Frm& form) { form.LaunchSpyNow_Chk.Value = 0; });
    EXPECT_EQ(Bytes("C:\\QUAKE\\qsl1_666.pif"), "the pif of most");
    EXPECT_EQ(Bytes("C:\\QUAKE\\qsl2_666.pif"), "the pif of most");
    EXPECT_EQ(Bytes("C:\\HEXEN2\\qsl3_666.pif"), "the pif of most");
    EXPECT_EQ(Bytes("C:\\QUAKE2\\qsl4_666.pif"), "the pif of two");
    EXPECT_EQ(Bytes("C:\\SIN\\qsl5_666.pif"), "the pif of most");
    EXPECT_EQ(Bytes("C:\\UNREAL\\SYSTEM\\qsl5_666.pif"), "(none)");
    EXPECT_EQ(Bytes("C:\\SIN\\qsl6_666.pif"), "the pif of two");
}

TEST_F(Configure, WithoutATemplateAnOldPifGoesAndTheRestIsDone) {
    system.Disk.Delete("C:\\LORVANE\\lv_666.hid");
    system.Disk.AddFile("C:\\QUAKE\\qsl1_666.pif", "old");
    RunFor({0});
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\qsl1_666.pif"));
    EXPECT_EQ(Value("qspy quake", "cmdline"), "QSL1_666.bat");
}

TEST_F(Configure, SinsScriptGoesToTheQuake2Directory) {
    system.Disk.AddDirectory("C:\\QUAKE2\\BASE");
    system.Disk.AddFile("C:\\SIN\\BASE\\sin.cfg");
    Save(run, kOptions, "Scripts", "Sin;c:\\sin\\base\\sin.cfg");
    Run([](GameSpyConfig_Frm& form) {
        Use(form, {3, 5});
        ASSERT_EQ(form.ScriptSpy_Cbo[5].Items.size(), 1u);
        form.ScriptSpy_Cbo[5].ListIndex = 0;
    });
    EXPECT_EQ(Bytes("C:\\QUAKE2\\BASE\\lvgs_666.qs"), "exec sin.cfg\r\n");
    EXPECT_FALSE(system.Disk.FileExists("C:\\SIN\\BASE\\lvgs_666.qs"));
}

TEST_F(Configure, UnrealsIniGetsTheVideoProfileAndItsDirectoryBecomesTheDefaultOne) {
    Save(run, kOptions, "Windowed", 1);
    system.Disk.AddFile("C:\\UNREAL\\SYSTEM\\unreal.ini", "[WinDrv.WindowsClient]\r\nStartupFullScreen=True\r\n");
    Run([](GameSpyConfig_Frm& form) {
        Use(form, {4});
        form.ScriptSpy_Cbo[4].ListIndex = 0;
    });
    EXPECT_EQ(Bytes("C:\\UNREAL\\SYSTEM\\unreal.ini"), "[WinDrv.WindowsClient]\r\nStartupFullScreen=False\r\n");
    EXPECT_EQ(run.DefaultGameDirectory, "c:\\unreal\\system");
}

TEST_F(Configure, UnrealWithoutAnIniLeavesAllInisAlone) {
    system.Disk.AddFile("C:\\UNREAL\\SYSTEM\\unreal.ini", "[WinDrv.WindowsClient]\r\nStartupFullScreen=False\r\n");
    RunFor({4});
    EXPECT_EQ(Bytes("C:\\UNREAL\\SYSTEM\\unreal.ini"), "[WinDrv.WindowsClient]\r\nStartupFullScreen=False\r\n");
}

TEST_F(Configure, AnIniThatIsGoneIsReported) {
    user.Expect({"Lorvane 3D", "Error Number = 53\r\nError Code = EC00294\r\n"});
    Run([this](GameSpyConfig_Frm& form) {
        Use(form, {4});
        form.ScriptSpy_Cbo[4].ListIndex = 0;
        system.Disk.Delete("C:\\UNREAL\\SYSTEM\\unreal.ini");
    });
    EXPECT_FALSE(system.Disk.FileExists("C:\\UNREAL\\SYSTEM\\QSL5_666.bat"));
}

TEST_F(Configure, AnIniOfUtf16TextIsReportedAndLeftAlone) {
    const TextView ini("\xFF\xFE[\0A\0]\0", 8);
    system.Disk.AddFile("C:\\UNREAL\\SYSTEM\\unreal.ini", ini);
    user.Expect({"Lorvane 3D",
                 "Error Number = 75\r\nError Code = EC00294\r\nError String = The file is UTF-16 text: "
                 "c:\\unreal\\system\\unreal.ini. Save it as plain text (ANSI) first.\r\n"});
    Run([](GameSpyConfig_Frm& form) {
        Use(form, {4});
        form.ScriptSpy_Cbo[4].ListIndex = 0;
    });
    EXPECT_EQ(Bytes("C:\\UNREAL\\SYSTEM\\unreal.ini"), ini);
    EXPECT_FALSE(system.Disk.FileExists("C:\\UNREAL\\SYSTEM\\QSL5_666.bat"));
}

TEST_F(Configure, MemoryIsWrittenPerBatch) {
    Click(Option::Memory_Chk, 1);
    window.Mem_Cbo.ListIndex = 2;
    RunFor({0, 1, 2, 3});
    EXPECT_NE(Bytes("C:\\QUAKE\\QSL1_666.bat").find("GLQUAKE.EXE -winmem 16 -zone"), Text::npos);
    EXPECT_NE(Bytes("C:\\QUAKE\\QSL2_666.bat").find("QWCL.EXE -winmem 16 -zone"), Text::npos);
    EXPECT_NE(Bytes("C:\\HEXEN2\\QSL3_666.bat").find("GLH2.EXE -heapsize 16000 -zone"), Text::npos);
    EXPECT_NE(Bytes("C:\\QUAKE2\\QSL4_666.bat").find("QUAKE2.EXE -zone"), Text::npos);
}

TEST_F(Configure, TheUsersOwnAdditionReachesTheBatches) {
    window.CommandLineAdditions_Txt.Text = "-mine";
    Click(Option::CommandLineAdditions_Chk, 1);
    RunFor({3, 4});
    EXPECT_NE(Bytes("C:\\QUAKE2\\QSL4_666.bat").find("QUAKE2.EXE -zone 512 -mine %1"), Text::npos);
    EXPECT_NE(Bytes("C:\\UNREAL\\SYSTEM\\QSL5_666.bat").find("UNREAL.EXE -mine %1"), Text::npos);
}

struct EmptyPathRow {
    std::size_t Slot;
    const char* Title;
};

constexpr EmptyPathRow kEmptyPaths[] = {
    {0, "Error in GameSpy Quake executable path"},    {1, "Error in GameSpy QuakeWorld executable path"},
    {2, "Error in GameSpy Hexen ][ executable path"}, {3, "Error in GameSpy Quake ][ executable path"},
    {4, "Error in GameSpy UnReal executable path"},   {5, "Error in GameSpy SIN executable path"},
};

TEST_F(Configure, AnEmptyPathShowsABoxAndTheFlowGoesOnWithEmptyNames) {
    for (const EmptyPathRow& row : kEmptyPaths) {
        ExpectTold(row.Title, "Executable defined as an empty string.");
        Run([&row](GameSpyConfig_Frm& form) {
            Use(form, {row.Slot});
            form.ExeSpy_Cbo[row.Slot].Items = {"Empty"};
            form.ExeSpy_Cbo[row.Slot].ListIndex = 0;
        });
        const Text batch = Bytes(Join("C:\\QSL", std::to_string(row.Slot + 1), "_666.bat"));
        EXPECT_NE(batch.find("\r\ncd \"\"\r\n"), Text::npos) << row.Title;
    }
}

TEST_F(Configure, AMissingExecutableStopsTheClick) {
    user.Expect({"Lorvane 3D",
                 "The executable game file -->\r\n\r\n\t\"C:\\QUAKE\\QWCL.EXE\"\r\n\r\n"
                 "could not be found. The following possiblities exist.\r\n\r\n"
                 "1) The game has been moved.\r\n2) The game has been removed.\r\n3) The game is corrupted.\r\n"
                 "4) Windows incorrectly reported the file as missing.\r\n\r\nGame Spy has NOT been configured.\r\n",
                 0, false, true, "&OK"});
    Run([this](GameSpyConfig_Frm& form) {
        Use(form, {0, 1});
        system.Disk.Delete("C:\\QUAKE\\QWCL.EXE");
    });
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\QSL1_666.bat"));
    EXPECT_TRUE(system.Registry.Values.empty());
}

TEST_F(Configure, WithoutAnyGameSaysWhatToPick) {
    user.Expect({"Lorvane 3D",
                 "You must pick a GameSpy Quake Executable and/or a GameSpy QuakeWorld Executable and/or a GameSpy "
                 "Hexen ][ Executable and/or a GameSpy Quake ][ Executable and/or a GameSpy UnReal Executable and/or a "
                 "GameSpy SIN Executable in order for Lorvane 3D to configure and launch GameSpy.",
                 0, false, true, "&OK"});
    RunFor({});
    EXPECT_TRUE(system.Registry.Values.empty());
}

TEST_F(Configure, AGameNotTickedIsLeftAlone) {
    RunFor({0});
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE2\\QSL4_666.bat"));
    EXPECT_EQ(Value("quake2", "cmdline"), "(none)");
}

struct TagRow {
    std::size_t Slot;
    const char* Path;
    const char* Tag;
};

constexpr TagRow kTags[] = {
    {0, "C:\\QUAKE\\QSL1_666.bat", "0000001 File = "},          {1, "C:\\QUAKE\\QSL2_666.bat", "0000002 File = "},
    {2, "C:\\HEXEN2\\QSL3_666.bat", "0000003 File = "},         {3, "C:\\QUAKE2\\QSL4_666.bat", "0000004 File = "},
    {4, "C:\\UNREAL\\SYSTEM\\QSL5_666.bat", "0000016 File = "}, {5, "C:\\SIN\\QSL6_666.bat", "0000005 File = "},
};

TEST_F(Configure, ABatchThatCannotBeWrittenIsReportedWithItsTag) {
    for (const TagRow& row : kTags) {
        system.Disk.Refused = {{LowerCase(row.Path), MakeError(error::kPermissionDenied)}};
        user.Expect({"Lorvane 3D", Join("\r\n", row.Tag, row.Path)});
        RunFor({row.Slot});
        EXPECT_TRUE(user.Asked.back().Question_Txt.Text.starts_with(
            "Error Number = 70\r\nError Code = EC00294\r\nError String = "))
            << user.Asked.back().Question_Txt.Text;
        EXPECT_TRUE(system.Registry.Values.empty());
    }
}

TEST_F(Configure, WritesTheWholeRegistryAtOnce) {
    RunFor({0, 1, 2, 3, 4, 5});
    EXPECT_EQ(system.Registry.Bursts, std::vector<std::size_t>{11});
    EXPECT_EQ(system.Registry.Values.size(), 11u);
}

TEST_F(Configure, ARegistryThatRefusesIsReported) {
    system.Registry.RefuseWrites = MakeError(error::kPermissionDenied);
    user.Expect({"Lorvane 3D", "Error Number = 70\r\nError Code = EC00404\r\n"});
    RunStarting();
    EXPECT_TRUE(system.Disk.FileExists("C:\\QUAKE\\QSL1_666.bat"));
    EXPECT_TRUE(system.Registry.Values.empty());
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(Configure, AScriptThatCannotBeWrittenIsReported) {
    SetTunable("gl_polyblend", "0");
    system.Disk.Refused = {{"c:\\quake\\id1\\lvgs_666.qs", MakeError(error::kDiskFull)}};
    user.Expect({"Lorvane 3D", "Error Number = 61\r\n"});
    RunFor({0});
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\QSL1_666.bat"));
}

TEST_F(Configure, WithoutADefaultDirectoryThereAreNoCardLinesAndNothingIsDeleted) {
    run.DefaultGameDirectory.clear();
    system.Disk.AddFile("C:\\lv_666.bat", "mine");
    RunFor({0});
    EXPECT_TRUE(Bytes("C:\\QUAKE\\QSL1_666.bat").starts_with("C:\r\ncd "));
    EXPECT_EQ(Bytes("C:\\lv_666.bat"), "mine");
}

TEST_F(Configure, StartsGameSpyAndWaitsASecond) {
    RunStarting();
    EXPECT_EQ(system.Programs.Started, Lines{"C:\\gamespy\\gamespy.exe"});
    EXPECT_GT(system.Time.Elapsed, 1.0);
    EXPECT_TRUE(window.Visible);
    EXPECT_FALSE(user.ProgramEnded);
}

TEST_F(Configure, DoesNotStartItUnasked) {
    RunFor({0});
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_TRUE(system.Windows.Log.empty());
}

TEST_F(Configure, ARunningGameSpyComesToTheFrontInstead) {
    ShowGameSpy("");
    RunStarting();
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_EQ(system.Windows.Log, Lines{"front 7"});
}

TEST_F(Configure, ARunningGameSpyComesOutOfItsIcon) {
    ShowGameSpy("");
    Minimise();
    RunStarting();
    EXPECT_EQ(system.Windows.Log, (Lines{"open 7", "front 7"}));
}

TEST_F(Configure, ALocationThatWasEmptiedMeanwhileIsToldAfterTheConfiguration) {
    ExpectTold("Error",
               "There was an error attempting to launch GameSpy 3D.\r\n"
               "However, GameSpy 3D was configured, and you may now\r\nlaunch GameSpy 3D manually.");
    Run([this](GameSpyConfig_Frm& form) {
        Use(form, {0});
        form.LaunchSpyNow_Chk.Value = 1;
        form.Minimize = MinimizeLorvane::Close;
        Save(run, kOptions, "GameSpyLocation", "");
    });
    EXPECT_EQ(Value("qspy quake", "cmdline"), "QSL1_666.bat");
    EXPECT_FALSE(user.ProgramEnded);
}

TEST_F(Configure, AGameSpyThatIsGoneIsAskedFor) {
    ExpectTold("Where'd it go?", "Could not locate GameSpy.");
    Run([this](GameSpyConfig_Frm& form) {
        Use(form, {0});
        form.LaunchSpyNow_Chk.Value = 1;
        system.Disk.Delete("C:\\gamespy\\gamespy.exe");
    });
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(Configure, AGameSpyThatDoesNotStartIsReported) {
    system.Programs.Refuse = {53, "File not found"};
    ExpectTold("Error",
               "There was an error attempting to launch GameSpy 3D.\r\n"
               "However, GameSpy 3D was configured, and you may now\r\nlaunch GameSpy 3D manually.\r\n"
               "Error Number = 53\r\nError Code = EC00410\r\nError String = File not found\r\n"
               "GameSpy Location = C:\\gamespy\\gamespy.exe");
    RunStarting();
}

TEST_F(Configure, MayHideTheMainWindowAsALaunchDoes) {
    VideoProfile_Frm_Load(launcher.VideoProfile);
    Run([](GameSpyConfig_Frm& form) {
        Use(form, {0});
        GameSpyConfig_MinimizeLorvane_Opt_Click(form, 1);
    });
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(window.Bar(MenuItem::ShowLorvane_Bar).Caption, "&Show Lorvane 3D");
    EXPECT_FALSE(launcher.VideoProfile.VideoProfileWindowOpen);
    EXPECT_TRUE(launcher.VideoProfileReopen);
    EXPECT_FALSE(user.ProgramEnded);
}

TEST_F(Configure, MayEndTheProgram) {
    Run([](GameSpyConfig_Frm& form) {
        Use(form, {0});
        GameSpyConfig_MinimizeLorvane_Opt_Click(form, 2);
    });
    EXPECT_TRUE(user.ProgramEnded);
    EXPECT_EQ(Value("qspy quake", "cmdline"), "QSL1_666.bat");
}

TEST_F(Configure, ADedicatedClientStopsItBeforeAnythingIsWritten) {
    window.Box(Option::Dedicated_Chk).Value = 1;
    user.Expect({"Lorvane 3D", "The '-dedicated' parameter causes a fat GPF"});
    RunFor({0});
    EXPECT_TRUE(system.Registry.Values.empty());
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\QSL1_666.bat"));
}

TEST_F(Configure, ANameThatTheBatchWouldMisreadIsToldBeforeAnythingIsWritten) {
    window.Game_Cbo.Items = {Text("Evil") + Text(96, ' ') + "-game M&CALC"};
    window.Game_Cbo.ListIndex = 0;
    window.Box(Option::Game_Chk).Value = 1;
    const std::size_t writes = system.Disk.Log.size();
    user.Expect({"Lorvane 3D",
                 "The modification \"m&calc\" comes from the directories of the game.\r\n"
                 "The command processor would not read it as one word of text."});
    RunFor({spy_slot::kQuake});
    EXPECT_EQ(system.Disk.Log.size(), writes);
}

TEST_F(Configure, AnIniThatTheBatchWouldMisreadIsToldBeforeAnythingIsWritten) {
    const std::size_t writes = system.Disk.Log.size();
    user.Expect({"Lorvane 3D", "The player script \"my&evil&.ini\" comes from the list of player scripts."});
    Run([](GameSpyConfig_Frm& form) {
        Use(form, {spy_slot::kUnreal});
        form.ScriptSpy_Cbo[spy_slot::kUnreal].Items = {Text("Evil") + Text(96, ' ') +
                                                       "c:\\unreal\\system\\my&evil&.ini"};
        form.ScriptSpy_Cbo[spy_slot::kUnreal].ListIndex = 0;
    });
    EXPECT_EQ(system.Disk.Log.size(), writes);
}

TEST_F(Configure, ReplacesLinksByItsOwnFilesAndFollowsNone) {
    system.Disk.AddFile("C:\\HOME\\.bashrc", "mine");
    for (const char* const file :
         {"C:\\QUAKE\\QSL1_666.bat", "C:\\QUAKE\\qsl1_666.pif", "C:\\QUAKE\\ID1\\lvgs_666.qs"}) {
        system.Disk.AddFileLink(file, "C:\\HOME\\.bashrc");
    }
    Run([](GameSpyConfig_Frm& form) {
        Use(form, {0});
        form.ScriptSpy_Cbo[0].ListIndex = 0;
    });
    EXPECT_EQ(system.Disk.Bytes("C:\\HOME\\.bashrc"), "mine");
    EXPECT_TRUE(Holds(system.Disk.Bytes("C:\\QUAKE\\QSL1_666.bat"), "GLQUAKE.EXE"));
    EXPECT_NE(system.Disk.Bytes("C:\\QUAKE\\qsl1_666.pif"), "mine");
    EXPECT_EQ(system.Disk.Private.count("c:\\quake\\qsl1_666.bat"), 1u);
}

TEST_F(Configure, AsksAboutADataDirectoryThatIsALinkOutOfItsGame) {
    system.Disk.AddDirectory("C:\\SRV");
    system.Disk.AddLink("C:\\HEXEN2\\DATA1", "C:\\SRV");
    const auto run = [this] { Run([](GameSpyConfig_Frm& form) { Use(form, {2}); }); };
    user.Expect({"Link To Another Place", "\"C:\\HEXEN2\\DATA1\"", 0});
    run();
    EXPECT_FALSE(system.Disk.FileExists("C:\\HEXEN2\\QSL3_666.bat"));
    user.Expect({"Link To Another Place", "\"c:\\srv\"", 1});
    run();
    EXPECT_TRUE(system.Disk.FileExists("C:\\HEXEN2\\QSL3_666.bat"));
}

TEST_F(Configure, NamesTheScriptThatMayNotBeWritten) {
    system.Disk.Refused["c:\\quake\\id1\\lvgs_666.qs"] = MakeError(error::kPathFileAccess);
    user.Expect({"Lorvane 3D", "Error String = Path/File access error: C:\\QUAKE\\ID1\\lvgs_666.qs\r\n"});
    Run([](GameSpyConfig_Frm& form) {
        Use(form, {0});
        form.ScriptSpy_Cbo[0].ListIndex = 0;
    });
}

TEST_F(Configure, EachLaunchButtonConfiguresAndShowsNothing) {
    for (const int mode : {1, 2}) {
        system.Registry.Values.clear();
        user.In<GameSpyConfig_Frm>([](GameSpyConfig_Frm& form) {
            Use(form, {0});
            GameSpyConfig_DoIt_Cmd_Click(form);
        });
        DoIt_Cmd_Click(launcher, mode);
        EXPECT_EQ(system.Registry.Values.size(), 2u);
    }
    EXPECT_TRUE(user.Asked.empty());
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(Configure, WithoutSinUnrealsPifGoesToTheRootOfTheCurrentDrive) {
    RunFor({4});
    EXPECT_EQ(Bytes("C:\\qsl5_666.pif"), "the pif of most");
    EXPECT_EQ(Bytes("C:\\UNREAL\\SYSTEM\\qsl5_666.pif"), "(none)");
}

TEST_F(Configure, WithSinAloneItsScriptGoesToBaseOfTheCurrentDriveOrNowhere) {
    SetTunable("gl_polyblend", "0");
    RunFor({5});
    EXPECT_TRUE(system.Disk.FileExists("C:\\SIN\\QSL6_666.bat"));
    EXPECT_FALSE(system.Disk.FileExists("C:\\SIN\\BASE\\lvgs_666.qs"));
    system.Disk.AddDirectory("C:\\BASE");
    RunFor({5});
    EXPECT_EQ(Bytes("C:\\BASE\\lvgs_666.qs"), "set gl_polyblend 0\r\n");
}

TEST_F(Configure, TheWrapperOfTheMainExecutableIsNotInTheTails) {
    window.Exe_Cbo.Items[static_cast<std::size_t>(window.Exe_Cbo.ListIndex)].Key = "C:\\QUAKE\\QUAKE.EXE";
    window.Box(Option::Server_Chk).Value = 1;
    RunFor({3, 4});
    EXPECT_TRUE(Bytes("C:\\QUAKE2\\QSL4_666.bat")
                    .ends_with("\r\nQUAKE2.EXE -zone 512 %1 %2 %3 %4 %5 %6 %7 %8 %9 +exec lvgs_666.qs "));
    EXPECT_TRUE(Bytes("C:\\UNREAL\\SYSTEM\\QSL5_666.bat").ends_with("\r\nUNREAL.EXE %1 %2 %3 %4 %5 %6 %7 %8 %9"));
}

}  // namespace
}  // namespace lv
