#include "foundry/losses/written_lines.h"

#include <gtest/gtest.h>

namespace lv {

TEST(WrittenLines, TellWhatStandsAheadOfALine) {
    const WrittenLines lines("alias \"Zoom\" \"fov 30\"\r\nbind \"f1\" \"a\"\r\nunbindall\r\nbind \"f1\" \"b\"\r\n",
                             Console::Quake);
    EXPECT_FALSE(lines.BindsAhead("F1", 2));
    EXPECT_TRUE(lines.BindsAhead("F1", 3));
    EXPECT_FALSE(lines.BindsAhead("F2", 3));
    EXPECT_FALSE(lines.DefinesAhead("zoom", 1));
    EXPECT_TRUE(lines.DefinesAhead("zoom", 2));
    EXPECT_FALSE(lines.DefinesAhead("f1", 3));
}

TEST(WrittenLines, TakeNoLineForABindingThatIsNone) {
    const WrittenLines lines("// bind a b\nbind a\nsay \"bind a b\"\nunbindall\n", Console::Quake);
    EXPECT_FALSE(lines.BindsAhead("a", 4));
}

TEST(WrittenLines, NameWhatALineWithAnOddQuoteSets) {
    const WrittenLines lines(
        "alias \"+hook\" \"impulse 97\";\"\nname \"Joe\";\"\nbind \"x\" \"a\";\"\nalias a \"b\"\n"
        "say \"hm\n",
        Console::Quake);
    EXPECT_EQ(lines.OwnerOfOddQuote(1), "the alias +hook");
    EXPECT_EQ(lines.OwnerOfOddQuote(2), "the setting name");
    EXPECT_EQ(lines.OwnerOfOddQuote(3), "the key x");
    EXPECT_EQ(lines.OwnerOfOddQuote(4), "") << "it has none";
    EXPECT_EQ(lines.OwnerOfOddQuote(5), "") << "it sets nothing";
    EXPECT_EQ(lines.OwnerOfOddQuote(0), "");
    EXPECT_EQ(lines.OwnerOfOddQuote(6), "");
}

TEST(WrittenLines, LeaveAnIniAlone) {
    const WrittenLines lines("alias a \"b\";\"\nbind a b\n\n", Console::Unreal);
    EXPECT_FALSE(lines.BindsAhead("a", 3));
    EXPECT_EQ(lines.OwnerOfOddQuote(1), "");
}

}  // namespace lv
