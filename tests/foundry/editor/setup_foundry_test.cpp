#include "foundry/editor/setup_foundry.h"

#include <new>
#include <stdexcept>

#include "foundation/field_strings.h"
#include "foundry/editor/lifecycle.h"
#include "foundry/foundry.h"
#include "launcher/window/window_life.h"
#include "tests/foundry/script_fixture.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class SetupFoundryTest : public LauncherTest {
  protected:
    SetupFoundryTest() {
        AddGames();
        system.Disk.AddFile("C:\\QUAKE\\ID1\\MY.CFG", Crlf("//* Setup Foundry   *//\nbind w +forward\n"));
        ConnectEditor(foundry);
    }
    void LoadWithScript() {
        Load();
        ASSERT_EQ(Trim(window.Script_Cbo.Selected().substr(100)), "c:\\quake\\id1\\my.cfg");
        pumpsBefore_ = user.Pumps;
    }
    void ExpectError(TextView text) { user.Expect({"Error", Text(text), 0, false, true, "&OK"}); }
    void ExpectWindowsError(TextView what) {
        user.Expect({"Windows Error",
                     Join(what,
                          "\r\n\r\nSystem low on Windows Resources.\r\n"
                          "Please close some other Windows programs."),
                     0, false, true, "&OK"});
    }
    void CloseEditor() {
        user.In<Fig_Frm>([](Fig_Frm& form) { Fig_Frm_Unload(form); });
    }
    [[nodiscard]] int Pumps() const { return user.Pumps - pumpsBefore_; }

    SetupFoundry foundry{launcher};

  private:
    int pumpsBefore_ = 0;
};

// Opening

TEST_F(SetupFoundryTest, WithoutASelectionItSaysSo) {
    Load();
    window.Script_Cbo.ListIndex = -1;
    ExpectError("\r\nNo Script is selected.");
    SetupFoundry_Bar_Click(foundry);
    EXPECT_FALSE(foundry.Splash.Visible);
}

TEST_F(SetupFoundryTest, AScriptThatIsGoneIsNotFound) {
    LoadWithScript();
    system.Disk.Delete("C:\\QUAKE\\ID1\\MY.CFG");
    ExpectError("\r\nScript Not Found");
    SetupFoundry_Bar_Click(foundry);
    EXPECT_FALSE(foundry.Splash.Visible);
}

TEST_F(SetupFoundryTest, TheSelectedScriptIsReadAndShown) {
    LoadWithScript();
    user.In<Fig_Frm>([this](Fig_Frm& form) {
        EXPECT_EQ(form.Document.CurrentScriptPath, "c:\\quake\\id1\\my.cfg");
        EXPECT_EQ(form.Document.CurrentScriptDirectory, "c:\\quake\\id1\\");
        EXPECT_EQ(form.Caption, "Setup Foundry - [c:/quake/id1/my.cfg]");
        EXPECT_EQ(form.Document.Setting_Lbl[101].Caption, "{W}");
        EXPECT_EQ(form.KeyLabelOf(23).BackColor, 0x00c000U);
        EXPECT_TRUE(form.Loaded);
        EXPECT_TRUE(form.Save_Tmr_Enabled);
        EXPECT_FALSE(foundry.Splash.Visible);
        Fig_Frm_Unload(form);
    });
    SetupFoundry_Bar_Click(foundry);
    EXPECT_FALSE(foundry.Open);
}

TEST_F(SetupFoundryTest, TheSplashIsUpForASecondAheadOfTheReader) {
    LoadWithScript();
    const double start = system.Time.Elapsed;
    double up = 0;
    user.OnPump = [&] {
        if (foundry.Splash.Visible) {
            up = system.Time.Elapsed - start;
            EXPECT_TRUE(foundry.Open);
        }
    };
    CloseEditor();
    foundry.Splash.Progress_Lbl.Caption = "...........";
    const int refreshes = user.Refreshes;
    SetupFoundry_Bar_Click(foundry);
    EXPECT_NEAR(up, 1, 0.01);
    EXPECT_EQ(foundry.Splash.Progress_Lbl.Caption, "");
    EXPECT_GE(user.Refreshes - refreshes, 2);
}

TEST_F(SetupFoundryTest, TheWindowIsPreparedForTheGameWhileTheSplashIsUp) {
    LoadWithScript();
    const ModalWindow* prepared = nullptr;
    user.OnPrepare = [&](ModalWindow& window) {
        auto& form = dynamic_cast<Fig_Frm&>(window);
        EXPECT_TRUE(foundry.Splash.Visible);
        EXPECT_EQ(form.Document.CurrentScriptPath, "");
        EXPECT_EQ(form.Document.Dialect.GameKind, Game::Quake);
        EXPECT_EQ(form.Document.Setting_Lbl[101].Caption, "");
        prepared = &form;
    };
    user.In<Fig_Frm>([&](Fig_Frm& form) {
        EXPECT_EQ(&form, prepared);
        EXPECT_EQ(user.PreparedDropped, 0);
        Fig_Frm_Unload(form);
    });
    SetupFoundry_Bar_Click(foundry);
    EXPECT_EQ(user.PreparedDropped, 1);
}

TEST_F(SetupFoundryTest, WhatWasPreparedGoesWhenTheScriptCannotBeRead) {
    LoadWithScript();
    user.OnPrepare = [this](ModalWindow&) { system.Disk.Delete("C:\\QUAKE\\ID1\\MY.CFG"); };
    user.Expect({"Script Not Opened", "Error opening specified script file."});
    SetupFoundry_Bar_Click(foundry);
    EXPECT_EQ(user.PreparedDropped, 1);
}

TEST_F(SetupFoundryTest, EventsArePumpedOnceMoreWhenTheEditorIsClosed) {
    LoadWithScript();
    int inside = 0;
    user.In<Fig_Frm>([&](Fig_Frm& form) {
        inside = Pumps();
        Fig_Frm_Unload(form);
    });
    SetupFoundry_Bar_Click(foundry);
    EXPECT_EQ(Pumps(), inside + 1);
}

TEST_F(SetupFoundryTest, AScriptThatCannotBeReadOpensNothing) {
    LoadWithScript();
    // It goes while the splash is up.
    user.OnPump = [this] { system.Disk.Delete("C:\\QUAKE\\ID1\\MY.CFG"); };
    user.Expect({"Script Not Opened", "Error opening specified script file."});
    SetupFoundry_Bar_Click(foundry);
    EXPECT_FALSE(foundry.Splash.Visible);
    EXPECT_FALSE(foundry.Open);
}

TEST_F(SetupFoundryTest, AProgramThatEndsWhileTheSplashIsUpOpensNothing) {
    LoadWithScript();
    user.OnPump = [this] {
        user.OnPump = {};
        Exit_Bar_Click(launcher);
    };
    SetupFoundry_Bar_Click(foundry);
    EXPECT_TRUE(run.Ended);
    EXPECT_FALSE(foundry.Splash.Visible);
}

TEST_F(SetupFoundryTest, ASecondClickWhileOneIsOpeningOrOpenDoesNothing) {
    LoadWithScript();
    user.OnPump = [this] { SetupFoundry_Bar_Click(foundry); };
    user.In<Fig_Frm>([this](Fig_Frm& form) {
        SetupFoundry_Bar_Click(foundry);
        Fig_Frm_Unload(form);
    });
    SetupFoundry_Bar_Click(foundry);
}

TEST_F(SetupFoundryTest, AClickWhileALaunchIsUnderWayDoesNothing) {
    LoadWithScript();
    launcher.LaunchUnderWay = true;
    SetupFoundry_Bar_Click(foundry);
    EXPECT_EQ(Pumps(), 0);
}

TEST_F(SetupFoundryTest, ItOpensAgainOnceItIsClosed) {
    LoadWithScript();
    CloseEditor();
    SetupFoundry_Bar_Click(foundry);
    CloseEditor();
    SetupFoundry_Bar_Click(foundry);
    EXPECT_FALSE(foundry.Open);
}

// Run-time errors

TEST_F(SetupFoundryTest, AnErrorInTheWindowIsTold) {
    LoadWithScript();
    user.In<Fig_Frm>([](Fig_Frm&) { throw std::bad_alloc(); });
    ExpectWindowsError(std::bad_alloc().what());
    SetupFoundry_Bar_Click(foundry);
    EXPECT_FALSE(foundry.Open);
    EXPECT_EQ(run.Topmost.Nesting, 0);
    CloseEditor();
    SetupFoundry_Bar_Click(foundry);
}

TEST_F(SetupFoundryTest, AnErrorInTheReaderIsToldWithTheSplashGone) {
    LoadWithScript();
    system.Disk.AddFile("C:\\QUAKE\\ID1\\MY.CFG", "bind w +forward");  // a foreign one, of whose copy the user is told
    user.OnDialog = [this] {
        EXPECT_TRUE(foundry.Splash.Visible);
        user.OnDialog = [this] { EXPECT_FALSE(foundry.Splash.Visible); };
        throw std::runtime_error("Out of something");
    };
    ExpectWindowsError("Out of something");
    SetupFoundry_Bar_Click(foundry);
    EXPECT_FALSE(foundry.Open);
}

// From the main window

TEST_F(SetupFoundryTest, TheMenuAndTheButtonOpenIt) {
    LoadWithScript();
    CloseEditor();
    Menu_Click(launcher, MenuItem::SetupFoundry_Bar);
    CloseEditor();
    ButtonBar_Cmd_Click(launcher, 1);
}

TEST_F(SetupFoundryTest, TheTrayIconIsDeafWhileTheEditorIsUp) {
    LoadWithScript();
    window.Visible = false;
    user.In<Fig_Frm>([this](Fig_Frm& form) {
        EXPECT_EQ(run.Topmost.Nesting, 1);
        Tray_Click(launcher, kTrayLeftButtonUp);
        EXPECT_FALSE(window.Visible);
        EXPECT_TRUE(user.WindowCalls.empty());
        Fig_Frm_Unload(form);
    });
    SetupFoundry_Bar_Click(foundry);
    EXPECT_EQ(run.Topmost.Nesting, 0);
    Tray_Click(launcher, kTrayLeftButtonUp);
    EXPECT_TRUE(window.Visible);
}

// Splash

TEST(SFSplash, GetsADotATick) {
    SFSplash_Frm splash;
    SFSplash_Timer1_Timer(splash);
    EXPECT_EQ(splash.Progress_Lbl.Caption, ".");
    SFSplash_Timer1_Timer(splash);
    EXPECT_EQ(splash.Progress_Lbl.Caption, "..");
}

TEST(SFSplash, BeginsAgainAt78Characters) {
    SFSplash_Frm splash;
    splash.Progress_Lbl.Caption = Text(76, '.');
    SFSplash_Timer1_Timer(splash);
    EXPECT_EQ(splash.Progress_Lbl.Caption, Text(77, '.'));
    SFSplash_Timer1_Timer(splash);
    EXPECT_EQ(splash.Progress_Lbl.Caption, "...");
}

TEST_F(SetupFoundryTest, ItsTimerUnloadsTheProgramsSplash) {
    launcher.Splash.Visible = true;
    foundry.Splash.Visible = true;
    SFSplash_Unload_Tmr_Timer(foundry);
    EXPECT_FALSE(launcher.Splash.Visible);
    EXPECT_TRUE(foundry.Splash.Visible);
}

TEST(SFSplash, TicksTwentyTimesASecondAndGivesFifteenToTheOther) {
    EXPECT_EQ(kSplashDotMilliseconds, 50);
    EXPECT_EQ(kSplashUnloadMilliseconds, 15000);
}

}  // namespace
}  // namespace lv
