#include "launcher/start/splash.h"

#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

class Splash : public LauncherTest {
  protected:
    Splash_Frm& splash = launcher.Splash;
};

}  // namespace

TEST_F(Splash, LiesAboveAllWindowsWhenItComes) {
    ShowSplash(run, splash);
    EXPECT_TRUE(splash.Visible);
    EXPECT_TRUE(splash.Topmost);
    EXPECT_EQ(run.Topmost.Nesting, 0);
    EXPECT_EQ(user.Refreshes, 1);
}

TEST_F(Splash, TellsWhatGoesOn) {
    ShowSplash(run, splash);
    InformUser(run, splash, " Loading Main Form");
    EXPECT_EQ(splash.InformUser_Lbl.Caption, " Loading Main Form");
    EXPECT_EQ(user.Refreshes, 2);
}

TEST_F(Splash, ThatIsGoneIsNotPutAboveAnything) {
    SetSplashTopmost(run, splash, true);
    EXPECT_FALSE(splash.Topmost);
}

TEST_F(Splash, EachTickAppendsADot) {
    splash.InformUser_Lbl.Caption = " Go";
    Progress_Tmr_Timer(splash, user, 1000);
    Progress_Tmr_Timer(splash, user, 1000);
    EXPECT_EQ(splash.InformUser_Lbl.Caption, " Go..");
}

// A character is 8 pixels wide here.
TEST_F(Splash, ATextAsWideAsTheLabelIsCutBackToBeforeItsFirstDot) {
    splash.InformUser_Lbl.Caption = " Go.";
    Progress_Tmr_Timer(splash, user, 48);
    EXPECT_EQ(splash.InformUser_Lbl.Caption, " Go..");
    Progress_Tmr_Timer(splash, user, 48);
    EXPECT_EQ(splash.InformUser_Lbl.Caption, " Go");
}

TEST_F(Splash, ALabelThatIsTooNarrowKeepsItsText) {
    splash.InformUser_Lbl.Caption = " Go";
    Progress_Tmr_Timer(splash, user, 1);
    EXPECT_EQ(splash.InformUser_Lbl.Caption, " Go");
}

TEST_F(Splash, GoesByItselfInTheEnd) {
    ShowSplash(run, splash);
    Unload_Tmr_Timer(run, splash);
    EXPECT_FALSE(splash.Visible);
    EXPECT_FALSE(splash.Topmost);
}

TEST(SplashTimers, HaveTheirPeriods) {
    EXPECT_EQ(kProgressMilliseconds, 50);
    EXPECT_EQ(kUnloadMilliseconds, 15000);
}

}  // namespace lv
