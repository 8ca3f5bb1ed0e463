#include "foundry/editor/key_picture.h"

#include <algorithm>
#include <iterator>

#include "foundation/game.h"
#include "foundry/editor/controllers.h"

namespace lv {

namespace {

constexpr Color kBlack = 0x000000;

constexpr int kRowTops[] = {240, 540, 795, 1050, 1305, 1560};  // twips, as all that follows but for the quarters
constexpr int kRowPitch = 255;
constexpr int kKeyHeight = 240;
constexpr int kLeftmost = 60;
constexpr int kQuarter = 90;  // of the pitch of keys
constexpr int kBetweenKeys = 15;

struct LabelRow {
    Index Label;
    TextView Caption;
    TextView Spoken;
    int Row;        // of kRowTops
    int Left;       // in quarters of a key, from the left end
    int Width = 4;  // in quarters of a key
    int Rows = 1;   // how many rows it is high
};

// clang-format off
constexpr LabelRow kLabelRows[] = {
    // label, caption, in words, row, left, width, rows
    {200, "Esc", "Esc", 0, 0},
    {37, "F1", "F1", 0, 8},
    {38, "F2", "F2", 0, 12},
    {39, "F3", "F3", 0, 16},
    {40, "F4", "F4", 0, 20},
    {41, "F5", "F5", 0, 26},
    {42, "F6", "F6", 0, 30},
    {43, "F7", "F7", 0, 34},
    {44, "F8", "F8", 0, 38},
    {45, "F9", "F9", 0, 44},
    {46, "F10", "F10", 0, 48},
    {47, "F11", "F11", 0, 52},
    {48, "F12", "F12", 0, 56},
    {202, "PS", "Print Screen", 0, 61},
    {203, "SL", "Scroll Lock", 0, 65},
    {78, "Ps", "Pause", 0, 69},

    {61, "`~", "Back Quote", 1, 0},
    {28, "1", "1", 1, 4},
    {29, "2", "2", 1, 8},
    {30, "3", "3", 1, 12},
    {31, "4", "4", 1, 16},
    {32, "5", "5", 1, 20},
    {33, "6", "6", 1, 24},
    {34, "7", "7", 1, 28},
    {35, "8", "8", 1, 32},
    {36, "9", "9", 1, 36},
    {27, "0", "0", 1, 40},
    {62, "-", "Minus", 1, 44},
    {63, "=", "Equals", 1, 48},
    {64, "Bksp", "Backspace", 1, 52, 8},
    {65, "Ins", "Insert", 1, 61},
    {67, "Hm", "Home", 1, 65},
    {69, "PgU", "Page Up", 1, 69},
    {204, "NL", "Num Lock", 1, 74},
    {82, "/", "Keypad Slash", 1, 78},
    {76, "*", "Keypad Star", 1, 82},
    {83, "-", "Keypad Minus", 1, 86, 6},
    {79, "M-1", "Mouse 1", 1, 93},
    {80, "M-2", "Mouse 2", 1, 97},
    {81, "M-3", "Mouse 3", 1, 101},

    {57, "Tab", "Tab", 2, 0, 6},
    {17, "Q", "Q", 2, 6},
    {23, "W", "W", 2, 10},
    {5, "E", "E", 2, 14},
    {18, "R", "R", 2, 18},
    {20, "T", "T", 2, 22},
    {25, "Y", "Y", 2, 26},
    {21, "U", "U", 2, 30},
    {9, "I", "I", 2, 34},
    {15, "O", "O", 2, 38},
    {16, "P", "P", 2, 42},
    {58, "[", "Left Bracket", 2, 46},
    {59, "]", "Right Bracket", 2, 50},
    {60, "\\", "Backslash", 2, 54, 6},
    {66, "Del", "Delete", 2, 61},
    {68, "End", "End", 2, 65},
    {70, "PgD", "Page Down", 2, 69},
    {84, "Hm", "Keypad 7", 2, 74},
    {85, "^", "Keypad 8", 2, 78},
    {86, "PgU", "Keypad 9", 2, 82},
    {77, "+", "Keypad Plus", 2, 86, 6, 2},
    {96, "Mwheel up", "Wheel up", 2, 93, 12},

    {201, "Caps", "Caps Lock", 3, 0, 7},
    {1, "A", "A", 3, 7},
    {19, "S", "S", 3, 11},
    {4, "D", "D", 3, 15},
    {6, "F", "F", 3, 19},
    {7, "G", "G", 3, 23},
    {8, "H", "H", 3, 27},
    {10, "J", "J", 3, 31},
    {11, "K", "K", 3, 35},
    {12, "L", "L", 3, 39},
    {55, ";", "Semicolon", 3, 43},
    {56, "'", "Apostrophe", 3, 47},
    {75, "Enter", "Enter", 3, 51, 9},
    {87, "<-", "Keypad 4", 3, 74},
    {88, "5", "Keypad 5", 3, 78},
    {89, "->", "Keypad 6", 3, 82},
    {97, "MWheel dn", "Wheel down", 3, 93, 12},

    {49, "Shift", "Shift", 4, 0, 9},
    {26, "Z", "Z", 4, 9},
    {24, "X", "X", 4, 13},
    {3, "C", "C", 4, 17},
    {22, "V", "V", 4, 21},
    {2, "B", "B", 4, 25},
    {14, "N", "N", 4, 29},
    {13, "M", "M", 4, 33},
    {52, "<,", "Comma", 4, 37},
    {53, ">.", "Period", 4, 41},
    {54, "?/", "Slash", 4, 45},
    {149, "Shift", "Right Shift", 4, 49, 11},
    {71, "^", "Up", 4, 65},
    {90, "End", "Keypad 1", 4, 74},
    {91, "v", "Keypad 2", 4, 78},
    {92, "PgD", "Keypad 3", 4, 82},
    {93, "Enter", "Keypad Enter", 4, 86, 6, 2},

    {50, "Ctrl", "Ctrl", 5, 0, 6},
    {51, "Alt", "Alt", 5, 10, 6},
    {0, "Space Bar", "Space", 5, 16, 28},
    {151, "Alt", "Right Alt", 5, 44, 6},
    {150, "Ctrl", "Right Ctrl", 5, 54, 6},
    {73, "<-", "Left", 5, 61},
    {72, "v", "Down", 5, 65},
    {74, "->", "Right", 5, 69},
    {94, "Ins", "Keypad 0", 5, 74, 8},
    {95, "Del", "Keypad Del", 5, 82},
};

/// The older engines take a key of the keypad for the main key.
struct TwinRow {
    Index Label;
    KeyIndex Key;
};

constexpr TwinRow kTwins[] = {
    {82, 54},
    {83, 62},
    {84, 67},
    {85, 71},
    {86, 69},
    {87, 73},
    {88, 32},
    {89, 74},
    {90, 68},
    {91, 72},
    {92, 70},
    {93, 75},
    {94, 65},
    {95, 66},
};
// clang-format on

constexpr Index kRightToLeft = 100;  // from label 149 to key 49
constexpr KeyIndex kEnter = 75;
constexpr Index kKeypadEnter = 93;
constexpr Index kFirstAuxLabel = 104;

bool KeypadIsItsOwn(Game gameKind) {
    return gameKind == Game::Quake2 || gameKind == Game::Unreal || gameKind == Game::Sin || gameKind == Game::Heretic2;
}

Text JoyCaption(Index label) {
    return label < kFirstAuxLabel ? Join("Joy", std::to_string(label - kFirstJoyLabel + 1))
                                  : Join("Aux", std::to_string(label - kFirstAuxLabel + 1));
}

KeyLabel MakeKeyLabel(const LabelRow& row) {
    KeyLabel label;
    label.Caption = row.Caption;
    label.Exists = true;
    label.BackColor = row.Label >= kFirstUnbindable ? kBlack : kWhite;
    label.Top = kRowTops[row.Row];
    label.Left = kLeftmost + row.Left * kQuarter;
    label.Width = row.Width * kQuarter - kBetweenKeys;
    label.Height = (row.Rows - 1) * kRowPitch + kKeyHeight;
    return label;
}

}  // namespace

void LayOutKeys(Fig_Frm& form) {
    form.Key_Lbl = {};
    for (const LabelRow& row : kLabelRows) {
        form.KeyLabelOf(row.Label) = MakeKeyLabel(row);
    }
    for (Index label = kFirstJoyLabel; label < kKeyCount; ++label) {
        form.KeyLabelOf(label).Caption = JoyCaption(label);
        form.KeyLabelOf(label).Exists = true;
    }
    FillDevices(form);
    LayOutGrid(form);
}

KeyIndex KeyOfLabel(Index label, Game gameKind) {
    if (label >= kRightShift && label <= kRightAlt) {
        return static_cast<KeyIndex>(label - kRightToLeft);
    }
    if (label < 0 || label >= kKeyCount) {
        return kNoKey;
    }
    const auto* const twin = std::ranges::find(kTwins, label, &TwinRow::Label);
    return twin == std::end(kTwins) || KeypadIsItsOwn(gameKind) ? label : twin->Key;
}

KeyIndex KeyToClear(Index label, Game gameKind) {
    return gameKind == Game::Unreal && label == kKeypadEnter ? kEnter : KeyOfLabel(label, gameKind);
}

Text SpokenName(Index label) {
    if (label >= kFirstJoyLabel && label < kKeyCount) {
        return JoyCaption(label);
    }
    const auto* const row = std::ranges::find(kLabelRows, label, &LabelRow::Label);
    return row == std::end(kLabelRows) ? Text() : Text(row->Spoken);
}

}  // namespace lv
