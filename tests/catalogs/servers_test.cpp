#include "catalogs/servers.h"

#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

TEST(ServerTypeName, IsTheGamesName) {
    EXPECT_EQ(ServerTypeName(0), "Quake");
    EXPECT_EQ(ServerTypeName(1), "QuakeWorld");
    EXPECT_EQ(ServerTypeName(2), "Hexen2");
    EXPECT_EQ(ServerTypeName(3), "Quake2");
    EXPECT_EQ(ServerTypeName(4), "Unreal");
    EXPECT_EQ(ServerTypeName(5), "SIN");
    EXPECT_EQ(ServerTypeName(6), "Heretic2");
    EXPECT_EQ(ServerTypeName(7), "Shogo");
    EXPECT_EQ(ServerTypeName(8), "Blood 2");
    EXPECT_EQ(ServerTypeName(9), "Half-Life");
}

TEST(ServerTypeName, OfNoTypeIsEmpty) {
    EXPECT_EQ(ServerTypeName(-1), "");
    EXPECT_EQ(ServerTypeName(10), "");
}

class ServersTest : public CatalogsTest {
  protected:
    static constexpr const char* kThree = "Home;127.0.0.1;26000;0;;World;10.0.0.1;27500;1;secret;Two;10.0.0.2;27910;3;";
};

TEST_F(ServersTest, PlainQuakeWantsTypeZero) {
    run.GameKind = Game::Quake;
    EXPECT_EQ(WantedServerType(run), 0);
    run.IsQuakeWorld = true;
    EXPECT_EQ(WantedServerType(run), 1);
    run.GameKind = Game::HalfLife;
    run.IsQuakeWorld = false;
    EXPECT_EQ(WantedServerType(run), 9);
}

TEST_F(ServersTest, OnlyTheGamesRowsAreShown) {
    BeInQuake();
    Store("NetServers", kThree);
    EXPECT_TRUE(FillServerCombo(run, lists));
    EXPECT_EQ(Rows(lists.Server_Cbo), (TextList{"Home|127.0.0.1;26000;0;"}));
    EXPECT_EQ(lists.HiddenServers, "World;10.0.0.1;27500;1;secret;Two;10.0.0.2;27910;3;");
    EXPECT_EQ(lists.Server_Cbo.ListIndex, 0);
}

TEST_F(ServersTest, QuakeWorldShowsItsOwn) {
    BeInQuake();
    run.IsQuakeWorld = true;
    Store("NetServers", kThree);
    FillServerCombo(run, lists);
    EXPECT_EQ(Rows(lists.Server_Cbo), (TextList{"World|10.0.0.1;27500;1;secret"}));
    EXPECT_EQ(lists.HiddenServers, "Home;127.0.0.1;26000;0;;Two;10.0.0.2;27910;3;");
}

TEST_F(ServersTest, HiddenFieldsAreTrimmed) {
    BeInQuake();
    Store("NetServers", " Two ; 10.0.0.2 ; 27910 ; 3 ; pass ");
    FillServerCombo(run, lists);
    EXPECT_EQ(lists.HiddenServers, "Two;10.0.0.2;27910;3;pass");
}

TEST_F(ServersTest, SavingAfterAFillLosesNothing) {
    BeInQuake();
    Store("NetServers", kThree);
    FillServerCombo(run, lists);
    SaveCatalog(run, lists, "NetServers", lists.Server_Cbo);
    EXPECT_EQ(Stored("NetServers"), kThree);
}

TEST_F(ServersTest, DeletingTheLastRowKeepsTheOtherGames) {
    BeInQuake();
    Store("NetServers", kThree);
    FillServerCombo(run, lists);
    lists.Server_Cbo.Clear();
    SaveCatalog(run, lists, "NetServers", lists.Server_Cbo);
    EXPECT_EQ(Stored("NetServers"), "World;10.0.0.1;27500;1;secret;Two;10.0.0.2;27910;3;");
}

TEST_F(ServersTest, ThePositionComesFromTheKeyOfTheType) {
    run.GameKind = Game::Quake2;
    Store("NetServers", "A;1;2;3;;B;1;2;3;;C;1;2;3;");
    Store("3ServersPos", "1");
    Store("ServerPos", "2");
    FillServerCombo(run, lists);
    EXPECT_EQ(lists.Server_Cbo.ListIndex, 1);
}

TEST_F(ServersTest, APositionBehindTheEndIsCutAndSaved) {
    run.GameKind = Game::Quake2;
    Store("NetServers", "A;1;2;3;;B;1;2;3;");
    Store("3ServersPos", "8");
    FillServerCombo(run, lists);
    EXPECT_EQ(lists.Server_Cbo.ListIndex, 1);
    EXPECT_EQ(Stored("3ServersPos"), "1");
}

TEST_F(ServersTest, WithoutRowsNoPositionIsTouched) {
    run.GameKind = Game::Quake2;
    Store("3ServersPos", "8");
    EXPECT_TRUE(FillServerCombo(run, lists));
    EXPECT_EQ(lists.Server_Cbo.ListIndex, -1);
    EXPECT_EQ(Stored("3ServersPos"), "8");
}

TEST_F(ServersTest, TheBoxTakesItsStoredState) {
    run.GameKind = Game::Quake2;
    lists.Server_Chk.Value = 1;
    FillServerCombo(run, lists);
    EXPECT_EQ(lists.Server_Chk.Value, 0);
    Store("UseServers", "1");
    FillServerCombo(run, lists);
    EXPECT_EQ(lists.Server_Chk.Value, 1);
}

TEST_F(ServersTest, HalfARecordEndsTheProgram) {
    Store("NetServers", "Home;127.0.0.1;26000;0");
    ExpectDamage("defaultServers", "Home;127.0.0.1;26000;0");
    EXPECT_FALSE(FillServerCombo(run, lists));
    EXPECT_TRUE(run.Ended);
}

TEST_F(ServersTest, ASemicolonInATitleShiftsTheFieldsBehindIt) {
    BeInQuake();
    Store("NetServers", "A;B;127.0.0.1;26000;0");
    EXPECT_TRUE(FillServerCombo(run, lists));
    EXPECT_TRUE(lists.Server_Cbo.Items.empty());
    EXPECT_EQ(lists.HiddenServers, "A;B;127.0.0.1;26000;0");
}

}  // namespace
}  // namespace lv
