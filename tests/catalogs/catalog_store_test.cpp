#include "catalogs/catalog_store.h"

#include "foundation/padded_item.h"
#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

TEST(SplitFields, GivesWhatGetFieldGives) {
    EXPECT_EQ(SplitFields("a; b ;;c"), (TextList{"a", "b ", "", "c"}));
    EXPECT_EQ(SplitFields(""), (TextList{""}));
    EXPECT_EQ(SplitFields("a;"), (TextList{"a", ""}));
    EXPECT_EQ(SplitFields("   "), (TextList{""}));
}

TEST(SplitFields, EndsWhereACountEnds) {
    const auto fields = SplitFields(Text(100'000, ';'));
    EXPECT_EQ(fields.size(), 32768U);
}

TEST(SplitRows, OfTenCharactersHoldsNoRecord) {
    const auto rows = SplitRows("abcd;efghi", 2);
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->Count(), 0U);
}

TEST(SplitRows, OfAShortRecordIsEmptyToo) {
    const auto rows = SplitRows("a;b", 2);
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->Count(), 0U);
}

TEST(SplitRows, OfElevenCharactersHoldsOne) {
    const auto rows = SplitRows("abcd;efghij", 2);
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->Count(), 1U);
    EXPECT_EQ(rows->Field(0, 0), "abcd");
    EXPECT_EQ(rows->Field(0, 1), "efghij");
}

TEST(SplitRows, WithHalfARecordIsDamaged) {
    EXPECT_FALSE(SplitRows("one;two;three", 2));
    EXPECT_FALSE(SplitRows("one;two;three;four", 5));
    EXPECT_FALSE(SplitRows("one;two;three;four;", 2));
}

TEST(SplitRows, ShortOddValuesAreNotDamaged) {
    EXPECT_TRUE(SplitRows("a;b;c", 2));
}

TEST(FitsAField, RefusesSeparatorsAndControlCharacters) {
    EXPECT_TRUE(FitsAField("e1m1"));
    EXPECT_TRUE(FitsAField("caf\xE9 \x80\x9F"));
    EXPECT_TRUE(FitsAField(""));
    EXPECT_FALSE(FitsAField("a;b"));
    EXPECT_FALSE(FitsAField("a\nb"));
    EXPECT_FALSE(FitsAField(TextView("a\0b", 3)));
    EXPECT_FALSE(FitsAField("a\x7F"));
}

struct DamageCase {
    const Catalog& Which;
    const char* Key;
    const char* Name;
    const char* Value;
};

class DamagedCatalog : public CatalogsTest, public ::testing::WithParamInterface<DamageCase> {};

TEST_P(DamagedCatalog, IsShownAndEndsTheProgram) {
    Store(GetParam().Key, GetParam().Value);
    ExpectDamage(GetParam().Name, GetParam().Value);
    EXPECT_FALSE(ReadCatalog(run, GetParam().Which));
    EXPECT_TRUE(run.Ended);
    EXPECT_TRUE(user.ProgramEnded);
    EXPECT_EQ(Stored(GetParam().Key), GetParam().Value);
}

INSTANTIATE_TEST_SUITE_P(
    EachCatalog, DamagedCatalog,
    ::testing::Values(DamageCase{kMemory, "Memory", "defaultMem", "8 megabytes;-winmem 8;odd"},
                      DamageCase{kDemos, "Demos", "defaultDemos", "None;playdemo nodemo.dem;odd"},
                      DamageCase{kGames, "Games", "defaultGames", "CTF;-game ctf;odd"},
                      DamageCase{kServers, "NetServers", "defaultServers", "Home;127.0.0.1;27500;1"},
                      DamageCase{kExecutables, "Executables", "defaultExes", "Quake;C:\\quake.exe;odd"},
                      DamageCase{kScripts, "Scripts", "defaultScripts", "My;c:\\my.cfg;odd"}));

TEST_F(CatalogsTest, SaveJoinsTheRows) {
    lists.Demo_Cbo.Items = {MakeItem("None", "playdemo nodemo.dem"), MakeItem(" Mine ", " playdemo a.dem ")};
    EXPECT_TRUE(SaveCatalog(run, lists, "Demos", lists.Demo_Cbo));
    EXPECT_EQ(Stored("Demos"), "None;playdemo nodemo.dem;Mine;playdemo a.dem");
}

TEST_F(CatalogsTest, SaveReadsTheItemsOfAnImageCombo) {
    lists.Exe_Cbo.Items = {{" Quake ", "C:\\quake.exe ", "QUAKE", "QUAKE"}, {"Sin", "C:\\sin.exe", "SIN", "SIN"}};
    EXPECT_TRUE(SaveCatalog(run, lists, "Executables", lists.Exe_Cbo));
    EXPECT_EQ(Stored("Executables"), "Quake;C:\\quake.exe;Sin;C:\\sin.exe");
}

TEST_F(CatalogsTest, SaveAddsTheHiddenRecords) {
    lists.HiddenGames = "Ground Zero;-game rogue";
    lists.HiddenScripts = "My;d:\\my.cfg";
    lists.HiddenServers = "Home;127.0.0.1;27500;1;";
    lists.Game_Cbo.Items = {MakeItem("CTF", "-game ctf")};
    lists.Script_Cbo.Items = {MakeItem("a.cfg", "c:\\a.cfg")};
    lists.Server_Cbo.Items = {MakeItem("Work", "10.0.0.1;26000;0;secret")};
    SaveCatalog(run, lists, "Games", lists.Game_Cbo);
    SaveCatalog(run, lists, "Scripts", lists.Script_Cbo);
    SaveCatalog(run, lists, "NetServers", lists.Server_Cbo);
    EXPECT_EQ(Stored("Games"), "CTF;-game ctf;Ground Zero;-game rogue");
    EXPECT_EQ(Stored("Scripts"), "a.cfg;c:\\a.cfg;My;d:\\my.cfg");
    EXPECT_EQ(Stored("NetServers"), "Work;10.0.0.1;26000;0;secret;Home;127.0.0.1;27500;1;");
}

TEST_F(CatalogsTest, SaveOfNoRowsKeepsTheOtherGamesRows) {
    lists.HiddenGames = "Ground Zero;-game rogue";
    SaveCatalog(run, lists, "Games", lists.Game_Cbo);
    EXPECT_EQ(Stored("Games"), "Ground Zero;-game rogue");
}

TEST_F(CatalogsTest, SaveOfOtherCatalogsAddsNothing) {
    lists.HiddenGames = "Ground Zero;-game rogue";
    lists.Mem_Cbo.Items = {MakeItem("8 megabytes", "-winmem 8")};
    SaveCatalog(run, lists, "Memory", lists.Mem_Cbo);
    EXPECT_EQ(Stored("Memory"), "8 megabytes;-winmem 8");
}

TEST_F(CatalogsTest, SaveOfAnEmptyListIsEmpty) {
    Store("Demos", "None;playdemo nodemo.dem");
    SaveCatalog(run, lists, "Demos", lists.Demo_Cbo);
    EXPECT_EQ(Stored("Demos"), "");
}

TEST_F(CatalogsTest, SaveOfATooLongValueKeepsTheOldOne) {
    Store("Demos", "None;playdemo nodemo.dem");
    lists.Demo_Cbo.Items = {MakeItem("Long", Text(16000, 'x'))};
    user.Expect({"Lorvane 3D", "Attempt to insert too long a string as a value.\r\n"});
    EXPECT_FALSE(SaveCatalog(run, lists, "Demos", lists.Demo_Cbo));
    EXPECT_EQ(Stored("Demos"), "None;playdemo nodemo.dem");
}

TEST_F(CatalogsTest, SaveDoesNotWriteWhatIsThere) {
    lists.Demo_Cbo.Items = {MakeItem("None", "playdemo nodemo.dem")};
    SaveCatalog(run, lists, "Demos", lists.Demo_Cbo);
    SaveCatalog(run, lists, "Demos", lists.Demo_Cbo);
    EXPECT_EQ(system.Settings.Log, (TextList{"Options|Demos|None;playdemo nodemo.dem"}));
}

TEST_F(CatalogsTest, PositionsAreHeldWithinTheRows) {
    Store("GamesPos", "9");
    EXPECT_EQ(StoredPosition(run, "GamesPos", 0, 4), 3);
    EXPECT_EQ(Stored("GamesPos"), "9");
    Store("GamesPos", "-7");
    EXPECT_EQ(StoredPosition(run, "GamesPos", 0, 4), 0);
    EXPECT_EQ(StoredPosition(run, "GamesPos", 0, 0), -1);
    EXPECT_EQ(StoredPosition(run, "MemoryPos", 2, 7), 2);
}

TEST_F(CatalogsTest, ARepairedPositionIsStored) {
    Store("GamesPos", "9");
    EXPECT_EQ(RepairedPosition(run, "GamesPos", 0, 4), 3);
    EXPECT_EQ(Stored("GamesPos"), "3");
}

TEST_F(CatalogsTest, APositionWithoutRowsIsLeftAlone) {
    Store("GamesPos", "2");
    EXPECT_EQ(RepairedPosition(run, "GamesPos", 0, 0), -1);
    EXPECT_EQ(Stored("GamesPos"), "2");
}

TEST_F(CatalogsTest, CheckStatesAreZeroOneOrTwo) {
    Store("UseGames", "2");
    EXPECT_EQ(StoredCheck(run, "UseGames", 1), 2);
    Store("UseGames", "5");
    EXPECT_EQ(StoredCheck(run, "UseGames", 1), 0);
    EXPECT_EQ(StoredCheck(run, "UseMemory", 1), 1);
}

}  // namespace
}  // namespace lv
