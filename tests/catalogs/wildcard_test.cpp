#include "catalogs/wildcard.h"

#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

TEST(MatchesWildcard, IsBlindToCase) {
    EXPECT_TRUE(MatchesWildcard("CONFIG.CFG", "*.cfg"));
    EXPECT_TRUE(MatchesWildcard("config.cfg", "*.CFG"));
    EXPECT_TRUE(MatchesWildcard("\xC4.cfg", "\xE4.cfg"));
}

TEST(MatchesWildcard, WantsTheWholeName) {
    EXPECT_FALSE(MatchesWildcard("config.cfg.bak", "*.cfg"));
    EXPECT_FALSE(MatchesWildcard("cfg", "*.cfg"));
    EXPECT_TRUE(MatchesWildcard(".cfg", "*.cfg"));
    EXPECT_TRUE(MatchesWildcard("a.cfg.cfg", "*.cfg"));
}

TEST(MatchesWildcard, AQuestionMarkIsOneCharacter) {
    EXPECT_TRUE(MatchesWildcard("pak0.pak", "pak?.pak"));
    EXPECT_FALSE(MatchesWildcard("pak.pak", "pak?.pak"));
    EXPECT_FALSE(MatchesWildcard("pak10.pak", "pak?.pak"));
}

TEST(MatchesWildcard, AStarIsAnyStretch) {
    EXPECT_TRUE(MatchesWildcard("", "*"));
    EXPECT_TRUE(MatchesWildcard("abc", "a*c"));
    EXPECT_TRUE(MatchesWildcard("ac", "a*c"));
    EXPECT_TRUE(MatchesWildcard("axbxc", "a*b*c"));
    EXPECT_FALSE(MatchesWildcard("acb", "a*c"));
    EXPECT_TRUE(MatchesWildcard("abc", "***"));
}

TEST(MatchesWildcard, StarPointStarIsEveryName) {
    EXPECT_TRUE(MatchesWildcard("id1", "*.*"));
    EXPECT_TRUE(MatchesWildcard("a.b", "*.*"));
}

TEST(MatchesWildcard, AnEmptyPatternIsTheEmptyName) {
    EXPECT_TRUE(MatchesWildcard("", ""));
    EXPECT_FALSE(MatchesWildcard("a", ""));
    EXPECT_FALSE(MatchesWildcard("", "?"));
}

TEST(MatchesWildcard, OfAHostilePatternEnds) {
    EXPECT_FALSE(MatchesWildcard(Text(2000, 'a'), "*a*a*a*a*a*a*a*a*a*a*a*a*b"));
}

TEST_F(CatalogsTest, ListFilesKeepsTheFileSystemsOrder) {
    system.Disk.AddFile("C:\\Q\\z.cfg");
    system.Disk.AddFile("C:\\Q\\a.CFG");
    system.Disk.AddFile("C:\\Q\\m.txt");
    system.Disk.AddDirectory("C:\\Q\\dir.cfg");
    EXPECT_EQ(ListFiles(system.Disk, "c:\\q", "*.cfg"), (TextList{"z.cfg", "a.CFG"}));
}

TEST_F(CatalogsTest, ListFilesOfAMissingDirectoryIsEmpty) {
    EXPECT_EQ(ListFiles(system.Disk, "C:\\NOWHERE", "*.cfg"), TextList{});
}

TEST_F(CatalogsTest, ListFilesLeavesPipesAndDevicesOut) {
    system.Disk.AddDevice("C:\\Q\\pipe.cfg");
    system.Disk.AddFile("C:\\Q\\a.cfg");
    EXPECT_EQ(ListFiles(system.Disk, "c:\\q", "*.cfg"), (TextList{"a.cfg"}));
}

}  // namespace
}  // namespace lv
