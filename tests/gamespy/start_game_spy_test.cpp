#include "gamespy/start_game_spy.h"

#include "tests/gamespy/game_spy_fixture.h"

namespace lv {
namespace {

class StartingGameSpy : public GameSpyTest {
  protected:
    StartingGameSpy() {
        system.Disk.AddFile("C:\\GAMESPY\\GAMESPY.EXE");
        Save(run, kOptions, "GameSpyLocation", "C:\\GAMESPY\\GAMESPY.EXE");
        system.Time.Step = 0.01;
    }
};

TEST_F(StartingGameSpy, StartsTheProgramAndWaitsASecond) {
    const double before = system.Time.Elapsed;
    EXPECT_TRUE(StartGameSpy(run));
    EXPECT_EQ(system.Programs.Started, Lines{"C:\\GAMESPY\\GAMESPY.EXE"});
    EXPECT_GE(system.Time.Elapsed - before, 1.0);
}

TEST_F(StartingGameSpy, BringsARunningOneToTheFrontAndStartsNone) {
    ShowGameSpy("");
    EXPECT_TRUE(StartGameSpy(run));
    EXPECT_EQ(system.Windows.Log, Lines{"front 7"});
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(StartingGameSpy, OpensItsIconFirst) {
    ShowGameSpy("");
    Minimise();
    EXPECT_TRUE(StartGameSpy(run));
    EXPECT_EQ(system.Windows.Log, (Lines{"open 7", "front 7"}));
}

TEST_F(StartingGameSpy, ARunningOneThatStaysBehindIsGoodEnough) {
    ShowGameSpy("");
    system.Windows.RefuseForeground = true;
    EXPECT_TRUE(StartGameSpy(run));
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(StartingGameSpy, WithoutALocationSaysToStartItByHand) {
    Save(run, kOptions, "GameSpyLocation", "");
    ExpectTold("Error",
               "There was an error attempting to launch GameSpy 3D.\r\n"
               "However, GameSpy 3D was configured, and you may now\r\nlaunch GameSpy 3D manually.");
    EXPECT_FALSE(StartGameSpy(run));
}

TEST_F(StartingGameSpy, AProgramThatIsGoneIsAskedFor) {
    (void)system.Disk.Delete("C:\\GAMESPY\\GAMESPY.EXE");
    ExpectTold("Where'd it go?", "Could not locate GameSpy.");
    EXPECT_FALSE(StartGameSpy(run));
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(StartingGameSpy, AProgramThatDoesNotStartIsToldWithItsError) {
    system.Programs.Refuse = {53, "File not found"};
    ExpectTold("Error",
               "There was an error attempting to launch GameSpy 3D.\r\n"
               "However, GameSpy 3D was configured, and you may now\r\nlaunch GameSpy 3D manually.\r\n"
               "Error Number = 53\r\nError Code = EC00410\r\nError String = File not found\r\n"
               "GameSpy Location = C:\\GAMESPY\\GAMESPY.EXE");
    EXPECT_FALSE(StartGameSpy(run));
}

TEST_F(StartingGameSpy, AProgramThatEndsMeanwhileGoesNoFurther) {
    user.OnPump = [this] { EndProgram(run); };
    EXPECT_FALSE(StartGameSpy(run));
}

}  // namespace
}  // namespace lv
