#include "foundry/look/difference_list.h"

#include <gtest/gtest.h>

namespace lv {

TEST(DifferenceList, SelectsTheFirstRowThatDiffers) {
    DifferenceList list;
    list.Compare("a\nb\nc\n", "a\nB\nc\nd\n");
    EXPECT_EQ(list.Rows().size(), 4u);
    EXPECT_EQ(list.Changes(), 2u);
    EXPECT_EQ(list.ListIndex, 1);
}

TEST(DifferenceList, GoesFromChangeToChangeAndRound) {
    DifferenceList list;
    list.Compare("fov 90\nr_b 1\nc\nd\n", "fov 95\nr_b 2\nc\nd\ne\n");
    EXPECT_EQ(list.ListIndex, 0);
    SelectNextChange(list);
    EXPECT_EQ(list.ListIndex, 4);
    SelectNextChange(list);
    EXPECT_EQ(list.ListIndex, 0);
}

TEST(DifferenceList, OfEqualTextsSelectsNothing) {
    DifferenceList list;
    list.Compare("a\n", "a\n");
    SelectNextChange(list);
    EXPECT_EQ(list.Changes(), 0u);
    EXPECT_EQ(list.ListIndex, -1);
}

TEST(DifferenceList, KeepsItsTexts) {
    DifferenceList list;
    {
        const Text left = "say short";
        const Text right = "say shirt";
        list.Compare(left, right);
    }
    EXPECT_EQ(list.Rows().at(0).Left, "say short");
    EXPECT_EQ(list.Rows().at(0).Right, "say shirt");
}

TEST(DifferenceList, CountsWhatWasShown) {
    DifferenceList list;
    const int before = list.Shown();
    list.Compare("", "");
    EXPECT_NE(list.Shown(), before);
}

TEST(DifferenceList, EachKindHasItsMark) {
    EXPECT_EQ(MarkOfRow(RowKind::Same), " ");
    EXPECT_EQ(MarkOfRow(RowKind::Changed), "*");
    EXPECT_EQ(MarkOfRow(RowKind::OnlyLeft), "-");
    EXPECT_EQ(MarkOfRow(RowKind::OnlyRight), "+");
}

TEST(DifferenceList, ALineIsShownWithoutControlCharactersAndNotWithoutEnd) {
    EXPECT_EQ(ShownLine("bind\tx\t\"a\x01\""), "bind    x   \"a \"");
    EXPECT_EQ(ShownLine(Text(2000, 'x')), Text(1000, 'x') + "...");
    EXPECT_EQ(ShownLine("\xe9\xff"), "\xe9\xff");
}

}  // namespace lv
