#include "games/games.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

struct FilterCase {
    Game Kind;
    const char* Scripts;
    const char* Demos;
    const char* Extension;
};

class Filters : public ::testing::TestWithParam<FilterCase> {};

TEST_P(Filters, AreTheGames) {
    const GameFacts& row = FactsOf(GetParam().Kind);
    EXPECT_EQ(row.GameKind, GetParam().Kind);
    EXPECT_EQ(row.ScriptFilter, GetParam().Scripts);
    EXPECT_EQ(row.DemoFilter, GetParam().Demos);
    EXPECT_EQ(row.ScriptExtension, GetParam().Extension);
}

INSTANTIATE_TEST_SUITE_P(
    EachRow, Filters,
    ::testing::Values(FilterCase{Game::Quake, "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*",
                                 "Quake Demonstrations (*.dem;*.qwd)|*.dem;*.qwd|All Files (*.*)|*.*", ".qs"},
                      FilterCase{Game::Hexen2, "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*",
                                 "Hexen Demonstrations (*.dem)|*.dem|All Files (*.*)|*.*", ".hs"},
                      FilterCase{Game::Quake2, "Quake2 Scripts (*.cfg, *.q2s)|*.cfg;*.q2s|All Files (*.*)|*.*",
                                 "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*", ".q2s"},
                      FilterCase{Game::Sin, "SIN Scripts (*.cfg, *.sns)|*.cfg;*.sns|All Files (*.*)|*.*",
                                 "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*", ".sns"},
                      FilterCase{Game::Heretic2, "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*",
                                 "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*", ".cfg"},
                      FilterCase{Game::HalfLife, "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*",
                                 "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*", ".cfg"},
                      FilterCase{Game::Unreal, "Unreal INIs (*.ini)|*.ini|All Files (*.*)|*.*", "", ".ini"}));

TEST(FactsOf, NoGameHasNone) {
    for (const Game kind : {Game::None, Game{7}, Game{8}, Game{-1}}) {
        const GameFacts& row = FactsOf(kind);
        EXPECT_EQ(row.GameKind, Game::None);
        EXPECT_EQ(row.ScriptFamily, Dialect::None);
        EXPECT_EQ(row.Name, "Unknown");
        EXPECT_EQ(row.BaseGameDir, "");
        EXPECT_EQ(row.ScriptFilter, "");
        EXPECT_EQ(row.DemoFilter, "");
        EXPECT_EQ(row.ScriptExtension, "");
    }
}

TEST(FactsOf, NamesAGameAsQuestionsDo) {
    EXPECT_EQ(FactsOf(Game::None).Name, "Unknown");
    EXPECT_EQ(FactsOf(Game::Quake).Name, "Quake");
    EXPECT_EQ(FactsOf(Game::Hexen2).Name, "Hexen2");
    EXPECT_EQ(FactsOf(Game::Quake2).Name, "Quake2");
    EXPECT_EQ(FactsOf(Game::Unreal).Name, "Unreal");
    EXPECT_EQ(FactsOf(Game::Sin).Name, "Sin");
    EXPECT_EQ(FactsOf(Game::Heretic2).Name, "Heretic2");
    EXPECT_EQ(FactsOf(Game::HalfLife).Name, "Half-Life");
}

TEST(FactsOf, KnowsTheWizardsRow) {
    EXPECT_EQ(FactsOf(Game::Quake).WizardRow, 0U);
    EXPECT_EQ(FactsOf(Game::Hexen2).WizardRow, 1U);
    EXPECT_EQ(FactsOf(Game::Quake2).WizardRow, 2U);
    EXPECT_EQ(FactsOf(Game::Unreal).WizardRow, 3U);
    EXPECT_EQ(FactsOf(Game::Sin).WizardRow, 4U);
    EXPECT_EQ(FactsOf(Game::Heretic2).WizardRow, 5U);
    EXPECT_EQ(FactsOf(Game::HalfLife).WizardRow, 8U);
    EXPECT_EQ(FactsOf(Game::None).WizardRow, kWizardRows);
}

TEST(BaseDirectoryOf, IsInLowerCase) {
    EXPECT_EQ(BaseDirectoryOf(FactsOf(Game::Quake)), "id1");
    EXPECT_EQ(BaseDirectoryOf(FactsOf(Game::Hexen2)), "data1");
    EXPECT_EQ(BaseDirectoryOf(FactsOf(Game::Quake2)), "baseq2");
    EXPECT_EQ(BaseDirectoryOf(FactsOf(Game::Unreal)), "maps");
    EXPECT_EQ(BaseDirectoryOf(FactsOf(Game::Sin)), "base");
    EXPECT_EQ(BaseDirectoryOf(FactsOf(Game::Heretic2)), "base");
    EXPECT_EQ(BaseDirectoryOf(FactsOf(Game::HalfLife)), "valve");
}

TEST(FactsOf, OnlySinHasArchivesOfItsOwn) {
    for (const GameFacts& game : AllGames()) {
        const bool isSin = game.GameKind == Game::Sin;
        EXPECT_EQ(game.Archives, isSin ? "*.sin" : "*.pak") << game.Name;
        EXPECT_EQ(game.ArchiveMark, isSin ? "SPAK" : "PACK") << game.Name;
    }
    EXPECT_EQ(FactsOf(Game::None).Archives, "*.pak");
}

struct TreeCase {
    const char* Directory;  // of the executable
    const char* Below;      // what stands below it
    Game Kind;
    Dialect Family;
    const char* Base;
};

class GameTree : public ::testing::TestWithParam<TreeCase> {};

TEST_P(GameTree, IsToldByItsDirectories) {
    MemoryFiles files;
    files.AddDirectory(Join(GetParam().Directory, "\\", GetParam().Below));
    const GameFacts facts = FactsOfDirectory(files, GetParam().Directory);
    EXPECT_EQ(facts.GameKind, GetParam().Kind);
    EXPECT_EQ(facts.ScriptFamily, GetParam().Family);
    EXPECT_EQ(facts.BaseGameDir, GetParam().Base);
}

INSTANTIATE_TEST_SUITE_P(EachRow, GameTree,
                         ::testing::Values(TreeCase{"c:\\quake", "ID1", Game::Quake, Dialect::Quake, "ID1"},
                                           TreeCase{"c:\\hexen2", "data1", Game::Hexen2, Dialect::Quake, "DATA1"},
                                           TreeCase{"c:\\quake2", "baseq2", Game::Quake2, Dialect::Quake2, "BASEQ2"},
                                           TreeCase{"c:\\unreal\\system", "editor", Game::Unreal, Dialect::Unreal,
                                                    "MAPS"},
                                           TreeCase{"c:\\sin", "base", Game::Sin, Dialect::Quake2, "BASE"},
                                           TreeCase{"c:\\heretic2", "base", Game::Heretic2, Dialect::Quake2, "BASE"},
                                           TreeCase{"c:\\half-life", "valve", Game::HalfLife, Dialect::Quake2, "VALVE"},
                                           TreeCase{"c:\\doom", "wads", Game::None, Dialect::None, ""},
                                           TreeCase{"c:\\doom", "base", Game::None, Dialect::None, ""},
                                           TreeCase{"c:\\sin", "wads", Game::None, Dialect::None, ""},
                                           TreeCase{"c:\\unreal", "system", Game::None, Dialect::None, ""},
                                           // A plain test of the directory's text.
                                           TreeCase{"c:\\Games\\Sinistar", "base", Game::Sin, Dialect::Quake2, "BASE"},
                                           TreeCase{"c:\\sin\\heretic", "base", Game::Sin, Dialect::Quake2, "BASE"},
                                           TreeCase{"d:\\UnReal\\SysTem", "x", Game::Unreal, Dialect::Unreal, "MAPS"}));

TEST(FactsOfDirectory, TheOrderOfTheTableCounts) {
    MemoryFiles files;
    files.AddDirectory("C:\\SIN\\valve");
    EXPECT_EQ(FactsOfDirectory(files, "c:\\sin").GameKind, Game::HalfLife);
    files.AddDirectory("C:\\SIN\\base");
    EXPECT_EQ(FactsOfDirectory(files, "c:\\sin").GameKind, Game::Sin);
    files.AddDirectory("C:\\SIN\\baseq2");
    EXPECT_EQ(FactsOfDirectory(files, "c:\\sin").GameKind, Game::Quake2);
    files.AddDirectory("C:\\SIN\\data1");
    EXPECT_EQ(FactsOfDirectory(files, "c:\\sin").GameKind, Game::Hexen2);
    files.AddDirectory("C:\\SIN\\id1");  // a left-over "id1" makes it Quake
    EXPECT_EQ(FactsOfDirectory(files, "c:\\sin").GameKind, Game::Quake);
}

TEST(FactsOfDirectory, AFileIsNoDataDirectory) {
    MemoryFiles files;
    files.AddFile("C:\\QUAKE\\id1");
    EXPECT_EQ(FactsOfDirectory(files, "c:\\quake").GameKind, Game::None);
}

TEST(FactsOfDirectory, UnrealStandsBetweenQuake2AndSinAndHeretic2AheadOfHalfLife) {
    MemoryFiles files;
    files.AddDirectory("C:\\SIN\\UNREAL\\SYSTEM\\base");
    EXPECT_EQ(FactsOfDirectory(files, "c:\\sin\\unreal\\system").GameKind, Game::Unreal);
    files.AddDirectory("C:\\SIN\\UNREAL\\SYSTEM\\baseq2");
    EXPECT_EQ(FactsOfDirectory(files, "c:\\sin\\unreal\\system").GameKind, Game::Quake2);
    files.AddDirectory("C:\\HERETIC2\\valve");
    files.AddDirectory("C:\\HERETIC2\\base");
    EXPECT_EQ(FactsOfDirectory(files, "c:\\heretic2").GameKind, Game::Heretic2);
}

}  // namespace
}  // namespace lv
