#include "catalogs/modifications.h"

#include "foundation/padded_item.h"
#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

struct TitleCase {
    const char* Directory;
    Game Kind;
    const char* Title;
};

class KnownDirectory : public ::testing::TestWithParam<TitleCase> {};

TEST_P(KnownDirectory, HasItsTitle) {
    EXPECT_EQ(ModificationTitle(GetParam().Directory, GetParam().Kind), GetParam().Title);
}

INSTANTIATE_TEST_SUITE_P(
    EachRow, KnownDirectory,
    ::testing::Values(
        TitleCase{"ACTION", Game::Quake2, "Action Quake"}, TitleCase{"AS", Game::Quake, "Aftershock"},
        TitleCase{"ARENA", Game::Quake, "Rocket Arena"}, TitleCase{"HIPNOTIC", Game::Quake, "Scourge of Armagon"},
        TitleCase{"ROGUE", Game::Quake, "Dissolution of Eternity"}, TitleCase{"ROGUE", Game::Quake2, "Ground Zero"},
        TitleCase{"rogue", Game::Hexen2, "rogue"}, TitleCase{"PORTALS", Game::Hexen2, "Portals of Praevus"},
        TitleCase{"CTF", Game::Quake2, "Capture the Flag"}, TitleCase{"LMCTF", Game::Quake2, "Loki's Minions CTF"},
        TitleCase{"SHRAK", Game::Quake, "Shrak"}, TitleCase{"FORTRESS", Game::Quake, "Team Fortress"},
        TitleCase{"ctf", Game::Quake, "Capture the Flag"}, TitleCase{"MyMod", Game::Quake, "MyMod"}));

TEST(DirectoryOfOption, IsTheNameBehindTheSwitch) {
    EXPECT_EQ(DirectoryOfOption("-game ctf"), "ctf");
    EXPECT_EQ(DirectoryOfOption("-game  Team Fortress "), "Team Fortress");
    EXPECT_EQ(DirectoryOfOption("-game"), "");
    EXPECT_EQ(DirectoryOfOption(""), "");
}

class ModificationsTest : public CatalogsTest {
  protected:
    ModificationsTest() { BeInQuake(); }

    void AddGameDirectory(TextView name) { system.Disk.AddFile(Join("C:\\QUAKE\\", name, "\\pak0.pak")); }
};

TEST_F(ModificationsTest, RowsWhoseDirectoryExistsAreShown) {
    system.Disk.AddDirectory("C:\\QUAKE\\CTF");
    Store("Games", "Capture;-game ctf;Gone;-game gone");
    EXPECT_TRUE(FillGamesCombo(run, lists));
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"Capture|-game ctf"}));
    EXPECT_EQ(lists.HiddenGames, "Gone;-game gone");
}

TEST_F(ModificationsTest, TheNameIsTrimmedForTheTest) {
    system.Disk.AddDirectory("C:\\QUAKE\\CTF");
    Store("Games", "Capture;-game  ctf ");
    FillGamesCombo(run, lists);
    EXPECT_EQ(lists.Game_Cbo.Items.size(), 1U);
}

TEST_F(ModificationsTest, AFileIsNoDirectory) {
    system.Disk.AddFile("C:\\QUAKE\\ctf");
    Store("Games", "Capture;-game ctf");
    FillGamesCombo(run, lists);
    EXPECT_EQ(lists.HiddenGames, "Capture;-game ctf");
}

TEST_F(ModificationsTest, GroundZeroIsNotShownInQuake) {
    system.Disk.AddDirectory("C:\\QUAKE\\ROGUE");
    Store("Games", "Ground Zero;-game rogue;Dissolution of Eternity;-game rogue");
    FillGamesCombo(run, lists);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"Dissolution of Eternity|-game rogue"}));
    EXPECT_EQ(lists.HiddenGames, "Ground Zero;-game rogue");
}

TEST_F(ModificationsTest, DissolutionOfEternityIsNotShownInQuakeTwo) {
    run.GameKind = Game::Quake2;
    system.Disk.AddDirectory("C:\\QUAKE\\ROGUE");
    Store("Games", "Ground Zero;-game rogue;Dissolution of Eternity;-game rogue");
    FillGamesCombo(run, lists);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"Ground Zero|-game rogue"}));
    EXPECT_EQ(lists.HiddenGames, "Dissolution of Eternity;-game rogue");
}

TEST_F(ModificationsTest, AThirdGameShowsBothTitlesOfTheDirectory) {
    run.GameKind = Game::Hexen2;
    system.Disk.AddDirectory("C:\\QUAKE\\ROGUE");
    Store("Games", "Ground Zero;-game rogue;Dissolution of Eternity;-game rogue");
    FillGamesCombo(run, lists);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"Ground Zero|-game rogue", "Dissolution of Eternity|-game rogue"}));
    EXPECT_EQ(lists.HiddenGames, "");
}

TEST_F(ModificationsTest, ThePositionIsCutAndSaved) {
    system.Disk.AddDirectory("C:\\QUAKE\\CTF");
    Store("Games", "Capture;-game ctf");
    Store("GamesPos", "4");
    FillGamesCombo(run, lists);
    EXPECT_EQ(lists.Game_Cbo.ListIndex, 0);
    EXPECT_EQ(Stored("GamesPos"), "0");
}

TEST_F(ModificationsTest, ASelectedRowGivesTheBoxItsStoredState) {
    system.Disk.AddDirectory("C:\\QUAKE\\CTF");
    Store("Games", "Capture;-game ctf");
    FillGamesCombo(run, lists);
    EXPECT_EQ(lists.Game_Chk.Value, 1);
    Store("UseGames", "0");
    FillGamesCombo(run, lists);
    EXPECT_EQ(lists.Game_Chk.Value, 0);
}

TEST_F(ModificationsTest, WithoutASelectedRowTheBoxIsCleared) {
    lists.Game_Chk.Value = 1;
    EXPECT_TRUE(FillGamesCombo(run, lists));
    EXPECT_EQ(lists.Game_Cbo.ListIndex, -1);
    EXPECT_EQ(lists.Game_Chk.Value, 0);
}

TEST_F(ModificationsTest, AFillAddsWhatTheScanFindsWithoutSelectingIt) {
    AddGameDirectory("Arena");
    FillGamesCombo(run, lists);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"Rocket Arena|-game Arena"}));
    EXPECT_EQ(lists.Game_Cbo.ListIndex, -1);
    EXPECT_EQ(Stored("Games"), "Rocket Arena;-game Arena");
}

TEST_F(ModificationsTest, ADamagedCatalogClearsTheListAndTheRunGoesOn) {
    AddGameDirectory("ctf");
    lists.Game_Cbo.Items = {MakeItem("Old", "-game old")};
    lists.Game_Cbo.ListIndex = 0;
    lists.Game_Chk.Value = 1;
    Store("Games", "Capture;-game ctf;odd");
    ExpectDamage("defaultGames", "Capture;-game ctf;odd");
    EXPECT_TRUE(FillGamesCombo(run, lists));
    EXPECT_FALSE(run.Ended);
    EXPECT_FALSE(user.ProgramEnded);
    EXPECT_TRUE(lists.Game_Cbo.Items.empty());
    EXPECT_EQ(lists.Game_Chk.Value, 0);
    EXPECT_EQ(Stored("Games"), "Capture;-game ctf;odd");
}

TEST_F(ModificationsTest, AScanFindsPakDatAndMaps) {
    system.Disk.AddFile("C:\\QUAKE\\one\\PAK0.PAK");
    system.Disk.AddFile("C:\\QUAKE\\two\\progs.dat");
    system.Disk.AddDirectory("C:\\QUAKE\\three\\MAPS");
    system.Disk.AddFile("C:\\QUAKE\\four\\readme.txt");
    system.Disk.AddFile("C:\\QUAKE\\five\\maps");
    system.Disk.AddDirectory("C:\\QUAKE\\six\\dir.pak");
    EXPECT_EQ(ScanForGames(run, lists), 3);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"one|-game one", "two|-game two", "three|-game three"}));
    EXPECT_EQ(Stored("Games"), "one;-game one;two;-game two;three;-game three");
}

TEST_F(ModificationsTest, AScanListsTheBaseDirectoryToo) {
    AddGameDirectory("ID1");
    EXPECT_EQ(ScanForGames(run, lists), 1);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"ID1|-game ID1"}));
}

TEST_F(ModificationsTest, AScanPassesOverFiles) {
    system.Disk.AddFile("C:\\QUAKE\\pak0.pak");
    EXPECT_EQ(ScanForGames(run, lists), 0);
}

TEST_F(ModificationsTest, AScanWithoutADirectoryDoesNothing) {
    run.DefaultGameDirectory.clear();
    system.Disk.AddFile("C:\\game\\pak0.pak");
    EXPECT_EQ(ScanForGames(run, lists), 0);
    EXPECT_EQ(system.Settings.Count(), 0U);
}

TEST_F(ModificationsTest, AScanOfAMissingDirectoryFindsNothing) {
    run.DefaultGameDirectory = "q:\\nowhere";
    EXPECT_EQ(ScanForGames(run, lists), 0);
}

TEST_F(ModificationsTest, ASecondScanAddsNothing) {
    AddGameDirectory("ctf");
    EXPECT_EQ(ScanForGames(run, lists), 1);
    EXPECT_EQ(ScanForGames(run, lists), 0);
    EXPECT_EQ(lists.Game_Cbo.Items.size(), 1U);
}

TEST_F(ModificationsTest, AKnownRowIsFoundInAnyCase) {
    AddGameDirectory("CTF");
    lists.Game_Cbo.Items = {MakeItem("Mine", "-game ctf")};
    EXPECT_EQ(ScanForGames(run, lists), 0);
}

// A record has 37 characters here, and there is one more between two.
TEST_F(ModificationsTest, MoreThanTheCatalogHoldsAreToldOfOnceAndLeftOut) {
    for (int i = 1000; i < 1500; ++i) {
        AddGameDirectory("modification" + std::to_string(i).substr(1));
    }
    user.Expect({"More Than a List Shows", "more modifications than the list can show in\r\nc:\\quake"});
    EXPECT_EQ(ScanForGames(run, lists), 421);
    EXPECT_EQ(lists.Game_Cbo.Items.size(), 421U);
    EXPECT_EQ(ScanForGames(run, lists), 0);
}

TEST_F(ModificationsTest, ALongerNameIsNoHit) {
    AddGameDirectory("ctf");
    lists.Game_Cbo.Items = {MakeItem("Longer", "-game ctf2")};
    EXPECT_EQ(ScanForGames(run, lists), 1);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"Longer|-game ctf2", "Capture the Flag|-game ctf"}));
}

TEST_F(ModificationsTest, ALongerNameInFrontHidesNoHit) {
    AddGameDirectory("ctf");
    lists.Game_Cbo.Items = {MakeItem("Longer", "-game ctf2"), MakeItem("Mine", "-game ctf")};
    EXPECT_EQ(ScanForGames(run, lists), 0);
}

TEST_F(ModificationsTest, HalfLifeSkipsItsOwnTwoDirectories) {
    run.GameKind = Game::HalfLife;
    AddGameDirectory("Auth");
    AddGameDirectory("ProfileData");
    AddGameDirectory("tfc");
    EXPECT_EQ(ScanForGames(run, lists), 1);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"tfc|-game tfc"}));
}

TEST_F(ModificationsTest, OtherGamesTakeThem) {
    AddGameDirectory("AUTH");
    EXPECT_EQ(ScanForGames(run, lists), 1);
}

TEST_F(ModificationsTest, AScanKeepsTheHiddenRecords) {
    lists.HiddenGames = "Gone;-game gone";
    AddGameDirectory("ctf");
    ScanForGames(run, lists);
    EXPECT_EQ(Stored("Games"), "Capture the Flag;-game ctf;Gone;-game gone");
}

TEST_F(ModificationsTest, NamesThatWouldBreakTheListAreLeftOut) {
    AddGameDirectory("a;b");
    AddGameDirectory("a\nb");
    EXPECT_EQ(ScanForGames(run, lists), 0);
}

TEST_F(ModificationsTest, AScanEndsAfterAThousandEntries) {
    // ".", ".." and ID1 come first.
    for (int i = 0; i < 996; ++i) {
        system.Disk.AddDirectory("C:\\QUAKE\\d" + std::to_string(i));
    }
    AddGameDirectory("last");  // the 1,000th
    AddGameDirectory("too-late");
    EXPECT_EQ(ScanForGames(run, lists), 1);
    EXPECT_EQ(Rows(lists.Game_Cbo), (TextList{"last|-game last"}));
}

TEST_F(ModificationsTest, PipesAndDevicesMakeNoGameDirectory) {
    system.Disk.AddDevice("C:\\QUAKE\\trap\\pak0.pak");
    EXPECT_EQ(ScanForGames(run, lists), 0);
}

TEST_F(ModificationsTest, ADirectoryIsAddedOnce) {
    run.DefaultGameDirectory = "C:\\QUAKE";
    run.GameKind = Game::Quake;
    EXPECT_TRUE(AddModification(run, lists, "ctf"));
    ASSERT_EQ(lists.Game_Cbo.Items.size(), 1U);
    EXPECT_EQ(ItemTitle(lists.Game_Cbo.Items[0]), "Capture the Flag");
    EXPECT_EQ(ItemValue(lists.Game_Cbo.Items[0]), "-game ctf");
    EXPECT_TRUE(AddModification(run, lists, "CTF"));
    EXPECT_EQ(lists.Game_Cbo.Items.size(), 1U);
}

}  // namespace
}  // namespace lv
