#include "launcher/start/start_repairs.h"

#include "tests/support/launcher_fixture.h"

namespace lv {

namespace {

class StartRepairs : public LauncherTest {
  protected:
    /// What was written to Options since.
    std::vector<std::string> Written() { return system.Settings.Log; }
    void Store(TextView key, TextView value) {
        Save(run, kOptions, key, value);
        system.Settings.Log.clear();
    }
};

}  // namespace

TEST_F(StartRepairs, AProfileListLosesBothSemicolonsAtItsEnd) {
    Store("VideoProfileList", "Base;Mine;;");
    RepairVideoProfileList(run);
    EXPECT_EQ(Stored(kOptions, "VideoProfileList"), "Base;Mine");
}

TEST_F(StartRepairs, AProfileListOfSemicolonsAloneBecomesEmpty) {
    Store("VideoProfileList", ";;");
    RepairVideoProfileList(run);
    EXPECT_EQ(Stored(kOptions, "VideoProfileList"), "");
}

TEST_F(StartRepairs, AProfileListInOrderIsNotWritten) {
    Store("VideoProfileList", "Base;Mine");
    RepairVideoProfileList(run);
    EXPECT_TRUE(Written().empty());
}

TEST_F(StartRepairs, ExecutablesAreStoredBackWithBackslashes) {
    Store("Executables", "Quake;c:/quake/quake.exe;Sin;c:\\sin/sin.exe");
    RepairExecutables(run);
    EXPECT_EQ(Stored(kOptions, "Executables"), "Quake;c:\\quake\\quake.exe;Sin;c:\\sin\\sin.exe");
}

TEST_F(StartRepairs, ExecutablesWithoutSlashesAreNotWritten) {
    Store("Executables", "Quake;c:\\quake\\quake.exe");
    RepairExecutables(run);
    EXPECT_TRUE(Written().empty());
}

TEST_F(StartRepairs, TwoRowsOfOneSubdirectoryBecomeTheFirst) {
    Store("Games", "A;-game x;B;-game x");
    RepairGames(run);
    EXPECT_EQ(Stored(kOptions, "Games"), "A;-game x");
}

TEST_F(StartRepairs, AListOfGamesWithAnOddFieldIsStoredBackWithoutIt) {
    Store("Games", "A;-game x;B");
    RepairGames(run);
    EXPECT_EQ(Stored(kOptions, "Games"), "A;-game x");
}

TEST_F(StartRepairs, GamesWithoutDuplicatesAreNotWritten) {
    Store("Games", "A;-game x;B;-game y");
    RepairGames(run);
    EXPECT_TRUE(Written().empty());
}

TEST(WithoutDuplicateGames, ComparesOptionTextsAndNotNames) {
    EXPECT_EQ(WithoutDuplicateGames("A;-game x;A;-game y"), "A;-game x;A;-game y");
}

TEST(WithoutDuplicateGames, LooksForTheOptionTextAnywhereInTheRebuiltValue) {
    EXPECT_EQ(WithoutDuplicateGames("A;-game x2;B;2"), "A;-game x2");
}

TEST(WithoutDuplicateGames, MindsLetterCase) {
    EXPECT_EQ(WithoutDuplicateGames("A;-game X;B;-game x"), "A;-game X;B;-game x");
}

TEST(WithoutDuplicateGames, KeepsTheSemicolonOfAValueOfFiveCharacters) {
    EXPECT_EQ(WithoutDuplicateGames("a;bc"), "a;bc;");
    EXPECT_EQ(WithoutDuplicateGames("a;bcd"), "a;bcd");
}

TEST(WithoutDuplicateGames, DropsASemicolonBehindTheLastPair) {
    EXPECT_EQ(WithoutDuplicateGames("A;-game x;"), "A;-game x");
}

TEST(WithoutDuplicateGames, DropsANameWithoutAnOptionText) {
    EXPECT_EQ(WithoutDuplicateGames("A;-game x;B"), "A;-game x");
    EXPECT_EQ(WithoutDuplicateGames("A;-game x;B;-game y;C"), "A;-game x;B;-game y");
    EXPECT_EQ(WithoutDuplicateGames("Alone"), "");
}

TEST(WithoutDuplicateGames, OfNothingIsNothing) {
    EXPECT_EQ(WithoutDuplicateGames(""), "");
}

}  // namespace lv
