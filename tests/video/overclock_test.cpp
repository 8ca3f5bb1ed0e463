// The warnings before a card's clock is raised, as the lists of the window give them.

#include "video/overclock.h"

#include <algorithm>

#include "tests/video/profile_fixture.h"
#include "video/profile_model.h"
#include "video/video_profile_frm.h"

namespace lv {
namespace {

constexpr const char* kDanger = "DANGER WILL ROBINSON";
constexpr const char* kFire = "FIRE IN THE HOLE!!";
constexpr const char* kDangerButtons =
    "&Of Course I Am a GLQuake GOD,&I'm smart enough to admit I don't know what I am doing";
constexpr const char* kFireButtons = "&I Know All,&I'm smart enough to admit I don't know what I am doing";

class Overclock : public ProfileModel {
  protected:
    Overclock() { run.GameKind = Game::Quake; }

    void ExpectDanger(int answer) { user.Expect({kDanger, "overclocking", answer, false, false, kDangerButtons}); }
    void ExpectFire(int answer) { user.Expect({kFire, "really really", answer, false, false, kFireButtons}); }

    /// A click on that item.
    void Pick(TextView name, TextView item) {
        ProfileBox& box = form.BoxOf(name);
        box.Cbo.ListIndex = static_cast<int>(std::ranges::find(box.Cbo.Items, item) - box.Cbo.Items.begin());
        ASSERT_TRUE(box.Cbo.HasSelection()) << item;
        Profile_Cbo_Click(form, box);
    }

    VideoProfile_Frm form{run};
};

TEST_F(Overclock, TheFirstBoxOfAVoodooStandsToTheLetter) {
    user.Expect({kDanger,
                 "Setting this value over 50 is considered 'overclocking' the chipset.\r\n"
                 "To do this, you should be a GLQuake and 3DFX GOD. This is because\r\n"
                 "only such a GOD will not care when he blows out his card.\r\n"
                 "YOU MAY BE ABOUT TO RUIN YOUR VIDEO CARD.",
                 0, false, true, kDangerButtons});
    Pick("SST_GRXCLK", "53");
}

TEST_F(Overclock, TheFirstBoxOfAVoodoo2StandsToTheLetter) {
    run.GameKind = Game::Hexen2;
    user.Expect({kDanger,
                 "Setting this value over 90 is considered 'overclocking' the chipset.\r\n"
                 "To do this, you should be a GLHexen2 and 3DFX GOD. This is because\r\n"
                 "only such a GOD will not care when he blows out his card.\r\n"
                 "YOU MAY BE ABOUT TO RUIN YOUR 3D VIDEO CARD.",
                 0, false, true, kDangerButtons});
    Pick("SSTV2_GRXCLK", "91");
}

TEST_F(Overclock, TheSecondBoxesStandToTheLetter) {
    ExpectDanger(0);
    user.Expect({kFire,
                 "To set the clockspeed to 60 or over, please acknowledge that you\r\n"
                 "really really really know what you are doing.",
                 0, false, true, kFireButtons});
    Pick("SST_GRXCLK", "60");
    ExpectDanger(0);
    user.Expect({kFire,
                 "To set the clockspeed to 95 or over, please acknowledge that you\r\n"
                 "really really really know what you are doing.",
                 0, false, true, kFireButtons});
    Pick("SSTV2_GRXCLK", "95");
}

TEST_F(Overclock, FiftyOnAVoodooAndNinetyOnAVoodoo2AskNothing) {
    Pick("SST_GRXCLK", "50");
    Pick("SSTV2_GRXCLK", "90");
    EXPECT_EQ(Stored(kOptions, "SST_GRXCLK_Setting_Content"), "50");
    EXPECT_EQ(Stored(kOptions, "SSTV2_GRXCLK_Setting_Content"), "90");
}

TEST_F(Overclock, FiftyThreeAndNinetyOneAskOnce) {
    ExpectDanger(0);
    Pick("SST_GRXCLK", "53");
    EXPECT_EQ(Stored(kOptions, "SST_GRXCLK_Setting"), "1");
    EXPECT_EQ(Stored(kOptions, "SST_GRXCLK_Setting_Content"), "53");
    ExpectDanger(0);
    Pick("SSTV2_GRXCLK", "91");
    EXPECT_EQ(Stored(kOptions, "SSTV2_GRXCLK_Setting"), "3");
    EXPECT_EQ(Stored(kOptions, "SSTV2_GRXCLK_Setting_Content"), "91");
}

TEST_F(Overclock, FiftySevenAndNinetyFourStillAskOnce) {
    ExpectDanger(0);
    Pick("SST_GRXCLK", "57");
    ExpectDanger(0);
    Pick("SSTV2_GRXCLK", "94");
}

TEST_F(Overclock, SixtyAndNinetyFiveAskTwice) {
    ExpectDanger(0);
    ExpectFire(0);
    Pick("SST_GRXCLK", "60");
    EXPECT_EQ(Stored(kOptions, "SST_GRXCLK_Setting_Content"), "60");
    ExpectDanger(0);
    ExpectFire(0);
    Pick("SSTV2_GRXCLK", "95");
    EXPECT_EQ(Stored(kOptions, "SSTV2_GRXCLK_Setting_Content"), "95");
}

TEST_F(Overclock, WhoAdmitsNotToKnowFallsBackToTheFirstItem) {
    ExpectDanger(1);
    Pick("SST_GRXCLK", "63");
    EXPECT_EQ(form.BoxOf("SST_GRXCLK").Cbo.ListIndex, 0);
    EXPECT_EQ(Stored(kOptions, "SST_GRXCLK_Setting"), "0");
    EXPECT_EQ(Stored(kOptions, "SST_GRXCLK_Setting_Content"), "50");
    ExpectDanger(1);
    Pick("SSTV2_GRXCLK", "100");
    EXPECT_EQ(form.BoxOf("SSTV2_GRXCLK").Cbo.ListIndex, 0);
    EXPECT_EQ(Stored(kOptions, "SSTV2_GRXCLK_Setting"), "0");
    EXPECT_EQ(Stored(kOptions, "SSTV2_GRXCLK_Setting_Content"), "80");
}

TEST_F(Overclock, WhoAdmitsItInTheSecondBoxFallsBackToo) {
    ExpectDanger(0);
    ExpectFire(1);
    Pick("SST_GRXCLK", "60");
    EXPECT_EQ(form.BoxOf("SST_GRXCLK").Cbo.ListIndex, 0);
    EXPECT_EQ(Stored(kOptions, "SST_GRXCLK_Setting_Content"), "50");
    ExpectDanger(0);
    ExpectFire(1);
    Pick("SSTV2_GRXCLK", "96");
    EXPECT_EQ(Stored(kOptions, "SSTV2_GRXCLK_Setting_Content"), "80");
}

TEST_F(Overclock, WhileAProfileIsLoadedNothingIsAsked) {
    Store(kOptions, "SST_GRXCLK", "1");
    Store(kOptions, "SST_GRXCLK_Setting", "5");
    Store(kOptions, "SSTV2_GRXCLK_Setting", "12");
    Videop(form);
    EXPECT_EQ(form.BoxOf("SST_GRXCLK").Cbo.Selected(), "63");
    EXPECT_EQ(form.BoxOf("SSTV2_GRXCLK").Cbo.Selected(), "100");
}

TEST_F(Overclock, AClickOnADangerousClockWhileLoadingAsksAndSavesNothing) {
    form.ProfileLoading = true;
    Pick("SST_GRXCLK", "63");
    Pick("SSTV2_GRXCLK", "100");
    EXPECT_TRUE(user.Asked.empty());
    EXPECT_EQ(Stored(kOptions, "SST_GRXCLK_Setting"), "(none)");
    EXPECT_EQ(Stored(kOptions, "SSTV2_GRXCLK_Setting"), "(none)");
}

TEST_F(Overclock, OtherTunablesMayBeAnything) {
    EXPECT_TRUE(MayOverclock(run, *FindTunable("SST_SCREENREFRESH"), 120));
}

TEST_F(Overclock, AGameOfNoKnownKindIsNamedUnknown) {
    run.GameKind = Game::None;
    user.Expect({kDanger, "you should be a GLUnknown and 3DFX GOD", 0});
    Pick("SST_GRXCLK", "53");
}

}  // namespace
}  // namespace lv
