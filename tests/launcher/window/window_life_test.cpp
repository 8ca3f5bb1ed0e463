#include "launcher/window/window_life.h"

#include "launcher/window/launch_flow.h"
#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

class WindowLife : public LauncherTest {
  protected:
    WindowLife() {
        run.MainFormLoaded = true;
        window.Visible = true;
        window.EverShown = true;
        window.TrayIcon = true;
    }
    bool ProfilesOpen() { return launcher.VideoProfile.VideoProfileWindowOpen; }
    Text Caption() { return window.Bar(MenuItem::ShowLorvane_Bar).Caption; }
};

}  // namespace

TEST_F(WindowLife, HideShowsItselfAsShow) {
    ShowLorvane_Bar_Click(launcher);
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(Caption(), "&Show Lorvane 3D");
    EXPECT_EQ(PresenceOf(window), Presence::Hidden);
}

TEST_F(WindowLife, ShowShowsItselfAsHide) {
    ShowLorvane_Bar_Click(launcher);
    ShowLorvane_Bar_Click(launcher);
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(Caption(), "&Hide Lorvane 3D");
    EXPECT_EQ(PresenceOf(window), Presence::Shown);
}

TEST_F(WindowLife, WithoutATrayHidingGoesToTheTaskBar) {
    user.HasTray = false;
    ShowLorvane_Bar_Click(launcher);
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(PresenceOf(window), Presence::Minimised);
}

TEST_F(WindowLife, ATrayThatIsGoneByThenCountsAsNone) {
    ShowLorvane_Bar_Click(launcher);
    ShowLorvane_Bar_Click(launcher);
    user.HasTray = false;
    ShowLorvane_Bar_Click(launcher);
    EXPECT_EQ(PresenceOf(window), Presence::Minimised);
}

TEST_F(WindowLife, BeforeItWasEverShownTheWindowIsHidden) {
    EXPECT_EQ(PresenceOf(LV_Frm()), Presence::Hidden);
}

TEST_F(WindowLife, AnOpenVideoProfileWindowHidesAndComesBack) {
    VideoProfile_Frm_Load(launcher.VideoProfile);
    ShowLorvane_Bar_Click(launcher);
    EXPECT_FALSE(ProfilesOpen());
    EXPECT_TRUE(launcher.VideoProfileReopen);
    ShowLorvane_Bar_Click(launcher);
    EXPECT_TRUE(ProfilesOpen());
    EXPECT_FALSE(launcher.VideoProfileReopen);
}

TEST_F(WindowLife, AClosedVideoProfileWindowStaysClosed) {
    ShowLorvane_Bar_Click(launcher);
    ShowLorvane_Bar_Click(launcher);
    EXPECT_FALSE(ProfilesOpen());
}

TEST_F(WindowLife, ItsCloseBoxHidesTheWindow) {
    EXPECT_FALSE(LV_Frm_QueryUnload(launcher));
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(Caption(), "&Show Lorvane 3D");
    EXPECT_TRUE(window.TrayIcon);
    EXPECT_FALSE(run.Ended);
}

TEST_F(WindowLife, BehindExitTheWindowMayGo) {
    Exit_Bar_Click(launcher);
    EXPECT_TRUE(LV_Frm_QueryUnload(launcher));
}

TEST_F(WindowLife, ALeftClickOnTheTrayIconShowsAndRaises) {
    ShowLorvane_Bar_Click(launcher);
    Tray_Click(launcher, 514);
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(Caption(), "&Hide Lorvane 3D");
    EXPECT_EQ(user.WindowCalls, (std::vector<Text>{"raise"}));
}

TEST_F(WindowLife, ALeftClickBringsAMinimisedWindowBackToNormal) {
    window.Placement.WindowState = kWindowMinimised;
    window.Visible = false;
    Tray_Click(launcher, 514);
    EXPECT_EQ(window.Placement.WindowState, kWindowNormal);
}

TEST_F(WindowLife, ARightClickOnTheTrayIconPopsUpTheFileMenu) {
    Tray_Click(launcher, 517);
    EXPECT_EQ(user.WindowCalls, (std::vector<Text>{"raise", "menu File_Bar"}));
}

TEST_F(WindowLife, ARightClickLeavesAHiddenWindowHidden) {
    ShowLorvane_Bar_Click(launcher);
    Tray_Click(launcher, 517);
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(user.WindowCalls, (std::vector<Text>{"menu File_Bar"}));
}

TEST_F(WindowLife, OtherMessagesOfTheTrayIconAreNothing) {
    ShowLorvane_Bar_Click(launcher);
    Tray_Click(launcher, 512);
    Tray_Click(launcher, 513);
    EXPECT_FALSE(window.Visible);
    EXPECT_TRUE(user.WindowCalls.empty());
}

TEST_F(WindowLife, TheTrayIconIsDeafWhileADialogIsUp) {
    ShowLorvane_Bar_Click(launcher);
    user.OnDialog = [this] {
        Tray_Click(launcher, 514);
        Tray_Click(launcher, 517);
    };
    user.Expect({"Lorvane 3D", "Hello"});
    AskUser(run, "", "Hello");
    EXPECT_FALSE(window.Visible);
    EXPECT_TRUE(user.WindowCalls.empty());
}

TEST_F(WindowLife, AnotherStartBringsAHiddenWindowForward) {
    ShowLorvane_Bar_Click(launcher);
    ComeForward(launcher);
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(user.WindowCalls, (std::vector<Text>{"raise"}));
}

TEST_F(WindowLife, AnotherStartDuringTheLoadShowsNothingYet) {
    window.Visible = false;
    window.EverShown = false;
    ComeForward(launcher);
    EXPECT_FALSE(window.Visible);
    EXPECT_TRUE(user.WindowCalls.empty());
}

TEST_F(WindowLife, ExitSavesThePlace) {
    window.Placement = {150, 300, 4500, 6000, kWindowNormal};
    Exit_Bar_Click(launcher);
    EXPECT_EQ(Stored("LV_Frm", "Top"), "150");
    EXPECT_EQ(Stored("LV_Frm", "Left"), "300");
    EXPECT_EQ(Stored("LV_Frm", "Height"), "4500");
    EXPECT_EQ(Stored("LV_Frm", "Width"), "6000");
    EXPECT_EQ(Stored("LV_Frm", "WindowState"), "0");
}

TEST_F(WindowLife, ExitTakesTheTrayIconAwayAndEndsTheProgram) {
    Exit_Bar_Click(launcher);
    EXPECT_FALSE(window.TrayIcon);
    EXPECT_FALSE(run.MainFormLoaded);
    EXPECT_TRUE(run.Ended);
    EXPECT_TRUE(user.ProgramEnded);
}

TEST_F(WindowLife, ExitNotesAClosedVideoProfileWindow) {
    Exit_Bar_Click(launcher);
    EXPECT_EQ(Stored("VideoProfile_Frm", "LoadAtStartup"), "0");
    EXPECT_FALSE(ProfilesOpen());
}

TEST_F(WindowLife, ExitNotesAnOpenVideoProfileWindowAndUnloadsIt) {
    VideoProfile_Frm_Load(launcher.VideoProfile);
    Exit_Bar_Click(launcher);
    EXPECT_EQ(Stored("VideoProfile_Frm", "LoadAtStartup"), "1");
    EXPECT_FALSE(ProfilesOpen());
}

TEST_F(WindowLife, ExitFromTheTrayNotesAVideoProfileWindowThatIsOnlyHidden) {
    VideoProfile_Frm_Load(launcher.VideoProfile);
    ShowLorvane_Bar_Click(launcher);
    Exit_Bar_Click(launcher);
    EXPECT_EQ(Stored("VideoProfile_Frm", "LoadAtStartup"), "1");
}

TEST_F(WindowLife, AVideoProfileWindowClosedBehindAHidingIsNotedAsClosed) {
    VideoProfile_Frm_Load(launcher.VideoProfile);
    ShowLorvane_Bar_Click(launcher);
    ShowLorvane_Bar_Click(launcher);
    VideoProfile_Frm_Unload(launcher.VideoProfile);
    ShowLorvane_Bar_Click(launcher);
    Exit_Bar_Click(launcher);
    EXPECT_EQ(Stored("VideoProfile_Frm", "LoadAtStartup"), "0");
}

TEST_F(WindowLife, AVideoProfileWindowThatALaunchUnloadedIsNotedAsClosed) {
    AddGames();
    Load();
    window.Visible = true;
    VideoProfile_Frm_Load(launcher.VideoProfile);
    DoIt_Cmd_Click(launcher, 0);
    Exit_Bar_Click(launcher);
    EXPECT_EQ(Stored("VideoProfile_Frm", "LoadAtStartup"), "0");
}

TEST_F(WindowLife, TheSessionsEndKeepsWhatExitKeeps) {
    window.Placement = {150, 300, 4500, 6000, kWindowNormal};
    VideoProfile_Frm_Load(launcher.VideoProfile);
    SessionEnds(launcher);
    EXPECT_EQ(Stored("LV_Frm", "Top"), "150");
    EXPECT_EQ(Stored("LV_Frm", "Left"), "300");
    EXPECT_EQ(Stored("VideoProfile_Frm", "LoadAtStartup"), "1");
    EXPECT_TRUE(run.Ended);
}

TEST_F(WindowLife, TheSessionsEndBehindAnExitKeepsNothingMore) {
    window.Placement = {150, 300, 4500, 6000, kWindowNormal};
    VideoProfile_Frm_Load(launcher.VideoProfile);
    Exit_Bar_Click(launcher);
    window.Placement.Top = 900;
    SessionEnds(launcher);
    EXPECT_EQ(Stored("LV_Frm", "Top"), "150");
    EXPECT_EQ(Stored("VideoProfile_Frm", "LoadAtStartup"), "1");
}

TEST_F(WindowLife, TheSessionsEndBeforeTheWindowIsThereKeepsNothing) {
    run.MainFormLoaded = false;
    SessionEnds(launcher);
    EXPECT_EQ(Stored("LV_Frm", "Top"), "(none)");
    EXPECT_EQ(Stored("VideoProfile_Frm", "LoadAtStartup"), "(none)");
}

TEST_F(WindowLife, ALaunchWithExitOnLaunchExitsAsTheMenuWould) {
    AddGames();
    Load();
    window.Placement = {150, 300, 4500, 6000, kWindowNormal};
    window.Box(Option::EndOnLaunch_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(run.Ended);
    EXPECT_EQ(Stored("LV_Frm", "Top"), "150");
    EXPECT_EQ(Stored("VideoProfile_Frm", "LoadAtStartup"), "0");
    EXPECT_FALSE(window.TrayIcon);
}

TEST_F(WindowLife, ALaunchHidesTheVideoProfileWindowToo) {
    AddGames();
    Load();
    window.Visible = true;
    VideoProfile_Frm_Load(launcher.VideoProfile);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_FALSE(ProfilesOpen());
    EXPECT_TRUE(launcher.VideoProfileReopen);
    EXPECT_EQ(PresenceOf(window), Presence::Hidden);
}

TEST_F(WindowLife, ViewAndCreateOnlyLeaveTheVideoProfileWindowOpen) {
    AddGames();
    Load();
    window.Visible = true;
    VideoProfile_Frm_Load(launcher.VideoProfile);
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_TRUE(ProfilesOpen());
    user.OnDialog = [] {};
    user.Expect({"Viewing Commands", "", 0});
    DoIt_Cmd_Click(launcher, 1);
    EXPECT_TRUE(ProfilesOpen());
}

TEST_F(WindowLife, MinimisedUnderADialogItStaysAsItIs) {
    VideoProfile_Frm_Load(launcher.VideoProfile);
    run.Topmost.Nesting = 1;
    LV_Frm_Resize(launcher, kWindowMinimised, {});
    EXPECT_TRUE(window.Visible);
    EXPECT_TRUE(ProfilesOpen());
    run.Topmost.Nesting = 0;
    LV_Frm_Resize(launcher, kWindowMinimised, {});
    EXPECT_FALSE(window.Visible);
    EXPECT_FALSE(ProfilesOpen());
}

}  // namespace lv
