#include "foundry/versions/version_delta.h"

#include <gtest/gtest.h>

#include <random>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr std::size_t kMuch = 1'000'000;

Text Round(TextView base, TextView text) {
    return ApplyDelta(base, MakeDelta(base, text), kMuch).value_or("(no delta)");
}

}  // namespace

TEST(VersionDelta, HasWhatIsSharedAndWhatIsNot) {
    EXPECT_EQ(MakeDelta("a\r\nb\r\nc\r\n", "a\r\nB\r\nc\r\n"), "=0 1\n+3\nB\r\n=2 1\n");
    EXPECT_EQ(MakeDelta("a\nb\n", "a\nb\n"), "=0 2\n");
    EXPECT_EQ(MakeDelta("", "new"), "+3\nnew");
    EXPECT_EQ(MakeDelta("old\n", ""), "");
}

TEST(VersionDelta, GivesEveryByteBack) {
    for (const TextView text : {TextView("", 0), TextView("\n"), TextView("a"), TextView("a\r\nb"),
                                TextView("a\0b\n\n\xff\r", 7), TextView("=0 1\n+9\n"), TextView("\r\r\n\n")}) {
        EXPECT_EQ(Round("a\r\n\nb\n", text), text);
        EXPECT_EQ(Round("", text), text);
        EXPECT_EQ(Round(text, text), text);
        EXPECT_EQ(Round(text, "a\r\n\nb\n"), "a\r\n\nb\n");
    }
}

TEST(VersionDelta, GivesThousandsOfMadeUpTextsBack) {
    std::mt19937 random(18);
    const auto made = [&] {
        Text text;
        for (auto lines = random() % 30; lines > 0; --lines) {
            text += Join("bind ", std::to_string(random() % 12), random() % 5 == 0 ? "" : "\r\n");
        }
        return text;
    };
    for (int i = 0; i < 3000; ++i) {
        const Text base = made();
        const Text text = made();
        ASSERT_EQ(Round(base, text), text) << base << "---\n" << text;
    }
}

TEST(VersionDelta, TakesLittleRoomForALittleChange) {
    Text base;
    for (int i = 0; i < 10'000; ++i) {
        base += Join("alias a", std::to_string(i), " \"impulse ", std::to_string(i % 200), "\"\r\n");
    }
    Text text = base;
    text.insert(text.find("alias a5000 "), "bind x y\r\n");
    EXPECT_LT(MakeDelta(base, text).size(), 50u);
}

TEST(VersionDelta, RefusesWhatIsNone) {
    for (const char* const delta :
         {"x", "=", "=0", "=0 1", "=0 3\n", "=2 1\n", "=0 0\n", "=-1 1\n", "=0 -1\n", "+", "+5\nabc", "+\nabc", "+3abc",
          "=0 99999999999999999999999\n", "=18446744073709551615 2\n", "=1 18446744073709551615\n"}) {
        EXPECT_FALSE(ApplyDelta("a\nb\n", delta, kMuch)) << delta;
    }
}

TEST(VersionDelta, RefusesWhatGrowsBeyondItsBound) {
    Text delta;
    for (int i = 0; i < 100; ++i) {
        delta += "=0 1\n";
    }
    EXPECT_FALSE(ApplyDelta("0123456789", delta, 999));
    EXPECT_EQ(ApplyDelta("0123456789", delta, 1000)->size(), 1000u);
}

}  // namespace lv
