#include "console/line_pairing.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

/// "1:2" for each pair, from 1.
Text Pairs(LinePairing& pairing, const std::vector<TextView>& left, const std::vector<TextView>& right) {
    Text all;
    for (const LineMatch& pair : pairing.Pair(left, right)) {
        all += Join(all.empty() ? "" : " ", std::to_string(pair.Left + 1), ":", std::to_string(pair.Right + 1));
    }
    return all;
}

Text Pairs(const std::vector<TextView>& left, const std::vector<TextView>& right) {
    LinePairing pairing;
    return Pairs(pairing, left, right);
}

}  // namespace

TEST(LinePairing, PairsLinesOfOneName) {
    EXPECT_EQ(Pairs({"bind a x", "alias z w", "fov 90"}, {"alias z v", "FOV 100"}), "2:1 3:2");
    EXPECT_EQ(Pairs({"bind a x"}, {"bind b x"}), "");
    EXPECT_EQ(Pairs({}, {"bind b x"}), "");
    EXPECT_EQ(Pairs({"bind b x"}, {}), "");
}

TEST(LinePairing, PairsLinesThatAreAlikeAmongThoseOfOneWord) {
    EXPECT_EQ(Pairs({"say \"need health\"", "bind h x", "say \"my page is http://x.y/z\""}, {"say \"my page is http:"}),
              "3:1");
    EXPECT_EQ(Pairs({"// old words", "echo a"}, {"// other ones", "echo b"}), "");
}

TEST(LinePairing, PutsANameAheadOfALikeness) {
    EXPECT_EQ(Pairs({"say hello there", "fov 90"}, {"fov 100", "say hello here"}), "2:1");
}

TEST(LinePairing, TakesThePairsOfTheMostLikeness) {
    EXPECT_EQ(Pairs({"say hello you", "say hello there"}, {"say hello there!"}), "2:1");
    EXPECT_EQ(Pairs({"say one two", "say four five"}, {"say one twa", "say four fiva"}), "1:1 2:2");
}

TEST(LinePairing, LeavesBlankLinesAlone) {
    EXPECT_EQ(Pairs({"", " "}, {" ", ""}), "");
}

TEST(LinePairing, ComparesSoManyLinesAndNoMore) {
    const std::vector<TextView> many(400, "say hello there");
    const std::vector<TextView> others(400, "say hello here");
    LinePairing pairing;
    EXPECT_NE(Pairs(pairing, many, others), "");
    EXPECT_EQ(Pairs(pairing, many, others), "") << "the bound is that of all calls together";
    EXPECT_EQ(Pairs(pairing, {"fov 90"}, {"fov 100"}), "1:1");
    const std::vector<TextView> tooMany(500, "say hello there");
    EXPECT_EQ(Pairs(tooMany, tooMany), "");
}

}  // namespace lv
