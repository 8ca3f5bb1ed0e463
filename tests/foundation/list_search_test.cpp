#include "foundation/list_search.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

using List = std::vector<Text>;

TEST(FindSorted, OnAnEmptyListIsZeroAndNotFound) {
    bool found = true;
    EXPECT_EQ(FindSorted({}, 1, kToTheEnd, "a", found), 0);
    EXPECT_FALSE(found);
}

TEST(FindSorted, FindsEachItem) {
    const List list = {"alpha", "bravo", "charlie", "delta"};
    for (Index i = 0; i < 4; ++i) {
        bool found = false;
        EXPECT_EQ(FindSorted(list, 1, kToTheEnd, list[static_cast<std::size_t>(i)], found), i);
        EXPECT_TRUE(found);
    }
}

TEST(FindSorted, SaysWhereTheKeyBelongs) {
    const List list = {"b", "d", "f"};
    bool found = true;
    EXPECT_EQ(FindSorted(list, 1, kToTheEnd, "a", found), 0);
    EXPECT_EQ(FindSorted(list, 1, kToTheEnd, "c", found), 1);
    EXPECT_EQ(FindSorted(list, 1, kToTheEnd, "e", found), 2);
    EXPECT_EQ(FindSorted(list, 1, kToTheEnd, "g", found), 3);
    EXPECT_FALSE(found);
}

TEST(FindSorted, ComparesAStretchOfTheItem) {
    const List list = {"1-alpha", "2-bravo", "3-delta"};
    bool found = false;
    EXPECT_EQ(FindSorted(list, 3, 5, "bravo", found), 1);
    EXPECT_TRUE(found);
}

TEST(FindSorted, IsCaseSensitiveAndOrdersBytes) {
    const List list = {"A", "a", "\xE4"};
    bool found = false;
    EXPECT_EQ(FindSorted(list, 1, kToTheEnd, "\xE4", found), 2);
    EXPECT_TRUE(found);
    EXPECT_EQ(FindSorted(list, 1, kToTheEnd, "B", found), 1);
    EXPECT_FALSE(found);
}

TEST(FindSorted, ReadsAShortItemAsEmpty) {
    bool found = false;
    EXPECT_EQ(FindSorted({"ab"}, 9, 2, "", found), 0);
    EXPECT_TRUE(found);
}

TEST(FindExact, IsTheFirstMatchInAnyCase) {
    bool found = false;
    EXPECT_EQ(FindExact({"x", "CTF", "ctf"}, 1, kToTheEnd, "ctf", found), 1);
    EXPECT_TRUE(found);
}

TEST(FindExact, ComparesAccentedLettersInAnyCase) {
    bool found = false;
    EXPECT_EQ(FindExact({"\xC4pfel"}, 1, kToTheEnd, "\xE4PFEL", found), 0);
    EXPECT_TRUE(found);
}

TEST(FindExact, WithoutAMatchIsTheItemCount) {
    bool found = true;
    EXPECT_EQ(FindExact({"a", "b"}, 1, kToTheEnd, "c", found), 2);
    EXPECT_FALSE(found);
}

TEST(FindExact, OnAnEmptyListIsZero) {
    bool found = true;
    EXPECT_EQ(FindExact({}, 1, kToTheEnd, "c", found), 0);
    EXPECT_FALSE(found);
}

TEST(FindExact, ComparesAStretchOfTheItem) {
    bool found = false;
    EXPECT_EQ(
        FindExact({Text(100, ' ') + "c:\\a.cfg", Text(100, ' ') + "c:\\b.cfg"}, 101, kToTheEnd, "C:\\B.CFG", found), 1);
    EXPECT_TRUE(found);
    EXPECT_EQ(FindExact({"ctfx"}, 1, 3, "ctf", found), 0);
    EXPECT_TRUE(found);
}

TEST(FindExact, EndsWhereAnIndexEnds) {
    List list(40'000, "x");
    list.back() = "wanted";
    bool found = true;
    EXPECT_EQ(FindExact(list, 1, kToTheEnd, "wanted", found), 32767);
    EXPECT_FALSE(found);
}

TEST(FindExact, TakesAStartBelowOneAsTheFirstPosition) {
    bool found = false;
    EXPECT_EQ(FindExact({"ab"}, 0, kToTheEnd, "ab", found), 0);
    EXPECT_TRUE(found);
}

TEST(FindNumeric, WantsTextAndNumberEqual) {
    bool found = false;
    EXPECT_EQ(FindNumeric({"1.50", "1.5"}, 1, kToTheEnd, "1.5", found, true), 1);
    EXPECT_TRUE(found);
}

TEST(FindNumeric, ComparesTheNumberOfTheWholeItem) {
    bool found = true;
    // The stretch "1.5" matches in both, but the first item's number is 1.57.
    EXPECT_EQ(FindNumeric({"1.57", "1.5"}, 1, 3, "1.5", found, true), 1);
    EXPECT_TRUE(found);
}

TEST(FindNumeric, ReadsTheLocalSeparator) {
    bool found = false;
    EXPECT_EQ(FindNumeric({"1,25 x", "1,5 x"}, 1, 3, "1,5", found, false), 1);
    EXPECT_TRUE(found);
}

TEST(FindNumeric, WithADotTakesACommaAsTheEnd) {
    bool found = true;
    EXPECT_EQ(FindNumeric({"1,5"}, 1, 1, "1", found, true), 0);  // 1 equals 1
    EXPECT_TRUE(found);
    EXPECT_EQ(FindNumeric({"1,5"}, 1, 1, "1", found, false), 1);  // 1.5 is not 1
    EXPECT_FALSE(found);
}

TEST(FindNumeric, WithoutAMatchIsTheItemCount) {
    bool found = true;
    EXPECT_EQ(FindNumeric({"1", "2"}, 1, kToTheEnd, "3", found, true), 2);
    EXPECT_FALSE(found);
}

}  // namespace
}  // namespace lv
