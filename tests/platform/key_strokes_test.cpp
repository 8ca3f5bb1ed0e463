#include "platform/key_strokes.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace lv {
namespace {

using Strokes = std::vector<KeyStroke>;

Strokes Read(std::string_view notation) {
    const auto strokes = KeyStrokesOf(notation);
    EXPECT_TRUE(strokes.has_value()) << notation;
    return strokes.value_or(Strokes());
}

TEST(KeyStrokesOf, ReadsLettersAndDigitsAsTheirOwnKeys) {
    EXPECT_EQ(Read("c"), (Strokes{{'c'}}));
    EXPECT_EQ(Read("az09"), (Strokes{{'a'}, {'z'}, {'0'}, {'9'}}));
}

TEST(KeyStrokesOf, HoldsNoShiftForACapital) {
    EXPECT_EQ(Read("CZ"), (Strokes{{'c'}, {'z'}}));
}

TEST(KeyStrokesOf, HoldsAltForTheKeyBehindAPercentSign) {
    EXPECT_EQ(Read("%s"), (Strokes{{'s', true, false, false}}));
}

TEST(KeyStrokesOf, HoldsControlForTheKeyBehindACaret) {
    EXPECT_EQ(Read("^c"), (Strokes{{'c', false, true, false}}));
}

TEST(KeyStrokesOf, HoldsShiftForTheKeyBehindAPlus) {
    EXPECT_EQ(Read("+1"), (Strokes{{'1', false, false, true}}));
}

TEST(KeyStrokesOf, HoldsForOneKeyAlone) {
    EXPECT_EQ(Read("%ec"), (Strokes{{'e', true, false, false}, {'c'}}));
}

TEST(KeyStrokesOf, HoldsSeveralInAnyOrder) {
    EXPECT_EQ(Read("^%+d"), (Strokes{{'d', true, true, true}}));
    EXPECT_EQ(Read("+^e"), (Strokes{{'e', false, true, true}}));
}

TEST(KeyStrokesOf, ReadsNothingAsNoStrokes) {
    EXPECT_EQ(Read(""), Strokes());
}

TEST(KeyStrokesOf, RefusesAHoldWithoutAKey) {
    for (const char* const notation : {"%", "^", "+", "a%", "%s^", "%^+"}) {
        EXPECT_FALSE(KeyStrokesOf(notation)) << notation;
    }
}

TEST(KeyStrokesOf, RefusesTheSameHoldTwice) {
    for (const char* const notation : {"%%s", "^^c", "++a", "%^%s"}) {
        EXPECT_FALSE(KeyStrokesOf(notation)) << notation;
    }
}

TEST(KeyStrokesOf, RefusesWhatIsNoKey) {
    for (const char* const notation : {"{F2}", "{ENTER}", "~", "(ab)", "% s", " ", "c ", "a.b", "\xE9", "\n"}) {
        EXPECT_FALSE(KeyStrokesOf(notation)) << notation;
    }
    EXPECT_FALSE(KeyStrokesOf(std::string_view("a\0b", 3)));
}

TEST(KeyStrokesOf, RandomBytesGivePlainKeysOrNothing) {
    std::mt19937 random(5);
    const std::string likely = "%^+aZ09";
    const std::string plain = "abcdefghijklmnopqrstuvwxyz0123456789";
    int read = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string notation;
        for (std::size_t length = random() % 8; length > 0; --length) {
            notation += random() % 20 == 0 ? static_cast<char>(random()) : likely[random() % likely.size()];
        }
        const auto strokes = KeyStrokesOf(notation);
        for (const KeyStroke& stroke : strokes.value_or(Strokes())) {
            ++read;
            ASSERT_NE(plain.find(stroke.Key), std::string::npos) << notation;
        }
    }
    EXPECT_GT(read, 10000);
}

}  // namespace
}  // namespace lv
