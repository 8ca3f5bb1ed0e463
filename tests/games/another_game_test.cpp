// A game more is a row more: with one row in each table all that is looked up of it follows.

#include <gtest/gtest.h>

#include <vector>

#include "games/games.h"
#include "games/programs.h"
#include "games/trees/game_tree.h"
#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

constexpr Game kRubicon{10};
constexpr std::size_t kItsRow = kWizardRows;
constexpr std::size_t kItsSlot = kSpySlots;

class AnotherGame : public ::testing::Test {
  protected:
    AnotherGame() : games(AllGames().begin(), AllGames().end()), programs(AllPrograms().begin(), AllPrograms().end()) {
        games.push_back({.GameKind = kRubicon,
                         .ScriptFamily = Dialect::Quake2,
                         .Name = "Rubicon",
                         .How = TreeTest::Below,
                         .BaseGameDir = "DATA",
                         .Data = {.FullWithin = {"data2.pak"}, .MissionPacks = {"more"}},
                         .WizardRow = kItsRow,
                         .ScriptFilter = "Rubicon Scripts (*.cfg)|*.cfg",
                         .DemoFilter = "",
                         .ScriptExtension = ".cfg"});
        programs.push_back({.FileName = "rubicon.exe",
                            .GameKind = kRubicon,
                            .Picture = "RUBICON",
                            .Traits = program_trait::kSoftware,
                            .WizardRow = kItsRow,
                            .EntryTitle = "Rubicon",
                            .SearchedAs = "Rubicon.exe",
                            .SpySlot = kItsSlot});
        disk.AddDirectory("C:\\RUBICON\\DATA");
    }

    std::vector<GameFacts> games;
    std::vector<Program> programs;
    MemoryFiles disk;
};

TEST_F(AnotherGame, IsToldByItsDirectory) {
    const GameFacts& facts = FactsOfDirectory(disk, "C:\\RUBICON", games);
    EXPECT_EQ(facts.GameKind, kRubicon);
    EXPECT_EQ(facts.ScriptFamily, Dialect::Quake2);
    EXPECT_EQ(facts.BaseGameDir, "DATA");
    EXPECT_EQ(FactsOfDirectory(disk, "C:\\RUBICON").GameKind, Game::None);
}

TEST_F(AnotherGame, IsFoundByItsData) {
    disk.AddFile("C:\\RUBICON\\Data\\data1.pak");
    disk.AddFile("C:\\RUBICON\\More\\more.pak");
    const auto entries = disk.List("C:\\RUBICON").Value;
    const auto tree = TreeIn(disk, "C:\\RUBICON", entries, games);
    ASSERT_TRUE(tree);
    EXPECT_EQ(tree->GameKind, kRubicon);
    EXPECT_FALSE(tree->IsFull);
    EXPECT_EQ(tree->MissionPacks, (std::vector<Text>{"More"}));
    EXPECT_FALSE(TreeIn(disk, "C:\\RUBICON", entries));
    disk.AddFile("C:\\RUBICON\\Data\\data2.pak");
    EXPECT_TRUE(TreeIn(disk, "C:\\RUBICON", entries, games)->IsFull);
}

TEST_F(AnotherGame, HasItsNameAndItsFilters) {
    EXPECT_EQ(FactsOf(kRubicon, games).Name, "Rubicon");
    EXPECT_EQ(FactsOf(kRubicon, games).ScriptFilter, "Rubicon Scripts (*.cfg)|*.cfg");
    EXPECT_EQ(FactsOf(kRubicon, games).Archives, "*.pak");
    EXPECT_EQ(FactsOf(kRubicon).Name, "Unknown");
}

TEST_F(AnotherGame, HasItsPictureAtOnceAndAtTheNextStart) {
    EXPECT_EQ(ImageKeyOf("Rubicon.EXE", programs), "RUBICON");
    EXPECT_EQ(NewExeImageKeyOf("rubicon.exe", programs), "RUBICON");
    EXPECT_EQ(ImageKeyOf("rubicon.exe"), "QUESTION");
}

TEST_F(AnotherGame, HasItsRowInTheWizard) {
    EXPECT_EQ(WizardRowOf("rubicon.exe", programs), kItsRow);
    EXPECT_EQ(SearchedProgram(kItsRow, programs), "Rubicon.exe");
    EXPECT_EQ(WizardRowOf("rubicon.exe"), std::nullopt);
}

TEST_F(AnotherGame, HasItsSlotInGameSpy) {
    EXPECT_EQ(SpySlotOf("rubicon.exe", programs), kItsSlot);
    EXPECT_EQ(SpySlotOf("rubicon.exe"), std::nullopt);
}

TEST_F(AnotherGame, IsKnownByItsPathToDrawWithoutTheCard) {
    EXPECT_FALSE(FlagsOfPath(kRubicon, "c:\\rubicon\\rubicon.exe", programs).UsesAccelerator);
    EXPECT_TRUE(FlagsOfPath(kRubicon, "c:\\rubicon\\rubicon.exe").UsesAccelerator);
    EXPECT_TRUE(FlagsOfPath(Game::Quake, "c:\\rubicon\\rubicon.exe", programs).UsesAccelerator);
}

TEST_F(AnotherGame, ChangesNothingForTheOthers) {
    disk.AddDirectory("C:\\QUAKE\\ID1");
    EXPECT_EQ(FactsOfDirectory(disk, "C:\\QUAKE", games).GameKind, Game::Quake);
    for (const Program& program : AllPrograms()) {
        EXPECT_EQ(ImageKeyOf(program.FileName, programs), ImageKeyOf(program.FileName));
        EXPECT_EQ(WizardRowOf(program.FileName, programs), WizardRowOf(program.FileName));
    }
}

}  // namespace
}  // namespace lv
