#include "launcher/start/get_options.h"

#include <algorithm>

#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

class GetOptionsTest : public LauncherTest {
  protected:
    void MakeFirstRun() { Save(run, "LV-Stuff", "FirstTime", 1); }

    /// A wizard that gives these results, one a call.
    void SetWizard(std::deque<bool> results) {
        wizard = std::move(results);
        launcher.ShowInstallWizard = [this] {
            ++shown;
            splashWasTopmost = splashWasTopmost || launcher.Splash.Topmost;
            const bool result = wizard.front();
            wizard.pop_front();
            return result;
        };
    }
    void ExpectCancelQuestion(int answer) {
        user.Expect({"Lorvane 3D", "Setup cancelled at users request.", answer, false, true, "&OK,&Not OK"});
    }

    std::deque<bool> wizard;
    int shown = 0;
    bool splashWasTopmost = false;
};

}  // namespace

TEST_F(GetOptionsTest, ADateIsWrittenOut) {
    system.Time.Is = {1999, 11, 5, 0, 0, 0};
    EXPECT_EQ(LongDate(system.Time), "November 05, 1999");
}

TEST_F(GetOptionsTest, EachStartIsCounted) {
    AddGames();
    Save(run, "LV-Stuff", "RunCount", 6);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(Stored("LV-Stuff", "RunCount"), "7");
}

TEST_F(GetOptionsTest, TheCountGoesBeyond16Bits) {
    AddGames();
    Save(run, "LV-Stuff", "RunCount", 40000);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(Stored("LV-Stuff", "RunCount"), "40001");
}

TEST_F(GetOptionsTest, TheFirstRunShowsTheWizardAndEnds) {
    AddGames();
    MakeFirstRun();
    SetWizard({true});
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(launcher.WizardRan);
    EXPECT_EQ(Stored("LV-Stuff", "FirstTime"), "0");
    EXPECT_EQ(Stored("LV-Stuff", "FirstRunOn"), "November 21, 1999");
    EXPECT_EQ(Stored("LV-Stuff", "RunCount"), "1");
}

TEST_F(GetOptionsTest, AMissingFirstTimeIsAFirstRun) {
    MemoryPlatform fresh;
    lv::Run ownRun{fresh.Services, user};
    Launcher own{ownRun};
    int wizards = 0;
    own.ShowInstallWizard = [&] {
        ++wizards;
        return true;
    };
    EXPECT_TRUE(GetOptions(own));
    EXPECT_EQ(wizards, 1);
}

TEST_F(GetOptionsTest, ALaterRunShowsNoWizard) {
    AddGames();
    SetWizard({});
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(shown, 0);
    EXPECT_EQ(Stored("LV-Stuff", "FirstRunOn"), "(none)");
}

TEST_F(GetOptionsTest, ACancelledWizardComesAgainOnNotOk) {
    AddGames();
    MakeFirstRun();
    SetWizard({false, false, true});
    ExpectCancelQuestion(1);
    ExpectCancelQuestion(1);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(shown, 3);
    EXPECT_EQ(Stored("LV-Stuff", "FirstTime"), "0");
}

TEST_F(GetOptionsTest, ARunThatEndsInTheWizardStaysAFirstRunAndIsNotCounted) {
    AddGames();
    MakeFirstRun();
    Save(run, "LV-Stuff", "RunCount", 3);
    SetWizard({false});
    ExpectCancelQuestion(0);
    EXPECT_FALSE(GetOptions(launcher));
    EXPECT_TRUE(run.Ended);
    EXPECT_EQ(Stored("LV-Stuff", "FirstTime"), "1");
    EXPECT_EQ(Stored("LV-Stuff", "RunCount"), "3");
    EXPECT_EQ(Stored("LV-Stuff", "FirstRunOn"), "(none)");
}

TEST_F(GetOptionsTest, TheSplashDoesNotLieAboveTheWizard) {
    AddGames();
    MakeFirstRun();
    ShowSplash(run, launcher.Splash);
    SetWizard({true});
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_FALSE(splashWasTopmost);
    EXPECT_TRUE(launcher.Splash.Topmost);
}

TEST_F(GetOptionsTest, WithoutAWizardTheFirstRunGoesOnSilently) {
    AddGames();
    MakeFirstRun();
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_FALSE(launcher.WizardRan);
    EXPECT_EQ(Stored("LV-Stuff", "FirstTime"), "0");
    EXPECT_EQ(Stored("LV-Stuff", "FirstRunOn"), "November 21, 1999");
}

TEST_F(GetOptionsTest, AfterTheWizardAnEmptyListIsNotAskedAbout) {
    MakeFirstRun();
    SetWizard({true});
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(GetOptionsTest, TheWizardsGameDirectoryStaysWithoutItsBackslash) {
    MakeFirstRun();
    launcher.ShowInstallWizard = [this] {
        run.DefaultGameDirectory = "c:\\quake\\";
        return true;
    };
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(run.DefaultGameDirectory, "c:\\quake");
}

TEST_F(GetOptionsTest, AnEmptyListIsAskedAboutAtEveryStart) {
    ExpectEmptyListQuestion(1);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_TRUE(user.Asked.back().Button_Cmd[0].Default);
    ExpectEmptyListQuestion(1);
    EXPECT_TRUE(GetOptions(launcher));
}

TEST_F(GetOptionsTest, YesToTheEmptyListShowsTheWizardOnce) {
    SetWizard({true});
    ExpectEmptyListQuestion(0);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(shown, 1);
}

TEST_F(GetOptionsTest, AWizardCancelledThereLetsTheStartGoOn) {
    SetWizard({false});
    ExpectEmptyListQuestion(0);
    user.Expect({"Lorvane 3D", "Setup cancelled at users request.", 0, false, true, "&OK"});
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(shown, 1);
    EXPECT_FALSE(run.Ended);
}

TEST_F(GetOptionsTest, YesWithoutAWizardIsAnsweredPlainly) {
    ExpectEmptyListQuestion(0);
    user.Expect({"Lorvane 3D", "The search for games isn't part of this version of Lorvane 3D yet.", 0, false, true});
    EXPECT_TRUE(GetOptions(launcher));
}

TEST_F(GetOptionsTest, TheSplashDoesNotLieAboveTheQuestion) {
    ShowSplash(run, launcher.Splash);
    ExpectEmptyListQuestion(1);
    bool topmost = true;
    user.OnDialog = [&] { topmost = launcher.Splash.Topmost; };
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_FALSE(topmost);
    EXPECT_TRUE(launcher.Splash.Topmost);
}

TEST_F(GetOptionsTest, WhatTheWizardStoredIsInTheList) {
    AddGames();
    Save(run, kOptions, "Executables", "");
    launcher.ShowInstallWizard = [this] {
        Save(run, kOptions, "Executables", "Quake;c:\\quake\\glquake.exe");
        return true;
    };
    ExpectEmptyListQuestion(0);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(window.Exe_Cbo.Items.size(), 1u);
    EXPECT_EQ(run.GameKind, Game::Quake);
}

TEST_F(GetOptionsTest, AnOldCardNumberIsRaisedOnce) {
    AddGames();
    Save(run, "LV-Stuff", "NVC_Version", 0);
    Save(run, kOptions, "VidCard", "1");
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(Stored(kOptions, "VidCard"), "2");
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(Stored(kOptions, "VidCard"), "2");
    EXPECT_EQ(Stored("LV-Stuff", "NVC_Version"), "1");
}

TEST_F(GetOptionsTest, TheBaseProfileIsMadeOnce) {
    AddGames();
    Save(run, "LV-Stuff", "VP_Version", 0);
    Save(run, "LV-Stuff", "NVC_Version", 0);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(Stored("LV-Stuff", "VP_Version"), "1");
    EXPECT_EQ(Stored("LV-Stuff", "NVC_Version"), "1");
    EXPECT_EQ(Stored(kOptions, "VidCard"), "1");
    EXPECT_NE(Stored(kOptions, "Resolutions"), "(none)");
}

TEST_F(GetOptionsTest, AnEmptyProfileListIsFilledWithTheShippedOnes) {
    AddGames();
    Save(run, kOptions, "VideoProfileList", "");
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(Stored(kOptions, "VideoProfileList"), "Base;Optimize for Speed;Optimize for Beauty;Default");
    EXPECT_EQ(window.VideoProfiles_Cbo.Items,
              (std::vector<Text>{"Base", "Optimize for Speed", "Optimize for Beauty", "Default"}));
}

TEST_F(GetOptionsTest, TheStoredProfileIsSelectedWithoutAWrite) {
    AddGames();
    Save(run, kOptions, "VideoProfilePos", 2);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(window.VideoProfiles_Cbo.ListIndex, 2);
    EXPECT_EQ(run.VideoProfileSection, "Optimize for Beauty");
    EXPECT_EQ(std::count(system.Settings.Log.begin(), system.Settings.Log.end(), "Options|VideoProfilePos|2"), 1);
}

TEST_F(GetOptionsTest, AProfileThatIsNoLongerThereGivesTheFirst) {
    AddGames();
    Save(run, kOptions, "VideoProfilePos", 9);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(window.VideoProfiles_Cbo.ListIndex, 0);
}

TEST_F(GetOptionsTest, AllIsShownByDefault) {
    AddGames();
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(window.SizeMode, WindowSizeMode::All);
    EXPECT_EQ(Stored(kOptions, "ShowAll"), "Yes");
}

TEST_F(GetOptionsTest, NoIsTheLittleSize) {
    AddGames();
    Save(run, kOptions, "ShowAll", "No");
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(window.SizeMode, WindowSizeMode::Some);
}

TEST_F(GetOptionsTest, AnyOtherWordIsTheMiniSize) {
    AddGames();
    Save(run, kOptions, "ShowAll", "Maybe");
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(window.SizeMode, WindowSizeMode::ButtonsOnly);
    EXPECT_EQ(Stored(kOptions, "ShowAll"), "Hell-No");
}

TEST_F(GetOptionsTest, TheStoredExecutableRunsTheChangeOfGame) {
    AddGames();
    Save(run, kOptions, "ExecutablesPos", 3);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 3);
    EXPECT_EQ(run.GameKind, Game::Quake2);
}

TEST_F(GetOptionsTest, AnOpenVideoProfileWindowIsUnloaded) {
    AddGames();
    VideoProfile_Frm_Load(launcher.VideoProfile);
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_FALSE(launcher.VideoProfile.VideoProfileWindowOpen);
}

TEST_F(GetOptionsTest, MemoryAndDemosAreFilled) {
    AddGames();
    EXPECT_TRUE(GetOptions(launcher));
    EXPECT_EQ(window.Mem_Cbo.Items.size(), 7u);
    EXPECT_EQ(window.Mem_Cbo.ListIndex, 2);
    EXPECT_EQ(window.Demo_Cbo.Items.size(), 6u);
}

}  // namespace lv
