#include "foundation/row_search.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

const std::vector<Text> kMaps = {
    "start",              // 0
    "e1m1 Slipgate",      // 1
    "DM1 Place",          // 2
    "dm4 The Bad Place",  // 3
    "q2dm1 The Edge",     // 4
    "The DM4 of old",     // 5
    "\xC4rger",           // 6
};

struct TypedRow {
    const char* Typed;
    int From;
    int Row;
    std::size_t Number;
    std::size_t Count;
};

// clang-format off
const TypedRow kTyped[] = {
    // A beginning goes ahead of a word, a word ahead of the rest.
    {"dm", 0, 2, 1, 4},
    {"dm", 3, 3, 2, 4},
    {"dm", 4, 2, 1, 4},
    {"DM4", 0, 3, 1, 2},
    {"place", 0, 2, 1, 2},
    {"place", 3, 3, 2, 2},
    {"the", 0, 5, 3, 3},
    {"edge", 0, 4, 1, 1},
    {"gate", 0, 1, 1, 1},
    {"2dm", 0, 4, 1, 1},
    {"bad pl", 0, 3, 1, 1},
    {"m4 o", 0, 5, 1, 1},
    {"\xE4r", 0, 6, 1, 1},
    // The first letter leaves the selected row, around the end.
    {"s", 0, 0, 1, 2},
    {"d", 2, 3, 2, 4},
    {"d", 3, 2, 1, 4},
    {"d", -1, 2, 1, 4},
    // Nothing holds it.
    {"dmx", 0, -1, 0, 0},
    {"quake", 4, -1, 0, 0},
};
// clang-format on

/// Types them a tenth of a second apart; the selection follows.
struct Typist {
    explicit Typist(int row) : Row(row) {}

    RowFound Type(TextView letters) {
        RowFound found;
        for (const char letter : letters) {
            Now += 0.1;
            found = Follow(TypeInSearch(Search, kMaps, Row, letter, Now));
        }
        return found;
    }
    RowFound TakeBack() { return Follow(TakeBackInSearch(Search, kMaps, Now += 0.1)); }
    RowFound Step(SearchStep step) { return Follow(StepInSearch(Search, kMaps, Row, step, Now += 0.1)); }
    RowFound Follow(const RowFound& found) {
        Row = found.Row >= 0 ? found.Row : Row;
        return found;
    }

    RowSearch Search;
    int Row;
    double Now = 100;
};

TEST(TypeInSearch, GoesToTheRowThatHoldsItBest) {
    for (const TypedRow& row : kTyped) {
        Typist typist(row.From);
        const RowFound found = typist.Type(row.Typed);
        EXPECT_EQ(found.Row, row.Row) << row.Typed << " from " << row.From;
        EXPECT_EQ(found.Number, row.Number) << row.Typed << " from " << row.From;
        EXPECT_EQ(found.Count, row.Count) << row.Typed << " from " << row.From;
    }
}

TEST(TypeInSearch, LeavesTheSelectionWhereNothingIsFound) {
    Typist typist(1);
    typist.Type("dmx");
    EXPECT_EQ(typist.Row, 2) << "the row of dm";
    EXPECT_EQ(typist.Search.Typed, "dmx");
}

TEST(TypeInSearch, OneLetterAgainGoesFromRowToRow) {
    Typist typist(0);
    EXPECT_EQ(typist.Type("d").Row, 2);
    EXPECT_EQ(typist.Type("d").Row, 3);
    EXPECT_EQ(typist.Type("D").Row, 2);
    EXPECT_EQ(typist.Search.Typed, "d");
}

TEST(TypeInSearch, BeginsAnewAfterASecondAndAHalf) {
    RowSearch search;
    EXPECT_EQ(TypeInSearch(search, kMaps, 0, 'd', 10).Row, 2);
    EXPECT_EQ(TypeInSearch(search, kMaps, 2, 'm', 11.5).Row, 2);
    EXPECT_EQ(search.Typed, "dm");
    EXPECT_EQ(TypeInSearch(search, kMaps, 2, 'e', 13.25).Row, 1);
    EXPECT_EQ(search.Typed, "e");
}

TEST(TypeInSearch, HasNothingInAnEmptyList) {
    RowSearch search;
    EXPECT_EQ(TypeInSearch(search, {}, -1, 'd', 0).Row, -1);
    EXPECT_EQ(StepInSearch(search, {}, -1, SearchStep::Down, 0).Row, -1);
    EXPECT_EQ(TakeBackInSearch(search, {}, 0).Row, -1);
}

TEST(TypeInSearch, PassesOverWhatIsTypedBeyondSixtyLetters) {
    Typist typist(0);
    typist.Type(Text(30, 'a') + Text(40, 'b'));
    EXPECT_EQ(typist.Search.Typed, Text(1, 'a') + Text(40, 'b')) << "one letter again and again is one letter";
    typist.Type(Text(40, 'c'));
    EXPECT_EQ(typist.Search.Typed, Text(1, 'a') + Text(40, 'b') + Text(19, 'c'));
}

TEST(TakeBackInSearch, LooksForWhatIsLeft) {
    Typist typist(0);
    EXPECT_EQ(typist.Type("dm4").Row, 3);
    EXPECT_EQ(typist.TakeBack().Row, 2);
    EXPECT_EQ(typist.Search.Typed, "dm");
    EXPECT_EQ(typist.Type("4").Row, 3);
}

TEST(TakeBackInSearch, EndsTheSearchWithItsLastLetterAndStays) {
    Typist typist(0);
    typist.Type("d");
    EXPECT_EQ(typist.TakeBack().Row, -1);
    EXPECT_EQ(typist.Row, 2);
    EXPECT_FALSE(SearchIsOn(typist.Search, typist.Now));
}

TEST(StepInSearch, GoesThroughAllHitsInTheListsOrderAroundItsEnds) {
    Typist typist(0);
    typist.Type("dm");
    EXPECT_EQ(typist.Row, 2);
    for (const int row : {3, 4, 5, 2}) {
        EXPECT_EQ(typist.Step(SearchStep::Down).Row, row);
    }
    for (const int row : {5, 4, 3, 2}) {
        EXPECT_EQ(typist.Step(SearchStep::Up).Row, row);
    }
    EXPECT_EQ(typist.Step(SearchStep::Down).Number, 2u);
}

TEST(StepInSearch, LeadsBackToTheHitsFromARowThatIsNone) {
    Typist typist(1);
    typist.Type("dm");
    typist.Row = 0;
    EXPECT_EQ(typist.Step(SearchStep::Up).Row, 5);
    typist.Row = 6;
    EXPECT_EQ(typist.Step(SearchStep::Down).Row, 2);
    typist.Row = -1;
    EXPECT_EQ(typist.Step(SearchStep::Up).Row, 5);
}

TEST(StepInSearch, IsWhereMoreLettersGoOn) {
    Typist typist(0);
    typist.Type("dm");
    typist.Step(SearchStep::Down);
    typist.Step(SearchStep::Down);
    EXPECT_EQ(typist.Row, 4);
    EXPECT_EQ(typist.Type("1").Row, 2) << "a beginning goes first";
}

TEST(SearchIsOn, UntilTheSearchEndsOrAPauseHasPassed) {
    RowSearch search;
    EXPECT_FALSE(SearchIsOn(search, 0));
    TypeInSearch(search, kMaps, 0, 'd', 10);
    EXPECT_TRUE(SearchIsOn(search, 11.5));
    EXPECT_FALSE(SearchIsOn(search, 11.75));
    EndSearch(search);
    EXPECT_FALSE(SearchIsOn(search, 10));
}

TEST(SearchText, SaysWhatWasTypedAndWhichOfHowManyItIs) {
    Typist typist(0);
    EXPECT_EQ(SearchText(typist.Search, {}), "");
    typist.Type("Dm4");
    const RowFound found = typist.Step(SearchStep::Down);
    EXPECT_EQ(SearchText(typist.Search, found), "Search: Dm4 (2 of 2)");
    const RowFound none = typist.Type("x");
    EXPECT_EQ(SearchText(typist.Search, none), "Search: Dm4x (nothing found)");
}

}  // namespace
}  // namespace lv
