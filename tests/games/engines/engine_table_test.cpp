#include "games/engines/engine_table.h"

#include <gtest/gtest.h>

#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

const Text kHeader = "name\tprograms\tgames\tlimit\n";

using Lines = std::vector<Text>;

Lines FaultsOf(const Text& row) {
    return ReadEngines("", kHeader + row).Faults;
}

TEST(ReadEngines, PutsTheUsersRowsFirstAndInPlaceOfThoseOfTheSameName) {
    const Text shipped = "name\tprograms\tgames\nOne\tone\tquake\nTwo\ttwo\tquake\n";
    const EngineTable table = ReadEngines(shipped, "name\tprograms\tgames\nNew\tnew\tsin\nTWO\tother\tquake2\n");
    ASSERT_EQ(table.Engines.size(), 3U);
    EXPECT_EQ(table.Engines[0].Name, "New");
    EXPECT_EQ(table.Engines[1].Name, "One");
    EXPECT_EQ(table.Engines[2].Name, "TWO");
    EXPECT_EQ(table.Engines[2].Programs, Lines{"other"});
    EXPECT_EQ(EngineOf(table, "two"), nullptr);
    EXPECT_EQ(table.Faults, Lines());
}

TEST(ReadEngines, TakesColumnsInAnyOrderAndTheCarefulChoiceWhereOneIsMissing) {
    const EngineTable table = ReadEngines("", "\xEF\xBB\xBF# mine\r\n\r\ngames\tname\tprograms\r\nquake\tX\tx-*\r\n");
    ASSERT_EQ(table.Engines.size(), 1U);
    const Engine& engine = table.Engines[0];
    EXPECT_EQ(engine.Name, "X");
    EXPECT_EQ(engine.Ends, CommandEnd::AnySign);
    EXPECT_FALSE(engine.KeepsQuotes);
    ASSERT_EQ(engine.DataWays.size(), 1U);
    EXPECT_EQ(engine.DataWays[0].How, DataWay::Sort::WorkingDirectory);
    EXPECT_EQ(EngineOf(table, "X-9.EXE"), &engine);
}

TEST(ReadEngines, HasNothingOfEmptyTexts) {
    const EngineTable table = ReadEngines("", "");
    EXPECT_TRUE(table.Engines.empty());
    EXPECT_EQ(table.Faults, Lines());
}

struct FaultCase {
    const char* Row;
    const char* Fault;
};

constexpr FaultCase kFaults[] = {
    {"X\tx\tqake", "line 2: no such game: qake"},
    {"X\tx\tquake\t255", "line 2: two numbers are wanted, characters and arguments: 255"},
    {"X\tx\t-", "line 2: nothing stands in column \"games\""},
    {"\tx\tquake", "line 2: nothing stands in column \"name\""},
    {"X\t\tquake", "line 2: nothing stands in column \"programs\""},
    {"X\tx\tquake\t1 2\tmore", "line 2: more cells than there are columns"},
    {"X\tx\tquake\nx\ty\tquake", "line 3: there is a row of that name already: x"},
};

TEST(ReadEngines, SaysWhatIsWrongWithARowAndLeavesItOut) {
    for (const FaultCase& row : kFaults) {
        EXPECT_EQ(FaultsOf(row.Row), Lines{row.Fault}) << row.Row;
        EXPECT_LE(ReadEngines("", kHeader + row.Row).Engines.size(), 1U);
    }
    EXPECT_TRUE(ReadEngines("", kHeader + "X\tx\tqake").Engines.empty());
}

TEST(ReadEngines, KeepsTheShippedRowWhereTheUsersHasAFault) {
    const EngineTable table = ReadEngines(ShippedEngineText(), "name\tprograms\tgames\nvkQuake\tv\tqake\n");
    EXPECT_EQ(table.Faults, Lines{"line 2: no such game: qake"});
    EXPECT_NE(EngineOf(table, "vkquake"), nullptr);
}

TEST(ReadEngines, WantsAHeader) {
    EXPECT_EQ(ReadEngines("", "programs\tgames\nx\tquake\n").Faults,
              Lines{"line 1: the first row names the columns, and has no \"name\""});
    EXPECT_EQ(ReadEngines("", "name\tprograms\tgames\tcolour\nX\tx\tquake\tred\n").Faults,
              Lines{"line 1: no such column: colour"});
    EXPECT_EQ(ReadEngines("", "name\tprograms\tgames\tcolour\nX\tx\tquake\tred\n").Engines.size(), 1U);
}

TEST(ReadEngines, ReadsNoMoreThanAMegabyteAndTenThousandRows) {
    EXPECT_EQ(ReadEngines("", Text(kLargestEngineTable + 1, 'x')).Faults,
              Lines{"the table has more than 1 MB and is not read"});
    Text many = "name\tprograms\tgames\n";
    for (int i = 0; i <= 10'000; ++i) {
        many += "E" + std::to_string(i) + "\te\tquake\n";
    }
    const EngineTable table = ReadEngines("", many);
    EXPECT_EQ(table.Engines.size(), 10'000U);
    EXPECT_EQ(table.Faults, Lines{"line 10002: the table has more than 10,000 rows, and the rest is not read"});
}

TEST(ReadEngines, ReadsNoMoreThanAThousandPatternsAndSaysNoMoreThanAHundredFaults) {
    Text many = "name\tprograms\tgames\n";
    Text bad = many;
    for (int i = 0; i <= 1'000; ++i) {
        many += "E" + std::to_string(i) + "\te*\tquake\n";
        bad += "E\te\tno\n";
    }
    EXPECT_EQ(ReadEngines("", many).Engines.size(), 1'000U);
    EXPECT_EQ(ReadEngines("", bad).Faults.size(), 100U);
}

TEST(ReadEngines, TakesAnyBytes) {
    Text bytes;
    for (int i = 0; i < 4'096; ++i) {
        bytes += static_cast<char>((i * 73) % 256);
    }
    EXPECT_TRUE(ReadEngines(bytes, kHeader + bytes).Engines.empty());
}

TEST(Plays, TakesQuakeWorldsEnginesForQuake) {
    EXPECT_TRUE(Plays(ShippedEngine("ezQuake"), Game::Quake));
    EXPECT_TRUE(Plays(ShippedEngine("Hammer of Thyrion HexenWorld"), Game::Hexen2));
    EXPECT_TRUE(Plays(ShippedEngine("Xash3D"), Game::HalfLife));
    EXPECT_FALSE(Plays(ShippedEngine("Xash3D"), Game::Quake));
    EXPECT_FALSE(Plays(ShippedEngine("FTEQW"), Game::None));
}

}  // namespace
}  // namespace lv
