#include "foundation/stored_numbers.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(StoredNumbers, BeginWithTheirLowestByte) {
    EXPECT_EQ(Number16At("\x34\x12", 0), 0x1234);
    EXPECT_EQ(Number32At("x\x78\x56\x34\x92", 1), 0x92345678U);
}

TEST(StoredNumbers, AreZeroBehindTheEnd) {
    EXPECT_EQ(ByteAt("ab", 2), 0);
    EXPECT_EQ(Number32At("\x01\x02", 0), 0x0201U);
    EXPECT_EQ(Number32At("\x01\x02", 0xFFFFFFFFFFFFFFF0U), 0U);
}

TEST(LiesWithin, IsNotFooledByLargeNumbers) {
    EXPECT_TRUE(LiesWithin(4, 6, 10));
    EXPECT_TRUE(LiesWithin(10, 0, 10));
    EXPECT_FALSE(LiesWithin(4, 7, 10));
    EXPECT_FALSE(LiesWithin(11, 0, 10));
    EXPECT_FALSE(LiesWithin(2, 0xFFFFFFFFFFFFFFFFU, 10));
    EXPECT_FALSE(LiesWithin(0xFFFFFFFFFFFFFFFFU, 2, 10));
}

TEST(NameAt, EndsAtAZeroOrWithItsField) {
    EXPECT_EQ(NameAt(TextView("abc\0def", 7), 0, 7), "abc");
    EXPECT_EQ(NameAt("abcdef", 1, 3), "bcd");
    EXPECT_EQ(NameAt("abc", 5, 3), "");
}

}  // namespace
}  // namespace lv
