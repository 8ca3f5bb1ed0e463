#include "foundation/percent_text.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

bool IsNoSemicolon(char letter) {
    return letter != ';';
}

bool IsNothing(char /*letter*/) {
    return false;
}

}  // namespace

TEST(PercentText, ReplacesWhatIsNotPlainAndThePercentSign) {
    EXPECT_EQ(PercentText("a;b 100% C:\\X", IsNoSemicolon), "a%3Bb 100%25 C:\\X");
    EXPECT_EQ(PercentText("", IsNothing), "");
    EXPECT_EQ(PercentText(Text("\0\xFF", 2), IsNothing), "%00%FF");
}

TEST(PercentText, GivesAnyByteBack) {
    Text all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
    }
    EXPECT_EQ(FromPercentText(PercentText(all, IsNothing)), all);
    EXPECT_EQ(FromPercentText(PercentText(all, IsNoSemicolon)), all);
}

TEST(PercentText, WithoutItsDigitsIsNothing) {
    EXPECT_EQ(FromPercentText("%41"), "A");
    for (const char* const damaged : {"%", "a%4", "%4g", "%G0", "%3b", "%%41"}) {
        EXPECT_EQ(FromPercentText(damaged), std::nullopt) << damaged;
    }
}

}  // namespace lv
