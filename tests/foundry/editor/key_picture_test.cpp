#include "foundry/editor/key_picture.h"

#include <gmock/gmock.h>

#include <map>
#include <vector>

#include "foundry/document/bindings.h"
#include "tests/foundry/editor/fig_fixture.h"
#include "tests/foundry/kinds.h"

namespace lv {
namespace {

using testing::ElementsAreArray;

// clang-format off
const std::map<Index, Text> kCaptions = {
    {0, "Space Bar"},
    {1, "A"}, {2, "B"}, {3, "C"}, {4, "D"}, {5, "E"}, {6, "F"}, {7, "G"}, {8, "H"}, {9, "I"}, {10, "J"}, {11, "K"},
    {12, "L"}, {13, "M"}, {14, "N"}, {15, "O"}, {16, "P"}, {17, "Q"}, {18, "R"}, {19, "S"}, {20, "T"}, {21, "U"},
    {22, "V"}, {23, "W"}, {24, "X"}, {25, "Y"}, {26, "Z"},
    {27, "0"}, {28, "1"}, {29, "2"}, {30, "3"}, {31, "4"}, {32, "5"}, {33, "6"}, {34, "7"}, {35, "8"}, {36, "9"},
    {37, "F1"}, {38, "F2"}, {39, "F3"}, {40, "F4"}, {41, "F5"}, {42, "F6"}, {43, "F7"}, {44, "F8"}, {45, "F9"},
    {46, "F10"}, {47, "F11"}, {48, "F12"},
    {49, "Shift"}, {50, "Ctrl"}, {51, "Alt"}, {52, "<,"}, {53, ">."}, {54, "?/"}, {55, ";"}, {56, "'"}, {57, "Tab"},
    {58, "["}, {59, "]"}, {60, "\\"}, {61, "`~"}, {62, "-"}, {63, "="}, {64, "Bksp"}, {65, "Ins"}, {66, "Del"},
    {67, "Hm"}, {68, "End"}, {69, "PgU"}, {70, "PgD"}, {71, "^"}, {72, "v"}, {73, "<-"}, {74, "->"}, {75, "Enter"},
    {76, "*"}, {77, "+"}, {78, "Ps"}, {79, "M-1"}, {80, "M-2"}, {81, "M-3"}, {82, "/"}, {83, "-"}, {84, "Hm"},
    {85, "^"}, {86, "PgU"}, {87, "<-"}, {88, "5"}, {89, "->"}, {90, "End"}, {91, "v"}, {92, "PgD"}, {93, "Enter"},
    {94, "Ins"}, {95, "Del"}, {96, "Mwheel up"}, {97, "MWheel dn"},
    {98, "Joy1"}, {99, "Joy2"}, {100, "Joy3"}, {101, "Joy4"}, {102, "Joy5"}, {103, "Joy6"},
    {104, "Aux1"}, {105, "Aux2"}, {106, "Aux3"}, {107, "Aux4"}, {108, "Aux5"}, {109, "Aux6"}, {110, "Aux7"},
    {111, "Aux8"}, {112, "Aux9"}, {113, "Aux10"}, {114, "Aux11"}, {115, "Aux12"}, {116, "Aux13"}, {117, "Aux14"},
    {118, "Aux15"}, {119, "Aux16"}, {120, "Aux17"}, {121, "Aux18"}, {122, "Aux19"}, {123, "Aux20"}, {124, "Aux21"},
    {125, "Aux22"}, {126, "Aux23"}, {127, "Aux24"}, {128, "Aux25"}, {129, "Aux26"}, {130, "Aux27"}, {131, "Aux28"},
    {132, "Aux29"}, {133, "Aux30"}, {134, "Aux31"}, {135, "Aux32"},
    {149, "Shift"}, {150, "Ctrl"}, {151, "Alt"},
    {200, "Esc"}, {201, "Caps"}, {202, "PS"}, {203, "SL"}, {204, "NL"},
};

/// The labels of a row, from the left, as they stand on a keyboard.
const std::map<int, std::vector<Index>> kRows = {
    {240, {200, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48, 202, 203, 78}},
    {540, {61, 28, 29, 30, 31, 32, 33, 34, 35, 36, 27, 62, 63, 64, 65, 67, 69, 204, 82, 76, 83, 79, 80, 81}},
    {795, {57, 17, 23, 5, 18, 20, 25, 21, 9, 15, 16, 58, 59, 60, 66, 68, 70, 84, 85, 86, 77, 96}},
    {1050, {201, 1, 19, 4, 6, 7, 8, 10, 11, 12, 55, 56, 75, 87, 88, 89, 97}},
    {1305, {49, 26, 24, 3, 22, 2, 14, 13, 52, 53, 54, 149, 71, 90, 91, 92, 93}},
    {1560, {50, 51, 0, 151, 150, 73, 72, 74, 94, 95}},
};

/// The labels that stand for another key, in the kinds whose keypad is not its own.
const std::map<Index, KeyIndex> kTwins = {
    {82, 54}, {83, 62}, {84, 67}, {85, 71}, {86, 69}, {87, 73}, {88, 32}, {89, 74}, {90, 68}, {91, 72}, {92, 70},
    {93, 75}, {94, 65}, {95, 66},
};

const std::map<KeyIndex, Index> kMirrors = {
    {32, 88}, {49, 149}, {50, 150}, {51, 151}, {54, 82}, {62, 83}, {65, 94}, {66, 95}, {67, 84}, {69, 86}, {70, 92},
    {71, 85}, {72, 91}, {73, 87}, {74, 89}, {75, 93}, {68, 90},
};
// clang-format on

bool OnKeyboard(Index label) {
    return label < 98 || label > 135;
}

bool Overlap(const KeyLabel& a, const KeyLabel& b) {
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
           b.Top < a.Top + a.Height;
}

struct KeyPicture : FigTest {
    KeyPicture() { LayOutKeys(form); }

    [[nodiscard]] std::vector<Index> Existing() const {
        std::vector<Index> labels;
        for (Index label = 0; label <= kLastKeyLabel; ++label) {
            if (form.Key_Lbl[static_cast<std::size_t>(label)].Exists) {
                labels.push_back(label);
            }
        }
        return labels;
    }
};

TEST_F(KeyPicture, HasTheKeysTheRightHandModifiersAndTheUnbindableOnes) {
    std::vector<Index> labels;
    for (const auto& [label, caption] : kCaptions) {
        labels.push_back(label);
    }
    EXPECT_THAT(Existing(), ElementsAreArray(labels));
}

TEST_F(KeyPicture, CaptionsEachKey) {
    for (const auto& [label, caption] : kCaptions) {
        EXPECT_EQ(form.KeyLabelOf(label).Caption, caption) << label;
    }
}

TEST_F(KeyPicture, IsWhiteButForTheKeysThatCannotBeBound) {
    for (const auto& [label, caption] : kCaptions) {
        EXPECT_EQ(KeyColor(label), label >= 200 ? 0x000000U : 0xffffffU) << label;
    }
}

TEST_F(KeyPicture, HasTheUsualRowsOfAKeyboard) {
    std::size_t placed = 0;
    for (const auto& [top, labels] : kRows) {
        int left = 0;
        for (const Index label : labels) {
            EXPECT_EQ(form.KeyLabelOf(label).Top, top) << label;
            EXPECT_GT(form.KeyLabelOf(label).Left, left) << label;
            left = form.KeyLabelOf(label).Left;
        }
        placed += labels.size();
    }
    EXPECT_EQ(placed, 106U);
}

TEST_F(KeyPicture, HasNormalKeysOf345TwipsAtAPitchOf360) {
    const std::vector<Index> digits = kRows.at(540);
    for (std::size_t i = 0; i < 13; ++i) {
        EXPECT_EQ(form.KeyLabelOf(digits[i]).Width, 345) << digits[i];
        EXPECT_EQ(form.KeyLabelOf(digits[i]).Left, 60 + static_cast<int>(i) * 360) << digits[i];
    }
}

TEST_F(KeyPicture, HasWiderKeysWhereTheKeyboardHas) {
    for (const Index label : KeyList{57, 201, 75, 49, 149, 50, 150, 51, 151, 64, 60, 0, 94}) {
        EXPECT_GE(form.KeyLabelOf(label).Width, 525) << label;
    }
}

TEST_F(KeyPicture, GivesLongCaptionsTheRoomTheyNeed) {
    for (const Index label : KeyList{0, 96, 97}) {
        EXPECT_GE(form.KeyLabelOf(label).Width, 900) << label;
    }
}

TEST_F(KeyPicture, HasTheMouseKeysRightOfTheKeypad) {
    const KeyLabel& keypadEnter = form.KeyLabelOf(93);
    for (const Index label : KeyList{79, 80, 81, 96, 97}) {
        EXPECT_GT(form.KeyLabelOf(label).Left, keypadEnter.Left + keypadEnter.Width) << label;
    }
}

TEST_F(KeyPicture, LiesWithinItsPanel) {
    for (const Index label : Existing()) {
        const KeyLabel& key = form.KeyLabelOf(label);
        EXPECT_GE(key.Left, 0) << label;
        EXPECT_GE(key.Top, 0) << label;
        EXPECT_GT(key.Width, 0) << label;
        EXPECT_GT(key.Height, 0) << label;
        EXPECT_LE(key.Left + key.Width, 10500) << label;
        EXPECT_LE(key.Top + key.Height, 1850) << label;
    }
}

TEST_F(KeyPicture, HasNoLabelOverAnother) {
    const std::vector<Index> labels = Existing();
    for (const Index one : labels) {
        for (const Index other : labels) {
            if (one < other && OnKeyboard(one) == OnKeyboard(other)) {
                EXPECT_FALSE(Overlap(form.KeyLabelOf(one), form.KeyLabelOf(other))) << one << " " << other;
            }
        }
    }
}

TEST(KeyOfLabel, IsTheMainKeyOnTheKeypadOfTheOlderEngines) {
    for (const Game kind : Kinds{Game::Quake, Game::Hexen2, Game::HalfLife}) {
        for (Index label = 0; label < 136; ++label) {
            const auto twin = kTwins.find(label);
            EXPECT_EQ(KeyOfLabel(label, kind), twin == kTwins.end() ? label : twin->second)
                << NumberOf(kind) << " " << label;
        }
    }
}

TEST(KeyOfLabel, IsTheLabelsOwnKeyWhereTheKeypadIsItsOwn) {
    for (const Game kind : Kinds{Game::Quake2, Game::Unreal, Game::Sin, Game::Heretic2}) {
        for (Index label = 0; label < 136; ++label) {
            EXPECT_EQ(KeyOfLabel(label, kind), label) << NumberOf(kind);
        }
    }
}

TEST(KeyOfLabel, IsTheLeftModifierForTheRightOneInAllKinds) {
    for (const Game kind : kKinds) {
        EXPECT_EQ(KeyOfLabel(149, kind), 49) << NumberOf(kind);
        EXPECT_EQ(KeyOfLabel(150, kind), 50) << NumberOf(kind);
        EXPECT_EQ(KeyOfLabel(151, kind), 51) << NumberOf(kind);
        EXPECT_EQ(KeyToClear(149, kind), 49) << NumberOf(kind);
        EXPECT_EQ(KeyToClear(150, kind), 50) << NumberOf(kind);
        EXPECT_EQ(KeyToClear(151, kind), 51) << NumberOf(kind);
    }
}

TEST(KeyOfLabel, IsNoneForWhatCannotBeBoundOrIsNoLabel) {
    for (const Game kind : kKinds) {
        for (const Index label : KeyList{-1, -32768, 136, 148, 152, 199, 200, 201, 202, 203, 204, 205, 32767}) {
            EXPECT_EQ(KeyOfLabel(label, kind), kNoKey) << NumberOf(kind) << " " << label;
            EXPECT_EQ(KeyToClear(label, kind), kNoKey) << NumberOf(kind) << " " << label;
        }
    }
}

TEST(KeyToClear, IsTheMainEnterForUnrealsKeypadEnterWhichADragBindsItself) {
    EXPECT_EQ(KeyToClear(93, Game::Unreal), 75);
    EXPECT_EQ(KeyOfLabel(93, Game::Unreal), 93);
}

TEST(KeyToClear, IsElsewhereTheKeyThatADragBinds) {
    for (const Game kind : kKinds) {
        for (Index label = 0; label < 136; ++label) {
            if (kind != Game::Unreal || label != 93) {
                EXPECT_EQ(KeyToClear(label, kind), KeyOfLabel(label, kind)) << NumberOf(kind) << " " << label;
            }
        }
    }
}

struct MirrorKeys : FigTest {
    /// The labels that have a colour once the key is bound.
    std::vector<Index> ColoredWith(KeyIndex key, Game kind) {
        LayOutKeys(form);
        form.Document = MakeScriptDocument({.GameKind = kind});
        BindKey(form.Document, form, key, 111);
        std::vector<Index> colored;
        for (Index label = 0; label < kFirstUnbindable; ++label) {
            if (KeyColor(label) != kWhite) {
                EXPECT_EQ(KeyColor(label), 0x00c000U) << label;
                colored.push_back(label);
            }
        }
        UnbindKey(form.Document, form, key);
        EXPECT_EQ(KeyColor(key), kWhite);
        return colored;
    }
};

TEST_F(MirrorKeys, ColorTwoLabelsInTheOlderEngines) {
    for (const Game kind : Kinds{Game::Quake, Game::Hexen2, Game::HalfLife}) {
        for (KeyIndex key = 0; key < kKeyCount; ++key) {
            const auto mirror = kMirrors.find(key);
            const std::vector<Index> expected =
                mirror == kMirrors.end() ? std::vector<Index>{key} : std::vector<Index>{key, mirror->second};
            EXPECT_EQ(ColoredWith(key, kind), expected) << NumberOf(kind);
        }
    }
}

TEST_F(MirrorKeys, AreNoneInQuake2SinAndHeretic2NotEvenTheRightShift) {
    for (const Game kind : Kinds{Game::Quake2, Game::Sin, Game::Heretic2}) {
        for (const auto& [key, mirror] : kMirrors) {
            EXPECT_EQ(ColoredWith(key, kind), std::vector<Index>{key}) << NumberOf(kind);
        }
    }
}

TEST_F(MirrorKeys, AreEnterAloneInUnreal) {
    for (const auto& [key, mirror] : kMirrors) {
        const std::vector<Index> expected = key == 75 ? std::vector<Index>{75, 93} : std::vector<Index>{key};
        EXPECT_EQ(ColoredWith(key, Game::Unreal), expected);
    }
}

TEST(SpokenName, SaysTheKeyInWords) {
    EXPECT_EQ(SpokenName(0), "Space");
    EXPECT_EQ(SpokenName(23), "W");
    EXPECT_EQ(SpokenName(27), "0");
    EXPECT_EQ(SpokenName(48), "F12");
    EXPECT_EQ(SpokenName(52), "Comma");
    EXPECT_EQ(SpokenName(60), "Backslash");
    EXPECT_EQ(SpokenName(67), "Home");
    EXPECT_EQ(SpokenName(71), "Up");
    EXPECT_EQ(SpokenName(80), "Mouse 2");
    EXPECT_EQ(SpokenName(88), "Keypad 5");
    EXPECT_EQ(SpokenName(97), "Wheel down");
    EXPECT_EQ(SpokenName(103), "Joy6");
    EXPECT_EQ(SpokenName(135), "Aux32");
    EXPECT_EQ(SpokenName(149), "Right Shift");
    EXPECT_EQ(SpokenName(200), "Esc");
    EXPECT_EQ(SpokenName(140), "");
    EXPECT_EQ(SpokenName(-1), "");
}

TEST(SpokenName, TellsAllLabelsApart) {
    std::map<Text, Index> spoken;
    for (const auto& [label, caption] : kCaptions) {
        EXPECT_FALSE(SpokenName(label).empty()) << label;
        EXPECT_TRUE(spoken.emplace(SpokenName(label), label).second) << label;
    }
}

}  // namespace
}  // namespace lv
