// The tables of foundry/keys beside the listing of what they must hold.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "foundry/tables/keys.h"
#include "foundry/tables/script_settings.h"
#include "tests/foundry/listing_keys.h"

namespace lv {
namespace {

using listing::kKeys;

Text Lower(Text text) {
    for (char& c : text) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return text;
}

bool HasCapital(TextView text) {
    return text.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") != TextView::npos;
}

std::map<Text, int> ListedSpellings() {
    std::map<Text, int> spellings;
    for (const auto& row : kKeys) {
        for (const char* spelling : row.Spellings) {
            if (spelling) {
                spellings[spelling] = row.Index;
            }
        }
    }
    return spellings;
}

void ExpectNoKeyUnlessListed(const std::map<Text, int>& listed, const Text& spelling) {
    if (!listed.contains(spelling) && !HasCapital(spelling)) {
        EXPECT_EQ(KeyFromName(spelling), kNoKey) << "\"" << spelling << "\"";
    }
}

TEST(KeysTable, TheListingHoldsEachKeyOnceAndEachSpellingOnce) {
    ASSERT_EQ(std::size(kKeys), 136u);
    std::size_t spellings = 0;
    for (int index = 0; index < 136; ++index) {
        EXPECT_EQ(kKeys[index].Index, index);
        for (const char* spelling : kKeys[index].Spellings) {
            spellings += spelling ? 1 : 0;
        }
    }
    EXPECT_EQ(spellings, 189u);
    EXPECT_EQ(ListedSpellings().size(), 189u);
    EXPECT_EQ(kKeyCount, 136);
}

TEST(KeysTable, EachKeyHasItsNameInTheOlderConsole) {
    for (const auto& row : kKeys) {
        EXPECT_EQ(KeyName(static_cast<KeyIndex>(row.Index), KeyStyle::OldConsole).Name, row.ConsoleName) << row.Index;
    }
}

TEST(KeysTable, EachKeyHasItsNameInTheNewerConsole) {
    for (const auto& row : kKeys) {
        const char* const expected = row.Index == 77 ? "kp_plus" : row.ConsoleName;
        EXPECT_EQ(KeyName(static_cast<KeyIndex>(row.Index), KeyStyle::NewConsole).Name, expected) << row.Index;
    }
}

TEST(KeysTable, EachKeyHasItsNameInUnreal) {
    for (const auto& row : kKeys) {
        EXPECT_EQ(KeyName(static_cast<KeyIndex>(row.Index), KeyStyle::Unreal).Name, row.UnrealName) << row.Index;
    }
}

TEST(KeysTable, TheKeypadIsExplainedInConsoleScripts) {
    for (const auto& row : kKeys) {
        EXPECT_EQ(KeyName(static_cast<KeyIndex>(row.Index), KeyStyle::OldConsole).Comment, row.Comment) << row.Index;
        EXPECT_EQ(KeyName(static_cast<KeyIndex>(row.Index), KeyStyle::NewConsole).Comment, row.Comment) << row.Index;
    }
}

TEST(KeysTable, AnIndexBeyondTheTableHasNoName) {
    for (const int index : {-32768, -1, 136, 149, 65535 / 2}) {
        EXPECT_EQ(KeyName(static_cast<KeyIndex>(index), KeyStyle::NewConsole).Name, "") << index;
        EXPECT_EQ(KeyName(static_cast<KeyIndex>(index), KeyStyle::Unreal).Name, "") << index;
    }
}

TEST(KeysTable, EachListedSpellingIsReadAsItsKey) {
    for (const auto& [spelling, index] : ListedSpellings()) {
        EXPECT_EQ(KeyFromName(spelling), index) << "\"" << spelling << "\"";
    }
}

TEST(KeysTable, NamesThatOnlyLookLikeKeysAreNone) {
    for (const char* const name : listing::kNoKeys) {
        EXPECT_EQ(KeyFromName(name), kNoKey) << "\"" << name << "\"";
    }
}

TEST(KeysTable, NoTextOfOneOrTwoBytesIsAKeyUnlessListed) {
    const auto listed = ListedSpellings();
    for (int first = 0; first < 256; ++first) {
        const Text one(1, static_cast<char>(first));
        ExpectNoKeyUnlessListed(listed, one);
        for (int second = 0; second < 256; ++second) {
            ExpectNoKeyUnlessListed(listed, one + static_cast<char>(second));
        }
    }
}

TEST(KeysTable, ASpellingWithOneByteAmissIsNoKeyUnlessListed) {
    const auto listed = ListedSpellings();
    for (const auto& [spelling, index] : listed) {
        ExpectNoKeyUnlessListed(listed, spelling + " ");
        ExpectNoKeyUnlessListed(listed, " " + spelling);
        ExpectNoKeyUnlessListed(listed, spelling + '\0');
        for (std::size_t at = 0; at < spelling.size(); ++at) {
            ExpectNoKeyUnlessListed(listed, Text(spelling).erase(at, 1));
            for (const char other : TextView("0159aekmpsz_+-. ")) {
                Text changed = spelling;
                changed[at] = other;
                ExpectNoKeyUnlessListed(listed, changed);
                ExpectNoKeyUnlessListed(listed, Text(spelling).insert(at, 1, other));
            }
        }
    }
}

TEST(KeysTable, WhatConsoleScriptsWriteIsReadBackAsTheSameKey) {
    for (KeyIndex key = 0; key < kKeyCount; ++key) {
        EXPECT_EQ(KeyFromName(Lower(Text(KeyName(key, KeyStyle::OldConsole).Name))), key);
        EXPECT_EQ(KeyFromName(Lower(Text(KeyName(key, KeyStyle::NewConsole).Name))), key);
    }
}

TEST(KeysTable, WhatUnrealWritesIsReadBackAsTheSameKeyButForMinusAndTheSecondEnter) {
    for (KeyIndex key = 0; key < kKeyCount; ++key) {
        const int expected = key == 62 ? -1 : key == 93 ? 75 : key;
        EXPECT_EQ(KeyFromName(Lower(Text(KeyName(key, KeyStyle::Unreal).Name))), expected) << key;
    }
}

TEST(KeysTable, EachKeyHasItsCaptionInEachKind) {
    for (const auto& kind : listing::kKeysByKind) {
        const KeyTexts captions = KeyCaptions(kind.Kind);
        for (const auto& row : kKeys) {
            const char* const expected = row.Index == kind.Index ? kind.Caption : row.Caption;
            EXPECT_EQ(captions[static_cast<std::size_t>(row.Index)], expected)
                << row.Index << " in " << NumberOf(kind.Kind);
        }
    }
    for (const auto& row : kKeys) {
        EXPECT_EQ(KeyCaptions(Game::Unreal)[static_cast<std::size_t>(row.Index)], row.Caption) << row.Index;
    }
}

TEST(KeysTable, EachCaptionLeadsToItsKeyInEachKind) {
    for (const Game kind : std::initializer_list<Game>{Game::Quake, Game::Hexen2, Game::Quake2, Game::Unreal, Game::Sin,
                                                       Game::Heretic2, Game::HalfLife}) {
        const KeyTexts captions = KeyCaptions(kind);
        for (const auto& row : kKeys) {
            if (row.Index != 77) {
                EXPECT_EQ(KeyIndexOfCaption(captions, row.Caption), row.Index)
                    << row.Caption << " in " << NumberOf(kind);
            }
        }
        const bool ofItsOwn = kind == Game::Quake2 || kind == Game::Sin;
        EXPECT_EQ(KeyIndexOfCaption(captions, "kp+"), ofItsOwn ? 77 : -1) << NumberOf(kind);
        EXPECT_EQ(KeyIndexOfCaption(captions, "{+}"), ofItsOwn ? -1 : 77) << NumberOf(kind);
    }
}

TEST(KeysTable, CaptionsAreComparedExactly) {
    const KeyTexts captions = KeyCaptions(Game::Quake);
    for (const char* const text :
         {"",    " ",   "{a}",   "A",   "{A} ", " {A}", "spc", "SPC", "Spc ", "{Spc}", "shft", "Shift",
          "{[}", "{]}", "{kp7}", "KP7", "MW",   "J0",   "J7",  "A0",  "A33",  "M0",    "M4",   "Esc"}) {
        EXPECT_EQ(KeyIndexOfCaption(captions, text), kNoKey) << "\"" << text << "\"";
    }
}

TEST(KeysTable, OlderKindsMirrorTheKeypadAndTheRightModifiers) {
    std::map<int, int> expected;
    for (const auto& row : listing::kMirrors) {
        expected[row.Key] = row.Label;
    }
    ASSERT_EQ(expected.size(), 17u);
    for (const Game kind : std::initializer_list<Game>{Game::Quake, Game::Hexen2, Game::HalfLife}) {
        for (KeyIndex key = 0; key < kKeyCount; ++key) {
            EXPECT_EQ(MirrorLabel(key, kind), expected.contains(key) ? expected[key] : -1)
                << key << " in " << NumberOf(kind);
        }
    }
}

TEST(KeysTable, UnrealMirrorsEnterOnly) {
    for (KeyIndex key = 0; key < kKeyCount; ++key) {
        EXPECT_EQ(MirrorLabel(key, Game::Unreal),
                  key == listing::kMirrorOfUnreal.Key ? listing::kMirrorOfUnreal.Label : -1)
            << key;
    }
}

TEST(KeysTable, KindsWithAKeypadOfItsOwnMirrorNothing) {
    for (const Game kind : std::initializer_list<Game>{Game::Quake2, Game::Sin, Game::Heretic2}) {
        for (KeyIndex key = 0; key < kKeyCount; ++key) {
            EXPECT_EQ(MirrorLabel(key, kind), -1) << key << " in " << NumberOf(kind);
        }
    }
}

TEST(KeysTable, ThePlayersColorsAreTheFourteenListed) {
    ASSERT_EQ(ColorTable.size(), 14u);
    ASSERT_EQ(std::size(listing::kColors), 14u);
    for (std::size_t i = 0; i < 14; ++i) {
        EXPECT_EQ(ColorTable[i], listing::kColors[i]) << i;
    }
}

}  // namespace
}  // namespace lv
