#include "foundation/number_format.h"

#include <gtest/gtest.h>

namespace lv {

TEST(FormatWhole, ReadsAPointAsTheDecimalSeparator) {
    EXPECT_EQ(FormatWhole("1.00", '.'), "1");
}

TEST(FormatWhole, ReadsAPointAsAGroupWhereACommaSeparates) {
    EXPECT_EQ(FormatWhole("1.00", ','), "100");
}

TEST(FormatWhole, DropsAZero) {
    EXPECT_EQ(FormatWhole("0.2", '.'), "");
}

TEST(DecimalPointIsDot, IsTrueForAPoint) {
    EXPECT_TRUE(DecimalPointIsDot('.'));
}

TEST(DecimalPointIsDot, IsFalseForAComma) {
    EXPECT_FALSE(DecimalPointIsDot(','));
}

TEST(VersionText, IsThatOfThisBuild) {
    EXPECT_EQ(VersionText(), "1.06.0112 <Beta>");
}

TEST(VersionText, PadsMinorToTwoAndRevisionToFourDigits) {
    EXPECT_EQ(VersionText({2, 0, 3}), "2.00.0003 <Beta>");
    EXPECT_EQ(VersionText({12, 34, 5678}), "12.34.5678 <Beta>");
}

}  // namespace lv
