#include "launcher/start/start.h"

#include "launcher/start/install_params.h"
#include "launcher/window/window_life.h"
#include "tests/support/launcher_fixture.h"
#include "transfer/backups.h"

namespace lv {

namespace {

class FakeInstance : public SingleInstance {
  public:
    bool Claim() override {
        ++Claims;
        return IsFirst;
    }
    bool IsFirst = true;
    int Claims = 0;
};

class RootFiles : public MemoryFiles {
  public:
    std::string ProgramDirectory() override { return "C:\\"; }
};

class StartTest : public LauncherTest {
  protected:
    StartTest() {
        AddGames();
        run.AppDirectory.clear();
    }
    void MakeFirstRun() { Save(run, "LV-Stuff", "FirstTime", 1); }
    void AcceptChipset() {
        user.InInstallParams.push_back([this](InstallParams_Frm& form) {
            user.Expect({"Verify Setup Information", "3D Hardware Chipset: Voodoo"});
            InstallParams_OK_Cmd_Click(run, form, 0);
        });
    }

    FakeInstance instance;
};

}  // namespace

TEST_F(StartTest, ShowsTheLoadedMainWindow) {
    EXPECT_TRUE(Start(launcher));
    EXPECT_TRUE(window.Visible);
    EXPECT_TRUE(run.MainFormLoaded);
    EXPECT_EQ(PresenceOf(window), Presence::Shown);
}

TEST_F(StartTest, FixesTheGlobals) {
    system.Time.Win9x = true;
    system.Time.Separator = ',';
    EXPECT_TRUE(Start(launcher));
    EXPECT_EQ(run.AppName, "Lorvane 3D");
    EXPECT_EQ(run.VersionText, "1.06.0112 <Beta>");
    EXPECT_EQ(run.MainWindowCaption, "   Lorvane 3D");
    EXPECT_EQ(run.AppDirectory, "C:\\LORVANE");
    EXPECT_TRUE(run.IsWin9x);
    EXPECT_FALSE(run.DecimalPointIsDot);
}

TEST_F(StartTest, GivesTheWindowItsNameWithThreeBlanks) {
    EXPECT_TRUE(Start(launcher));
    EXPECT_EQ(window.Caption, "   Lorvane 3D");
}

TEST_F(StartTest, RepairsStoredValuesBeforeTheyAreRead) {
    Save(run, kOptions, "Executables", "Quake;C:/QUAKE/GLQUAKE.EXE");
    Save(run, kOptions, "Games", "A;-game CTF;B;-game CTF");
    Save(run, kOptions, "VideoProfileList", "Base;Mine;;");
    EXPECT_TRUE(Start(launcher));
    EXPECT_EQ(window.Exe_Cbo.Items.size(), 1u);
    EXPECT_EQ(Stored(kOptions, "Games").find("B;-game CTF"), Text::npos);
    EXPECT_EQ(window.VideoProfiles_Cbo.Items, (std::vector<Text>{"Base", "Mine"}));
}

TEST_F(StartTest, GoesThroughTheSplashInOrder) {
    std::vector<Text> seen;
    class Watcher : public ScriptedUser {
      public:
        explicit Watcher(std::function<void()> look) : look_(std::move(look)) {}
        void Refresh() override { look_(); }

      private:
        std::function<void()> look_;
    };
    Launcher* watched = nullptr;
    Watcher watcher([&] {
        const Splash_Frm& splash = watched->Splash;
        const Text now = splash.Visible ? Join("splash", splash.InformUser_Lbl.Caption)
                                        : Text(watched->Window.Visible ? "window" : "gone");
        if (seen.empty() || seen.back() != now) {
            seen.push_back(now);
        }
    });
    lv::Run ownRun{system.Services, watcher};
    Launcher own{ownRun};
    watched = &own;
    EXPECT_TRUE(Start(own));
    EXPECT_EQ(seen, (std::vector<Text>{"splash", "splash Loading Main Form", "splash Getting Options",
                                       "splash Setting Window Name", "splash Processing Events", "gone", "window"}));
}

TEST_F(StartTest, WaitsASecondBehindTheLoadAndHandlesEvents) {
    bool splashWasUp = false;
    user.OnPump = [&] { splashWasUp = launcher.Splash.Visible && !window.Visible; };
    const double before = system.Time.Elapsed;
    EXPECT_TRUE(Start(launcher));
    EXPECT_GE(system.Time.Elapsed - before, 1.0);
    EXPECT_TRUE(splashWasUp);
    EXPECT_GT(user.Pumps, 1);
}

TEST_F(StartTest, ALaterStartAsksForNoChipset) {
    EXPECT_TRUE(Start(launcher));
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(StartTest, TheFirstStartAsksForTheChipset) {
    MakeFirstRun();
    AcceptChipset();
    EXPECT_TRUE(Start(launcher));
    EXPECT_TRUE(user.InInstallParams.empty());
    EXPECT_EQ(Stored(kOptions, "VidCard"), "1");
}

TEST_F(StartTest, TheSplashDoesNotLieAboveTheChipsetQuestion) {
    MakeFirstRun();
    AcceptChipset();
    bool topmost = true;
    user.OnDialog = [&] { topmost = launcher.Splash.Topmost; };
    EXPECT_TRUE(Start(launcher));
    EXPECT_FALSE(topmost);
}

TEST_F(StartTest, AChipsetQuestionThatIsCancelledEndsTheProgramOnOk) {
    MakeFirstRun();
    user.InInstallParams.push_back([this](InstallParams_Frm& form) { InstallParams_OK_Cmd_Click(run, form, 1); });
    user.Expect({"Lorvane 3D", "Setup cancelled at users request.", 0, false, true, "&OK,&Not OK"});
    EXPECT_FALSE(Start(launcher));
    EXPECT_TRUE(run.Ended);
    EXPECT_FALSE(window.Visible);
    EXPECT_FALSE(launcher.Splash.Visible);
    EXPECT_EQ(Stored("LV-Stuff", "FirstTime"), "1");
}

TEST_F(StartTest, ASecondInstanceHandsOverWhatItWasGiven) {
    instance.IsFirst = false;
    system.Services.Instance = &instance;
    launcher.Dropped = {.Word = "C:\\D\\dm3.bsp", .Count = 1, .Fault = {}};
    std::vector<Text> handed;
    launcher.HandOver = [&](TextView word) {
        handed.emplace_back(word);
        return Text();
    };
    EXPECT_FALSE(Start(launcher));
    EXPECT_EQ(handed, (std::vector<Text>{"C:\\D\\dm3.bsp"}));
    EXPECT_TRUE(run.Ended);
}

TEST_F(StartTest, WhatTheOtherInstanceDoesNotTakeIsTold) {
    instance.IsFirst = false;
    system.Services.Instance = &instance;
    launcher.Dropped = {.Word = "qw://host", .Count = 1, .Fault = {}};
    launcher.HandOver = [](TextView) { return Text("It does not answer."); };
    user.Expect({"Lorvane 3D", "It does not answer.\r\n\r\nIt was not given -->\r\n\r\n\tqw://host", 0, false, true});
    EXPECT_FALSE(Start(launcher));
    EXPECT_TRUE(launcher.HandOverFailed);
    EXPECT_TRUE(run.Ended);
}

TEST_F(StartTest, TheFirstInstanceKeepsWhatItWasGiven) {
    system.Services.Instance = &instance;
    launcher.Dropped = {.Word = "qw://host", .Count = 1, .Fault = {}};
    launcher.HandOver = [](TextView) {
        ADD_FAILURE();
        return Text();
    };
    EXPECT_TRUE(Start(launcher));
    EXPECT_EQ(launcher.Dropped.Word, "qw://host");
}

TEST_F(StartTest, ASecondInstanceEndsSilently) {
    instance.IsFirst = false;
    system.Services.Instance = &instance;
    EXPECT_FALSE(Start(launcher));
    EXPECT_TRUE(run.Ended);
    EXPECT_FALSE(window.Visible);
    EXPECT_FALSE(run.MainFormLoaded);
    EXPECT_FALSE(launcher.Splash.Visible);
    EXPECT_EQ(Stored("LV-Stuff", "RunCount"), "(none)");
}

TEST_F(StartTest, TheFirstInstanceGoesOn) {
    system.Services.Instance = &instance;
    EXPECT_TRUE(Start(launcher));
    EXPECT_EQ(instance.Claims, 1);
}

TEST_F(StartTest, AnOlderInstallIsAskedAboutBeforeTheLoad) {
    system.Disk.AddFile("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\Lorvane3D.exe");
    user.Expect({"Lorvane 3D", "Would you Lorvane 3D to remove it?", 1});
    bool loaded = true;
    user.OnDialog = [&] { loaded = run.MainFormLoaded; };
    EXPECT_TRUE(Start(launcher));
    EXPECT_FALSE(loaded);
}

TEST_F(StartTest, ADamagedCatalogEndsTheStart) {
    Save(run, kOptions, "Executables", "Quake;C:\\QUAKE\\QUAKE.EXE;Sin");
    user.Expect({"Lorvane 3D", " experienced a probable registry error."});
    EXPECT_FALSE(Start(launcher));
    EXPECT_TRUE(run.Ended);
    EXPECT_FALSE(window.Visible);
    EXPECT_FALSE(launcher.Splash.Visible);
}

TEST_F(StartTest, ExitBehindTheSplashEndsTheStart) {
    user.OnPump = [&] { EndProgram(run); };
    EXPECT_FALSE(Start(launcher));
    EXPECT_FALSE(window.Visible);
}

TEST_F(StartTest, AlwaysOnTopIsOffByDefault) {
    EXPECT_TRUE(Start(launcher));
    EXPECT_FALSE(window.Bar(MenuItem::AlwaysOnTop_Bar).Checked);
    EXPECT_FALSE(run.Topmost.InBand);
}

TEST_F(StartTest, AlwaysOnTopIsReadFromTheStore) {
    Save(run, kOptions, "OnTop", "True");
    EXPECT_TRUE(Start(launcher));
    EXPECT_TRUE(window.Bar(MenuItem::AlwaysOnTop_Bar).Checked);
    EXPECT_TRUE(run.Topmost.InBand);
    EXPECT_EQ(run.Topmost.Nesting, 0);
}

TEST_F(StartTest, TheMainWindowIsPreparedWithinTheSplashsSecond) {
    int prepared = 0;
    user.OnPrepareMainWindow = [&] {
        ++prepared;
        EXPECT_TRUE(launcher.Splash.Visible);
        EXPECT_FALSE(window.Visible);
        EXPECT_TRUE(run.MainFormLoaded);
        EXPECT_EQ(window.Caption, "   Lorvane 3D");
    };
    EXPECT_TRUE(Start(launcher));
    EXPECT_EQ(prepared, 1);
}

TEST_F(StartTest, TheVideoProfileWindowOpensIfItWasOpenAtExit) {
    Save(run, "VideoProfile_Frm", "LoadAtStartup", "1");
    user.Expect({"Video Profiles", "'Base'", 0});
    EXPECT_TRUE(Start(launcher));
    EXPECT_TRUE(launcher.VideoProfile.VideoProfileWindowOpen);
}

TEST_F(StartTest, TheVideoProfileWindowOpensWhenTheMainWindowIsOnTheScreen) {
    Save(run, "VideoProfile_Frm", "LoadAtStartup", "1");
    user.Expect({"Video Profiles", "'Base'", 0});
    bool awaited = false;
    user.OnAwaitMainWindow = [&] {
        awaited = true;
        EXPECT_TRUE(window.Visible);
        EXPECT_FALSE(launcher.VideoProfile.VideoProfileWindowOpen);
    };
    EXPECT_TRUE(Start(launcher));
    EXPECT_TRUE(awaited);
}

TEST_F(StartTest, ExitBeforeTheVideoProfileWindowOpensEndsTheStart) {
    Save(run, "VideoProfile_Frm", "LoadAtStartup", "1");
    user.OnAwaitMainWindow = [&] { Exit_Bar_Click(launcher); };
    EXPECT_FALSE(Start(launcher));
    EXPECT_FALSE(launcher.VideoProfile.VideoProfileWindowOpen);
}

TEST_F(StartTest, TheVideoProfileWindowStaysClosedOtherwise) {
    user.OnAwaitMainWindow = [] { ADD_FAILURE() << "there is nothing to wait for"; };
    EXPECT_TRUE(Start(launcher));
    EXPECT_FALSE(launcher.VideoProfile.VideoProfileWindowOpen);
}

TEST_F(StartTest, WithoutAWindowNeitherAnInstanceNorTheUserIsAsked) {
    system.Services.Instance = &instance;
    EXPECT_TRUE(LoadUnseen(launcher));
    EXPECT_EQ(instance.Claims, 0);
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(run.AppDirectory, "C:\\LORVANE");
    EXPECT_EQ(run.GameKind, Game::Quake);
}

TEST_F(StartTest, SettingsThatMayOnlyBeReadAreToldOnceAtTheStartAndOnceAtTheEnd) {
    system.Settings.RefuseWrites = MakeError(error::kPermissionDenied);
    user.Expect({"Lorvane 3D", "Settings could not be saved; the old ones are still there.", 0});
    EXPECT_TRUE(Start(launcher));
    EXPECT_EQ(user.Asked.size(), 1U);
    user.Expect({"Lorvane 3D", "Settings could not be saved; the old ones are still there.", 0});
    Exit_Bar_Click(launcher);
    EXPECT_EQ(user.Asked.size(), 2U);
    EXPECT_TRUE(run.Ended);
}

TEST_F(StartTest, KeepsACopyOfTheSettingsThatHaveChanged) {
    const Text before = Stored(kOptions, "Executables");
    EXPECT_TRUE(Start(launcher));
    ASSERT_EQ(Backups(run).size(), 1u);
    const auto kept = ReadSettingsFile(run, Backups(run)[0].Path);
    ASSERT_NE(FindValue(kept.Value, kOptions, "Executables"), nullptr);
    EXPECT_EQ(FindValue(kept.Value, kOptions, "Executables")->Value, before);
}

TEST_F(StartTest, KeepsNoSecondCopyOfTheSameSettings) {
    EXPECT_TRUE(Start(launcher));
    for (int starts = 0; starts < 3; ++starts) {
        Launcher again(run);
        EXPECT_TRUE(Start(again));
    }
    const std::size_t kept = Backups(run).size();
    EXPECT_LE(kept, 2u);  // the first start has put values in order
    Launcher last(run);
    EXPECT_TRUE(Start(last));
    EXPECT_EQ(Backups(run).size(), kept);
}

TEST_F(StartTest, GoesOnWithoutACopyThatCannotBeKept) {
    system.Settings.RefuseReads = MakeError(error::kAlreadyOpen);
    EXPECT_TRUE(Start(launcher));
    EXPECT_TRUE(Backups(run).empty());
}

TEST_F(StartTest, AProgramInADrivesRootIsKeptWithoutItsBackslash) {
    RootFiles disk;
    disk.AddDrive("C:");
    Platform services{system.Settings, system.Registry, disk, system.Programs, system.Clip, system.Time};
    lv::Run ownRun{services, user};
    Launcher own{ownRun};
    Save(run, kOptions, "Executables", "");
    ExpectEmptyListQuestion();
    EXPECT_TRUE(Start(own));
    EXPECT_EQ(ownRun.AppDirectory, "C:");
}

TEST_F(StartTest, ASecondInstanceHasRepairedWhatIsStoredAndGoesNoFurther) {
    instance.IsFirst = false;
    system.Services.Instance = &instance;
    system.Disk.AddFile("C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\Lorvane3D.exe");  // not asked about
    system.Disk.AddDirectory("C:\\ELSE");
    (void)system.Disk.ChangeDirectory("C:\\ELSE");
    Save(run, kOptions, "Executables", "Quake;C:/QUAKE/GLQUAKE.EXE");
    EXPECT_FALSE(Start(launcher));
    EXPECT_EQ(Stored(kOptions, "Executables"), "Quake;C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_EQ(system.Disk.CurrentDirectory(), "C:\\ELSE");
    EXPECT_EQ(run.MainWindowCaption, "   Lorvane 3D");
}

TEST_F(StartTest, AFirstRunAsksForTheChipsetAheadOfTheLookForAnotherInstance) {
    MakeFirstRun();
    AcceptChipset();
    instance.IsFirst = false;
    system.Services.Instance = &instance;
    EXPECT_FALSE(Start(launcher));
    EXPECT_TRUE(user.InInstallParams.empty());
    EXPECT_EQ(Stored(kOptions, "VidCard"), "1");
}

}  // namespace lv
