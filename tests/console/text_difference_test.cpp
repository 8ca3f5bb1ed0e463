#include "console/text_difference.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

/// The rows as "= a", "~ a>b", "< a", "> b", each with its lines' numbers, joined by ", ".
Text RowsOf(TextView left, TextView right) {
    Text all;
    for (const DifferenceRow& row : CompareTexts(left, right)) {
        constexpr TextView kSigns[] = {"=", "~", "<", ">"};
        all += Join(all.empty() ? "" : ", ", kSigns[static_cast<int>(row.Kind)], std::to_string(row.LeftLine), ":",
                    std::to_string(row.RightLine), " ", row.Left);
        if (row.Kind == RowKind::Changed || row.Kind == RowKind::OnlyRight) {
            all += Join(">", row.Right);
        }
    }
    return all;
}

}  // namespace

TEST(CompareTexts, PutsTheSameLinesBesideEachOther) {
    EXPECT_EQ(RowsOf("a\nb\nc\n", "a\r\nc\r\n"), "=1:1 a, <2:0 b, =3:2 c");
    EXPECT_EQ(RowsOf("a\nc", "a\nb\nc"), "=1:1 a, >0:2 >b, =2:3 c");
}

TEST(CompareTexts, PairsChangedLines) {
    EXPECT_EQ(RowsOf("a\nbind x 1\nfov 90\nc", "a\nfov 100\nc"), "=1:1 a, <2:0 bind x 1, ~3:2 fov 90>fov 100, =4:3 c");
}

TEST(CompareTexts, PutsNoLineBesideOneThatHasNothingToDoWithIt) {
    EXPECT_EQ(RowsOf("alias tp_1 \"say_team need health\"\nsay \"my page is http://x.y/z\"\nexec rj.cfg\n",
                     "say \"my page is http:\nexec rj.cfg\n"),
              "<1:0 alias tp_1 \"say_team need health\", "
              "~2:1 say \"my page is http://x.y/z\">say \"my page is http:, =3:2 exec rj.cfg");
    EXPECT_EQ(RowsOf("a\nb1\nb2\nc", "a\nx1\nc"), "=1:1 a, <2:0 b1, <3:0 b2, >0:2 >x1, =4:3 c");
}

TEST(CompareTexts, TakesTextsWithoutLines) {
    EXPECT_EQ(RowsOf("", ""), "");
    EXPECT_EQ(RowsOf("", "a"), ">0:1 >a");
    EXPECT_EQ(RowsOf("a", ""), "<1:0 a");
}

TEST(CompareTexts, GivesEachLineOnceAndInOrder) {
    const Text left = "1\n2\n3\n4\n5\n6\n7";
    const Text right = "7\n2\n9\n4\n4\n6\n1";
    std::size_t leftLine = 0;
    std::size_t rightLine = 0;
    for (const DifferenceRow& row : CompareTexts(left, right)) {
        EXPECT_TRUE(row.LeftLine == 0 || row.LeftLine == ++leftLine);
        EXPECT_TRUE(row.RightLine == 0 || row.RightLine == ++rightLine);
        EXPECT_EQ(row.Kind == RowKind::Same, row.LeftLine != 0 && row.RightLine != 0 && row.Left == row.Right);
    }
    EXPECT_EQ(leftLine, 7U);
    EXPECT_EQ(rightLine, 7U);
}

TEST(LinesOf, TakesAllLineEnds) {
    EXPECT_EQ(LinesOf("a\r\nb\rc\n\nd"), (std::vector<TextView>{"a", "b", "c", "", "d"}));
    EXPECT_EQ(LinesOf("a\n"), std::vector<TextView>{"a"});
    EXPECT_TRUE(LinesOf("").empty());
}

}  // namespace lv
