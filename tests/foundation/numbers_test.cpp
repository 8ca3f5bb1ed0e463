#include "foundation/numbers.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace lv {
namespace {

TEST(ToNumber, ReadsTheStartOfATolerantText) {
    EXPECT_EQ(ToNumber("12 MB"), 12);
    EXPECT_EQ(ToNumber("1.5"), 1.5);
    EXPECT_EQ(ToNumber(".5"), 0.5);
    EXPECT_EQ(ToNumber("5."), 5);
    EXPECT_EQ(ToNumber("-3"), -3);
    EXPECT_EQ(ToNumber("+3"), 3);
    EXPECT_EQ(ToNumber("\t 7\r\n"), 7);
}

TEST(ToNumber, PassesOverBlanksBetweenDigits) {
    EXPECT_EQ(ToNumber("1 000"), 1000);
}

TEST(ToNumber, OfATextWithoutANumberIsZero) {
    EXPECT_EQ(ToNumber(""), 0);
    EXPECT_EQ(ToNumber("True"), 0);
    EXPECT_EQ(ToNumber("-"), 0);
    EXPECT_EQ(ToNumber("+-3"), 0);
    EXPECT_EQ(ToNumber("."), 0);
    EXPECT_EQ(ToNumber("nan"), 0);
    EXPECT_EQ(ToNumber("inf"), 0);
}

TEST(ToNumber, EndsAtASecondPointAndAtAComma) {
    EXPECT_EQ(ToNumber("1.5.7"), 1.5);
    EXPECT_EQ(ToNumber("1,5"), 1);
}

TEST(ToNumber, OfTooManyDigitsIsTheGreatest) {
    EXPECT_EQ(ToNumber(Text(400, '9')), std::numeric_limits<double>::max());
    EXPECT_EQ(ToNumber("-" + Text(400, '9')), -std::numeric_limits<double>::max());
}

TEST(ToNumber, OfADigitTooFarBehindThePointIsZero) {
    EXPECT_EQ(ToNumber("0." + Text(400, '0') + "1"), 0);
}

TEST(ToIndex, RoundsAHalfToTheEvenNumber) {
    EXPECT_EQ(ToIndex("2.5"), 2);
    EXPECT_EQ(ToIndex("3.5"), 4);
    EXPECT_EQ(ToIndex("2.6"), 3);
    EXPECT_EQ(ToIndex("-2.5"), -2);
}

TEST(ToIndex, IsHeldWithinSixteenBits) {
    EXPECT_EQ(ToIndex("32767"), 32767);
    EXPECT_EQ(ToIndex("32768"), 32767);
    EXPECT_EQ(ToIndex("-32769"), -32768);
    EXPECT_EQ(ToIndex(Text(400, '9')), 32767);
    EXPECT_EQ(ToIndex("-" + Text(400, '9')), -32768);
}

TEST(ToLong, IsHeldWithinThirtyTwoBits) {
    EXPECT_EQ(ToLong("2147483647"), 2147483647);
    EXPECT_EQ(ToLong("2147483648"), 2147483647);
    EXPECT_EQ(ToLong("-99999999999"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ToLong("70000"), 70000);
}

TEST(NumberText, IsTheShortestForm) {
    EXPECT_EQ(NumberText(0.5), "0.5");
    EXPECT_EQ(NumberText(0.022), "0.022");
    EXPECT_EQ(NumberText(-3), "-3");
    EXPECT_EQ(NumberText(-0.0), "0");
}

TEST(NumberText, HasNoExponent) {
    EXPECT_EQ(NumberText(100000), "100000");
    EXPECT_EQ(NumberText(1e21), "1000000000000000000000");
    EXPECT_EQ(NumberText(0.000001), "0.000001");
    EXPECT_EQ(NumberText(5e-324).size(), 326);
    EXPECT_EQ(NumberText(-std::numeric_limits<double>::max()).size(), 310);
}

TEST(Numbers, SurviveHostileTexts) {
    std::mt19937 random(7);
    for (int round = 0; round < 5000; ++round) {
        Text text;
        for (std::size_t length = random() % 40; length > 0; --length) {
            text += random() % 2 == 0 ? static_cast<char>(random() % 256) : "0123456789.-+ e"[random() % 15];
        }
        const double number = ToNumber(text);
        EXPECT_EQ(number, number);  // no NaN
        EXPECT_EQ(ToIndex(text) > 0, ToLong(text) > 0);
    }
}

}  // namespace
}  // namespace lv
