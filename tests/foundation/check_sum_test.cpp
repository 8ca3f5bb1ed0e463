#include "foundation/check_sum.h"

#include <gtest/gtest.h>

namespace lv {

TEST(CheckSum, IsTheOneOfZipArchives) {
    EXPECT_EQ(CheckSum(""), 0u);
    EXPECT_EQ(CheckSum("123456789"), 0xCBF43926u);
    EXPECT_EQ(CheckSum("6789", CheckSum("12345")), 0xCBF43926u);
    EXPECT_EQ(CheckSum(Text("\0\xFF", 2)), 0x6CDBFD72u);
}

TEST(CheckSum, IsWrittenInEightDigits) {
    EXPECT_EQ(CheckSumText(0xCBF43926u), "cbf43926");
    EXPECT_EQ(CheckSumText(0xFu), "0000000f");
    EXPECT_EQ(CheckSumText(0), "00000000");
}

}  // namespace lv
