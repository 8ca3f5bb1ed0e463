#include "foundry/tables/keys.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <set>

#include "tests/foundry/kinds.h"

namespace lv {
namespace {

TEST(KeyFromName, ReadsTheNewConsolesAndUnrealsNameAsTheSameKey) {
    EXPECT_EQ(KeyFromName("kp_home"), 84);
    EXPECT_EQ(KeyFromName("numpad7"), 84);
}

TEST(KeyFromName, ReadsBothCharactersOfAKeyCap) {
    EXPECT_EQ(KeyFromName("<"), 52);
    EXPECT_EQ(KeyFromName(","), 52);
    EXPECT_EQ(KeyFromName("comma"), 52);
    EXPECT_EQ(KeyFromName(">"), 53);
    EXPECT_EQ(KeyFromName("?"), 54);
    EXPECT_EQ(KeyFromName(":"), 55);
    EXPECT_EQ(KeyFromName("{"), 58);
    EXPECT_EQ(KeyFromName("}"), 59);
    EXPECT_EQ(KeyFromName("|"), 60);
    EXPECT_EQ(KeyFromName("~"), 61);
    EXPECT_EQ(KeyFromName("_"), 62);
}

TEST(KeyFromName, KnowsMinusOnlyAsASign) {
    EXPECT_EQ(KeyFromName("minus"), kNoKey);
    EXPECT_EQ(KeyFromName("-"), 62);
    EXPECT_EQ(KeyFromName("greyminus"), 83);
}

TEST(KeyFromName, TakesPeriodForTheKeyThatHasIt) {
    EXPECT_EQ(KeyFromName("period"), 53);
}

TEST(KeyFromName, TakesEnterForTheMainKey) {
    EXPECT_EQ(KeyFromName("enter"), 75);
    EXPECT_EQ(KeyFromName("kp_enter"), 93);
}

TEST(KeyFromName, ReadsThePlusOfEveryStyle) {
    EXPECT_EQ(KeyFromName("+"), 77);
    EXPECT_EQ(KeyFromName("kp_plus"), 77);
    EXPECT_EQ(KeyFromName("greyplus"), 77);
}

TEST(KeyFromName, ReadsPageDownInFourSpellings) {
    for (const TextView name : {"pgdn", "pagedn", "pgdown", "pagedown"}) {
        EXPECT_EQ(KeyFromName(name), 70) << name;
    }
}

TEST(KeyFromName, ReadsFunctionKeysInLowerCase) {
    EXPECT_EQ(KeyFromName("f1"), 37);
    EXPECT_EQ(KeyFromName("f12"), 48);
    EXPECT_EQ(KeyFromName("f13"), kNoKey);
}

TEST(KeyFromName, ReadsTheButtonsUpToTheLast) {
    EXPECT_EQ(KeyFromName("joy1"), 98);
    EXPECT_EQ(KeyFromName("joy6"), 103);
    EXPECT_EQ(KeyFromName("joy7"), kNoKey);
    EXPECT_EQ(KeyFromName("aux1"), 104);
    EXPECT_EQ(KeyFromName("aux32"), 135);
    EXPECT_EQ(KeyFromName("aux33"), kNoKey);
}

TEST(KeyFromName, HasNoEscapeAndNoCapsLock) {
    EXPECT_EQ(KeyFromName("escape"), kNoKey);
    EXPECT_EQ(KeyFromName("capslock"), kNoKey);
}

TEST(KeyFromName, TakesNothingForNoKey) {
    EXPECT_EQ(KeyFromName(""), kNoKey);
    EXPECT_EQ(KeyFromName(TextView("\0", 1)), kNoKey);
    EXPECT_EQ(KeyFromName(TextView("a\0", 2)), kNoKey);
    EXPECT_EQ(KeyFromName(" a"), kNoKey);
    EXPECT_EQ(KeyFromName(Text(100'000, 'a')), kNoKey);
}

TEST(KeyFromName, ReadsEveryConsoleNameBack) {
    for (const KeyStyle style : {KeyStyle::OldConsole, KeyStyle::NewConsole}) {
        for (KeyIndex key = 0; key < kKeyCount; ++key) {
            EXPECT_EQ(KeyFromName(LowerCase(KeyName(key, style).Name)), key) << KeyName(key, style).Name;
        }
    }
}

TEST(KeyFromName, ReadsEveryUnrealNameBackButTwo) {
    std::set<KeyIndex> others;
    for (KeyIndex key = 0; key < kKeyCount; ++key) {
        if (KeyFromName(LowerCase(KeyName(key, KeyStyle::Unreal).Name)) != key) {
            others.insert(key);
        }
    }
    EXPECT_EQ(others, (std::set<KeyIndex>{62, 93}));
}

TEST(KeyFromName, StaysWithinTheTableForAnyBytes) {
    std::mt19937 random(1);
    for (int round = 0; round < 20'000; ++round) {
        Text name(random() % 20, '\0');
        for (char& c : name) {
            c = static_cast<char>(random());
        }
        const KeyIndex key = KeyFromName(name);
        EXPECT_TRUE(key >= kNoKey && key < kKeyCount);
    }
}

TEST(KeyName, WritesTheKeypadsPlusByTheStyle) {
    EXPECT_EQ(KeyName(77, KeyStyle::OldConsole).Name, "+");
    EXPECT_EQ(KeyName(77, KeyStyle::NewConsole).Name, "kp_plus");
    EXPECT_EQ(KeyName(77, KeyStyle::Unreal).Name, "GreyPlus");
}

TEST(KeyName, WritesFunctionKeysWithACapital) {
    EXPECT_EQ(KeyName(37, KeyStyle::OldConsole).Name, "F1");
    EXPECT_EQ(KeyName(37, KeyStyle::Unreal).Name, "F1");
}

TEST(KeyName, WritesLettersByTheStylesCase) {
    EXPECT_EQ(KeyName(1, KeyStyle::NewConsole).Name, "a");
    EXPECT_EQ(KeyName(26, KeyStyle::NewConsole).Name, "z");
    EXPECT_EQ(KeyName(26, KeyStyle::Unreal).Name, "Z");
}

TEST(KeyName, GivesTwoKeysTheUnrealNameEnter) {
    EXPECT_EQ(KeyName(75, KeyStyle::Unreal).Name, "Enter");
    EXPECT_EQ(KeyName(93, KeyStyle::Unreal).Name, "Enter");
    EXPECT_EQ(KeyName(62, KeyStyle::Unreal).Name, "Minus");
}

TEST(KeyName, ExplainsTheDigitsOfTheKeypadInAConsoleScript) {
    struct Case {
        KeyIndex Key;
        TextView Comment;
    };
    constexpr Case kCases[] = {
        {83, ""},          {84, "key pad 7"}, {85, "key pad 8"}, {86, "key pad 9"}, {87, "key pad 4"},
        {88, "key pad 5"}, {89, "key pad 6"}, {90, "key pad 1"}, {91, "key pad 2"}, {92, "key pad 3"},
        {93, ""},          {94, "key pad 0"}, {95, ""},          {77, ""},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(KeyName(c.Key, KeyStyle::OldConsole).Comment, c.Comment) << c.Key;
        EXPECT_EQ(KeyName(c.Key, KeyStyle::NewConsole).Comment, c.Comment) << c.Key;
        EXPECT_EQ(KeyName(c.Key, KeyStyle::Unreal).Comment, "") << c.Key;
    }
}

TEST(KeyName, IsEmptyForWhatIsNoKey) {
    EXPECT_EQ(KeyName(-1, KeyStyle::OldConsole).Name, "");
    EXPECT_EQ(KeyName(136, KeyStyle::Unreal).Name, "");
    EXPECT_EQ(KeyName(149, KeyStyle::NewConsole).Name, "");
}

TEST(StyleOfFamily, FollowsTheScriptFamily) {
    EXPECT_EQ(StyleOfFamily(Dialect::Quake), KeyStyle::OldConsole);
    EXPECT_EQ(StyleOfFamily(Dialect::Quake2), KeyStyle::NewConsole);
    EXPECT_EQ(StyleOfFamily(Dialect::Unreal), KeyStyle::Unreal);
    EXPECT_EQ(StyleOfFamily(Dialect::None), KeyStyle::OldConsole);
}

TEST(KeyCaptions, NameTheKeypadsPlusInQuake2AndSinOnly) {
    for (const Game kind : kKinds) {
        const bool keypad = kind == Game::Quake2 || kind == Game::Sin;
        EXPECT_EQ(KeyCaptions(kind)[77], keypad ? "kp+" : "{+}") << NumberOf(kind);
    }
}

TEST(KeyCaptions, AreBracedButForTheSquareBrackets) {
    const KeyTexts captions = KeyCaptions(Game::Quake);
    EXPECT_EQ(captions[1], "{A}");
    EXPECT_EQ(captions[27], "{0}");
    EXPECT_EQ(captions[36], "{9}");
    EXPECT_EQ(captions[48], "{F12}");
    EXPECT_EQ(captions[58], "[");
    EXPECT_EQ(captions[59], "]");
    EXPECT_EQ(captions[60], "{\\}");
}

TEST(KeyCaptions, TellAllKeysApartAndHoldNoColon) {
    for (const Game kind : kKinds) {
        std::set<Text> seen;
        for (const Text& caption : KeyCaptions(kind)) {
            EXPECT_FALSE(caption.empty());
            EXPECT_TRUE(seen.insert(caption).second) << caption;
            EXPECT_EQ(caption.find(':'), Text::npos) << caption;
            EXPECT_EQ(caption.find(' '), Text::npos) << caption;
        }
    }
}

TEST(KeyIndexOfCaption, FindsTheKeypadsPlusInQuake2AndSinOnly) {
    for (const Game kind : kKinds) {
        const bool keypad = kind == Game::Quake2 || kind == Game::Sin;
        EXPECT_EQ(KeyIndexOfCaption(KeyCaptions(kind), "kp+"), keypad ? 77 : kNoKey) << NumberOf(kind);
        EXPECT_EQ(KeyIndexOfCaption(KeyCaptions(kind), "{+}"), keypad ? kNoKey : 77) << NumberOf(kind);
    }
}

TEST(KeyIndexOfCaption, ComparesExactly) {
    const KeyTexts captions = KeyCaptions(Game::Quake);
    EXPECT_EQ(KeyIndexOfCaption(captions, "Spc"), 0);
    EXPECT_EQ(KeyIndexOfCaption(captions, "A32"), 135);
    EXPECT_EQ(KeyIndexOfCaption(captions, "spc"), kNoKey);
    EXPECT_EQ(KeyIndexOfCaption(captions, " Spc"), kNoKey);
    EXPECT_EQ(KeyIndexOfCaption(captions, ""), kNoKey);
}

TEST(KeyIndexOfCaption, GivesMinusOneAsASigned16BitNumberForNoKey) {
    EXPECT_EQ(static_cast<std::uint16_t>(KeyIndexOfCaption(KeyCaptions(Game::Quake), "no key")), 65535);
}

TEST(KeyIndexOfCaption, TakesTheFirstOfEqualCaptions) {
    KeyTexts captions;
    captions[40] = "twin";
    captions[90] = "twin";
    EXPECT_EQ(KeyIndexOfCaption(captions, "twin"), 40);
}

TEST(MirrorLabel, TiesTheKeypadToTheMainKeysWhereItIsNotToldApart) {
    struct Case {
        KeyIndex Key;
        Index Label;
    };
    constexpr Case kCases[] = {
        {32, 88}, {49, 149}, {50, 150}, {51, 151}, {54, 82}, {62, 83}, {65, 94}, {66, 95}, {67, 84},
        {69, 86}, {70, 92},  {71, 85},  {72, 91},  {73, 87}, {74, 89}, {75, 93}, {68, 90},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(MirrorLabel(c.Key, Game::Quake), c.Label) << c.Key;
        EXPECT_EQ(MirrorLabel(c.Key, Game::Hexen2), c.Label) << c.Key;
        EXPECT_EQ(MirrorLabel(c.Key, Game::HalfLife), c.Label) << c.Key;
        EXPECT_EQ(MirrorLabel(c.Key, Game::Quake2), kNoKey) << c.Key;
        EXPECT_EQ(MirrorLabel(c.Key, Game::Sin), kNoKey) << c.Key;
        EXPECT_EQ(MirrorLabel(c.Key, Game::Heretic2), kNoKey) << c.Key;
        EXPECT_EQ(MirrorLabel(c.Key, Game::Unreal), c.Key == 75 ? 93 : kNoKey) << c.Key;
    }
}

TEST(MirrorLabel, BelongsToSeventeenKeysOnly) {
    int mirrored = 0;
    for (KeyIndex key = 0; key < kKeyCount; ++key) {
        mirrored += MirrorLabel(key, Game::Quake) != kNoKey ? 1 : 0;
    }
    EXPECT_EQ(mirrored, 17);
    EXPECT_EQ(MirrorLabel(88, Game::Quake), kNoKey);
    EXPECT_EQ(MirrorLabel(93, Game::Unreal), kNoKey);
}

}  // namespace
}  // namespace lv
