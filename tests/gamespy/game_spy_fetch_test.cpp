#include "gamespy/game_spy_fetch.h"

#include "tests/gamespy/game_spy_fixture.h"

namespace lv {
namespace {

class GameSpyFetchTest : public GameSpyTest {
  protected:
    Lines Done() { return system.Windows.Log; }
};

TEST_F(GameSpyFetchTest, GivesAddressAndPort) {
    ShowGameSpy("43 10.0.0.1 27500 Home");
    EXPECT_EQ(GameSpyFetch(run), "10.0.0.1:27500");
    EXPECT_EQ(Done(), (Lines{"front 7", "keys %s", "keys c"}));
    EXPECT_EQ(user.WindowCalls, Lines{"raise"});
}

TEST_F(GameSpyFetchTest, GivesTheWholeTextInRawMode) {
    ShowGameSpy("no address,\r\nno port");
    EXPECT_EQ(GameSpyFetch(run, true), "no address,\r\nno port");
}

TEST_F(GameSpyFetchTest, WaitsASecondForTheWindowAndOneForTheClipboard) {
    ShowGameSpy("10.0.0.1:27500");
    std::vector<std::pair<Text, double>> at;
    const auto copies = system.Windows.OnKeys;
    system.Windows.OnKeys = [&](std::string_view keys) {
        at.emplace_back(keys, system.Time.Elapsed);
        copies(keys);
    };
    GameSpyFetch(run);
    ASSERT_EQ(at.size(), 2u);
    EXPECT_GE(at[0].second, 1.0);
    EXPECT_EQ(at[1].second, at[0].second);
    EXPECT_GE(system.Time.Elapsed, at[1].second + 1.0);
    EXPECT_GT(user.Pumps, 0);
}

TEST_F(GameSpyFetchTest, WithoutAWindowSaysSo) {
    ExpectTold("Error Looking for GameSpy 3D", "GameSpy 3D was not found.");
    EXPECT_EQ(GameSpyFetch(run), "");
    EXPECT_TRUE(Done().empty());
}

TEST_F(GameSpyFetchTest, WithoutADesktopSaysSo) {
    Platform bare = system.Services;
    bare.Windows = nullptr;
    lv::Run alone(bare, user);
    ExpectTold("Error Looking for GameSpy 3D", "GameSpy 3D was not found.");
    EXPECT_EQ(GameSpyFetch(alone), "");
}

TEST_F(GameSpyFetchTest, AnIconicWindowComesUpIsUsedAndIsClosedToAnIconAgain) {
    ShowGameSpy("10.0.0.1:27500");
    Minimise();
    EXPECT_EQ(GameSpyFetch(run), "10.0.0.1:27500");
    EXPECT_EQ(Done(), (Lines{"open 7", "front 7", "keys %s", "keys c", "close 7"}));
    EXPECT_TRUE(system.Windows.IsIconic(kWindow));
}

TEST_F(GameSpyFetchTest, AWindowThatStaysBehindGivesNoData) {
    ShowGameSpy("10.0.0.1:27500");
    Minimise();
    system.Windows.RefuseForeground = true;
    ExpectTold("Error Getting GameSpy Data", "No data was retrieved from GameSpy");
    EXPECT_EQ(GameSpyFetch(run), "");
    EXPECT_EQ(Done(), (Lines{"open 7", "front 7"}));
}

TEST_F(GameSpyFetchTest, KeysThatNobodyMayPressGiveNoDataAndNothingOld) {
    ShowGameSpy("");
    Minimise();
    system.Clip.Held = "10.9.9.9:27500";
    system.Windows.RefuseKeys = MakeError(error::kPermissionDenied);
    ExpectTold("Error Getting GameSpy Data", "No data was retrieved from GameSpy");
    EXPECT_EQ(GameSpyFetch(run), "");
    EXPECT_EQ(Done(), (Lines{"open 7", "front 7", "close 7"}));
    EXPECT_EQ(user.WindowCalls, Lines{"raise"});
}

TEST_F(GameSpyFetchTest, VersionOneHasItsCopyInTheEditMenu) {
    ShowGameSpy("10.0.0.1:27500", "GameSpy 3D 1.52", "%e");
    EXPECT_EQ(GameSpyFetch(run), "10.0.0.1:27500");
}

TEST_F(GameSpyFetchTest, VersionTwoCountsBeforeVersionOne) {
    ShowGameSpy("10.0.0.1:27500", "[UNREGISTERED] GameSpy 3D 2.1.0", "%s");
    EXPECT_EQ(GameSpyFetch(run), "10.0.0.1:27500");
}

TEST_F(GameSpyFetchTest, AnUnknownVersionIsTakenForTheNewest) {
    ShowGameSpy("10.0.0.1:27500", "GameSpy 3D", "%s");
    EXPECT_EQ(GameSpyFetch(run), "10.0.0.1:27500");
}

TEST_F(GameSpyFetchTest, TheVersionMayStandBehindTheSearchedPartOfTheTitle) {
    ShowGameSpy("10.0.0.1:27500", "GameSpy 3D" + Text(300, '-') + " 1.52", "%e");
    EXPECT_EQ(GameSpyFetch(run), "10.0.0.1:27500");
}

TEST_F(GameSpyFetchTest, AnEmptyClipboardHasNoAddress) {
    ShowGameSpy("");
    ExpectTold("Error Getting GameSpy Data", "Could not assemble IP address from data");
    EXPECT_EQ(GameSpyFetch(run), "");
    EXPECT_EQ(user.Asked.size(), 1u);
}

TEST_F(GameSpyFetchTest, AnEmptyClipboardIsNoDataInRawMode) {
    ShowGameSpy(" \r\n");
    ExpectTold("Error Getting GameSpy Data", "No data was retrieved from GameSpy");
    EXPECT_EQ(GameSpyFetch(run, true), "");
    EXPECT_EQ(user.Asked.size(), 1u);
}

TEST_F(GameSpyFetchTest, ATextWithoutAnAddressIsRefused) {
    ShowGameSpy("no address here");
    ExpectTold("Error Getting GameSpy Data", "Could not assemble IP address from data");
    EXPECT_EQ(GameSpyFetch(run), "");
}

TEST_F(GameSpyFetchTest, APortOfTwoCharactersIsRefused) {
    ShowGameSpy("10.0.0.1:27");
    ExpectTold("Error Getting GameSpy Data", "Could not assemble Port from data");
    EXPECT_EQ(GameSpyFetch(run), "");
}

TEST_F(GameSpyFetchTest, AProgramThatEndsMeanwhilePressesNoKeys) {
    ShowGameSpy("10.0.0.1:27500");
    user.OnPump = [this] { run.Ended = true; };
    EXPECT_EQ(GameSpyFetch(run), "");
    EXPECT_EQ(Done(), Lines{"front 7"});
}

TEST_F(GameSpyFetchTest, AProgramThatEndsBehindTheKeysTakesNothing) {
    ShowGameSpy("10.0.0.1:27500");
    user.OnPump = [this] { run.Ended = !Done().empty() && Done().back() == "keys c"; };
    EXPECT_EQ(GameSpyFetch(run), "");
    EXPECT_TRUE(run.Ended);
}

/// Notes the window among what is done to the others.
class RaisingUser : public ScriptedUser {
  public:
    explicit RaisingUser(std::vector<std::string>& log) : log_(log) {}
    void RaiseMainWindow() override { log_.emplace_back("raise"); }

  private:
    std::vector<std::string>& log_;
};

TEST_F(GameSpyFetchTest, TheMainWindowIsBackBeforeGameSpyBecomesAnIconAgain) {
    RaisingUser raising(system.Windows.Log);
    lv::Run own(system.Services, raising);
    ShowGameSpy("10.0.0.1:27500");
    Minimise();
    EXPECT_EQ(GameSpyFetch(own), "10.0.0.1:27500");
    EXPECT_EQ(Done(), (Lines{"open 7", "front 7", "keys %s", "keys c", "raise", "close 7"}));
}

}  // namespace
}  // namespace lv
