#include "catalogs/typed_search.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

const std::vector<Text> kNames = {"C:\\", "Quake", "ctf", "ID1", "maps", "Mission", "MUSIC"};

struct Typing {
    TypedSearch Search;
    int Row = 1;
    double Now = 100;

    int Type(char letter, double pause = 0.2) {
        Now += pause;
        const int found = FindTyped(Search, kNames, Row, letter, Now);
        Row = found < 0 ? Row : found;
        return found;
    }
};

}  // namespace

TEST(FindTyped, GoesToTheNextNameThatBeginsSo) {
    EXPECT_EQ(Typing().Type('i'), 3);
    EXPECT_EQ(Typing().Type('C'), 2);
    EXPECT_EQ(Typing().Type('q'), 1);
    EXPECT_EQ(Typing().Type('x'), -1);
}

TEST(FindTyped, MoreLettersNarrowItDown) {
    Typing typing;
    EXPECT_EQ(typing.Type('m'), 4);
    EXPECT_EQ(typing.Type('i'), 5);
    EXPECT_EQ(typing.Type('x'), -1);
    EXPECT_EQ(typing.Row, 5);
}

TEST(FindTyped, OneLetterAgainGoesFromNameToNameAndAroundTheEnd) {
    Typing typing;
    EXPECT_EQ(typing.Type('m'), 4);
    EXPECT_EQ(typing.Type('m'), 5);
    EXPECT_EQ(typing.Type('M'), 6);
    EXPECT_EQ(typing.Type('m'), 4);
}

TEST(FindTyped, ASecondWithoutALetterBeginsAnew) {
    Typing typing;
    EXPECT_EQ(typing.Type('m'), 4);
    EXPECT_EQ(typing.Type('i', 1.0), 5);
    EXPECT_EQ(typing.Type('i', 1.1), 3);
}

TEST(FindTyped, HasNothingInAnEmptyListAndBeginsAtTheTopWithoutASelection) {
    TypedSearch search;
    EXPECT_EQ(FindTyped(search, {}, -1, 'a', 0), -1);
    TypedSearch other;
    EXPECT_EQ(FindTyped(other, {"Ab", "Ac"}, -1, 'a', 0), 0);
}

}  // namespace lv
