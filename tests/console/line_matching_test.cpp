#include "console/line_matching.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace lv {
namespace {

using Lines = std::vector<std::uint32_t>;

/// The length of the longest common run, by the textbook's table.
std::size_t LongestCommon(const Lines& left, const Lines& right) {
    std::vector<std::vector<std::size_t>> table(left.size() + 1, std::vector<std::size_t>(right.size() + 1));
    for (std::size_t i = 0; i < left.size(); ++i) {
        for (std::size_t j = 0; j < right.size(); ++j) {
            table[i + 1][j + 1] = left[i] == right[j] ? table[i][j] + 1 : std::max(table[i][j + 1], table[i + 1][j]);
        }
    }
    return table[left.size()][right.size()];
}

Lines MadeUp(std::mt19937& random, std::size_t count, std::uint32_t sorts) {
    Lines lines(count);
    std::ranges::generate(lines, [&] { return static_cast<std::uint32_t>(random() % sorts); });
    return lines;
}

/// Whether the matches are of equal lines, and ascend.
void ExpectSound(const std::vector<LineMatch>& matches, const Lines& left, const Lines& right) {
    for (std::size_t i = 0; i < matches.size(); ++i) {
        ASSERT_EQ(left.at(matches[i].Left), right.at(matches[i].Right));
        if (i > 0) {
            ASSERT_LT(matches[i - 1].Left, matches[i].Left);
            ASSERT_LT(matches[i - 1].Right, matches[i].Right);
        }
    }
}

}  // namespace

TEST(MatchLines, FindsAsManyAsThereAre) {
    std::mt19937 random(1);
    for (int round = 0; round < 500; ++round) {
        const auto sorts = static_cast<std::uint32_t>(1 + random() % 8);
        const Lines left = MadeUp(random, random() % 40, sorts);
        const Lines right = MadeUp(random, random() % 40, sorts);
        const std::vector<LineMatch> matches = MatchLines(left, right);
        ExpectSound(matches, left, right);
        ASSERT_EQ(matches.size(), LongestCommon(left, right)) << "round " << round;
    }
}

TEST(MatchLines, FindsTheSameLinesInTheSamePlaces) {
    const Lines lines = {3, 1, 2, 2, 1};
    const std::vector<LineMatch> matches = MatchLines(lines, lines);
    ASSERT_EQ(matches.size(), 5U);
    EXPECT_EQ(matches[3].Left, 3U);
    EXPECT_EQ(matches[3].Right, 3U);
    EXPECT_TRUE(MatchLines(lines, {}).empty());
    EXPECT_TRUE(MatchLines({}, lines).empty());
}

TEST(MatchLines, StaysSoundWhereItGivesUpOnTheBest) {
    std::mt19937 random(2);
    const Lines left = MadeUp(random, 20000, 1000);
    const Lines right = MadeUp(random, 20000, 1000);
    const std::vector<LineMatch> matches = MatchLines(left, right);
    ExpectSound(matches, left, right);
    EXPECT_GT(matches.size(), 100U);
}

TEST(MatchLines, TakesNothingFromDifferentLines) {
    EXPECT_TRUE(MatchLines(Lines(3000, 1), Lines(3000, 2)).empty());
}

}  // namespace lv
