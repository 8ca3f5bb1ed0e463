// tests/foundry/listing_keys.h
//
// The keys as they are expected: captions, names to write, spellings to read.

#pragma once

#include <array>

#include "foundation/game.h"

namespace lv::listing {

struct KeyRow {
    int Index;
    const char* Caption;
    const char* ConsoleName;
    const char* UnrealName;
    /// What stands behind the binding in a console script; empty for most.
    const char* Comment;
    /// All that is read as this key, in lower case.
    std::array<const char*, 4> Spellings;
};

// clang-format off
constexpr KeyRow kKeys[] = {
    {0,   "Spc",   "space",         "Space",          "",          {"space"}},
    {1,   "{A}",   "a",             "A",              "",          {"a"}},
    {2,   "{B}",   "b",             "B",              "",          {"b"}},
    {3,   "{C}",   "c",             "C",              "",          {"c"}},
    {4,   "{D}",   "d",             "D",              "",          {"d"}},
    {5,   "{E}",   "e",             "E",              "",          {"e"}},
    {6,   "{F}",   "f",             "F",              "",          {"f"}},
    {7,   "{G}",   "g",             "G",              "",          {"g"}},
    {8,   "{H}",   "h",             "H",              "",          {"h"}},
    {9,   "{I}",   "i",             "I",              "",          {"i"}},
    {10,  "{J}",   "j",             "J",              "",          {"j"}},
    {11,  "{K}",   "k",             "K",              "",          {"k"}},
    {12,  "{L}",   "l",             "L",              "",          {"l"}},
    {13,  "{M}",   "m",             "M",              "",          {"m"}},
    {14,  "{N}",   "n",             "N",              "",          {"n"}},
    {15,  "{O}",   "o",             "O",              "",          {"o"}},
    {16,  "{P}",   "p",             "P",              "",          {"p"}},
    {17,  "{Q}",   "q",             "Q",              "",          {"q"}},
    {18,  "{R}",   "r",             "R",              "",          {"r"}},
    {19,  "{S}",   "s",             "S",              "",          {"s"}},
    {20,  "{T}",   "t",             "T",              "",          {"t"}},
    {21,  "{U}",   "u",             "U",              "",          {"u"}},
    {22,  "{V}",   "v",             "V",              "",          {"v"}},
    {23,  "{W}",   "w",             "W",              "",          {"w"}},
    {24,  "{X}",   "x",             "X",              "",          {"x"}},
    {25,  "{Y}",   "y",             "Y",              "",          {"y"}},
    {26,  "{Z}",   "z",             "Z",              "",          {"z"}},
    {27,  "{0}",   "0",             "0",              "",          {"0"}},
    {28,  "{1}",   "1",             "1",              "",          {"1"}},
    {29,  "{2}",   "2",             "2",              "",          {"2"}},
    {30,  "{3}",   "3",             "3",              "",          {"3"}},
    {31,  "{4}",   "4",             "4",              "",          {"4"}},
    {32,  "{5}",   "5",             "5",              "",          {"5"}},
    {33,  "{6}",   "6",             "6",              "",          {"6"}},
    {34,  "{7}",   "7",             "7",              "",          {"7"}},
    {35,  "{8}",   "8",             "8",              "",          {"8"}},
    {36,  "{9}",   "9",             "9",              "",          {"9"}},
    {37,  "{F1}",  "F1",            "F1",             "",          {"f1"}},
    {38,  "{F2}",  "F2",            "F2",             "",          {"f2"}},
    {39,  "{F3}",  "F3",            "F3",             "",          {"f3"}},
    {40,  "{F4}",  "F4",            "F4",             "",          {"f4"}},
    {41,  "{F5}",  "F5",            "F5",             "",          {"f5"}},
    {42,  "{F6}",  "F6",            "F6",             "",          {"f6"}},
    {43,  "{F7}",  "F7",            "F7",             "",          {"f7"}},
    {44,  "{F8}",  "F8",            "F8",             "",          {"f8"}},
    {45,  "{F9}",  "F9",            "F9",             "",          {"f9"}},
    {46,  "{F10}", "F10",           "F10",            "",          {"f10"}},
    {47,  "{F11}", "F11",           "F11",            "",          {"f11"}},
    {48,  "{F12}", "F12",           "F12",            "",          {"f12"}},
    {49,  "Shft",  "shift",         "Shift",          "",          {"shift"}},
    {50,  "Ctrl",  "ctrl",          "Ctrl",           "",          {"ctrl"}},
    {51,  "Alt",   "alt",           "Alt",            "",          {"alt"}},
    {52,  "{,}",   ",",             "Comma",          "",          {",", "comma", "<"}},
    {53,  "{.}",   ".",             "Period",         "",          {".", "period", ">"}},
    {54,  "{/}",   "/",             "Slash",          "",          {"/", "slash", "?"}},
    {55,  "{;}",   ";",             "Semicolon",      "",          {";", "semicolon", ":"}},
    {56,  "{'}",   "'",             "SingleQuote",    "",          {"'", "singlequote"}},
    {57,  "Tab",   "tab",           "Tab",            "",          {"tab"}},
    {58,  "[",     "[",             "LeftBracket",    "",          {"[", "leftbracket", "{"}},
    {59,  "]",     "]",             "RightBracket",   "",          {"]", "rightbracket", "}"}},
    {60,  "{\\}",  "\\",            "BackSlash",      "",          {"\\", "backslash", "|"}},
    {61,  "{`}",   "`",             "Tilde",          "",          {"`", "tilde", "~"}},
    {62,  "{-}",   "-",             "Minus",          "",          {"-", "_"}},
    {63,  "{=}",   "=",             "Equals",         "",          {"=", "equals"}},
    {64,  "Bksp",  "backspace",     "Backspace",      "",          {"backspace"}},
    {65,  "Ins",   "ins",           "Insert",         "",          {"ins", "insert"}},
    {66,  "Del",   "del",           "Delete",         "",          {"del", "delete"}},
    {67,  "Home",  "home",          "Home",           "",          {"home"}},
    {68,  "End",   "end",           "End",            "",          {"end"}},
    {69,  "PgU",   "pgup",          "PageUp",         "",          {"pgup", "pageup"}},
    {70,  "PgD",   "pgdn",          "PageDown",       "",          {"pgdn", "pagedown", "pagedn", "pgdown"}},
    {71,  "UpAr",  "uparrow",       "Up",             "",          {"uparrow", "up"}},
    {72,  "DnAr",  "downarrow",     "Down",           "",          {"downarrow", "down"}},
    {73,  "L.Ar",  "leftarrow",     "Left",           "",          {"leftarrow", "left"}},
    {74,  "R.Ar",  "rightarrow",    "Right",          "",          {"rightarrow", "right"}},
    {75,  "Ent",   "enter",         "Enter",          "",          {"enter"}},
    {76,  "{*}",   "*",             "GreyStar",       "",          {"*", "greystar"}},
    {77,  "{+}",   "+",             "GreyPlus",       "",          {"+", "greyplus", "kp_plus"}},
    {78,  "Pause", "pause",         "Pause",          "",          {"pause"}},
    {79,  "M1",    "mouse1",        "LeftMouse",      "",          {"mouse1", "leftmouse", "m1"}},
    {80,  "M2",    "mouse2",        "RightMouse",     "",          {"mouse2", "rightmouse", "m2"}},
    {81,  "M3",    "mouse3",        "MiddleMouse",    "",          {"mouse3", "middlemouse", "m3"}},
    {82,  "kp/",   "kp_slash",      "GreySlash",      "",          {"kp_slash", "greyslash"}},
    {83,  "kp-",   "kp_minus",      "GreyMinus",      "",          {"kp_minus", "greyminus"}},
    {84,  "kp7",   "kp_home",       "NumPad7",        "key pad 7", {"kp_home", "numpad7"}},
    {85,  "kp8",   "kp_uparrow",    "NumPad8",        "key pad 8", {"kp_uparrow", "numpad8"}},
    {86,  "kp9",   "kp_pgup",       "NumPad9",        "key pad 9", {"kp_pgup", "numpad9"}},
    {87,  "kp4",   "kp_leftarrow",  "NumPad4",        "key pad 4", {"kp_leftarrow", "numpad4"}},
    {88,  "kp5",   "kp_5",          "NumPad5",        "key pad 5", {"kp_5", "numpad5"}},
    {89,  "kp6",   "kp_rightarrow", "NumPad6",        "key pad 6", {"kp_rightarrow", "numpad6"}},
    {90,  "kp1",   "kp_end",        "NumPad1",        "key pad 1", {"kp_end", "numpad1"}},
    {91,  "kp2",   "kp_downarrow",  "NumPad2",        "key pad 2", {"kp_downarrow", "numpad2"}},
    {92,  "kp3",   "kp_pgdn",       "NumPad3",        "key pad 3", {"kp_pgdn", "numpad3"}},
    {93,  "kpEnt", "kp_enter",      "Enter",          "",          {"kp_enter"}},
    {94,  "kp0",   "kp_ins",        "NumPad0",        "key pad 0", {"kp_ins", "numpad0"}},
    {95,  "kpDel", "kp_del",        "NumPadPeriod",   "",          {"kp_del", "numpadperiod"}},
    {96,  "MwU",   "mwheelup",      "MouseWheelUp",   "",          {"mwheelup", "mousewheelup"}},
    {97,  "MwD",   "mwheeldown",    "MouseWheelDown", "",          {"mwheeldown", "mousewheeldown"}},
    {98,  "J1",    "joy1",          "Joy1",           "",          {"joy1"}},
    {99,  "J2",    "joy2",          "Joy2",           "",          {"joy2"}},
    {100, "J3",    "joy3",          "Joy3",           "",          {"joy3"}},
    {101, "J4",    "joy4",          "Joy4",           "",          {"joy4"}},
    {102, "J5",    "joy5",          "Joy5",           "",          {"joy5"}},
    {103, "J6",    "joy6",          "Joy6",           "",          {"joy6"}},
    {104, "A1",    "aux1",          "Aux1",           "",          {"aux1"}},
    {105, "A2",    "aux2",          "Aux2",           "",          {"aux2"}},
    {106, "A3",    "aux3",          "Aux3",           "",          {"aux3"}},
    {107, "A4",    "aux4",          "Aux4",           "",          {"aux4"}},
    {108, "A5",    "aux5",          "Aux5",           "",          {"aux5"}},
    {109, "A6",    "aux6",          "Aux6",           "",          {"aux6"}},
    {110, "A7",    "aux7",          "Aux7",           "",          {"aux7"}},
    {111, "A8",    "aux8",          "Aux8",           "",          {"aux8"}},
    {112, "A9",    "aux9",          "Aux9",           "",          {"aux9"}},
    {113, "A10",   "aux10",         "Aux10",          "",          {"aux10"}},
    {114, "A11",   "aux11",         "Aux11",          "",          {"aux11"}},
    {115, "A12",   "aux12",         "Aux12",          "",          {"aux12"}},
    {116, "A13",   "aux13",         "Aux13",          "",          {"aux13"}},
    {117, "A14",   "aux14",         "Aux14",          "",          {"aux14"}},
    {118, "A15",   "aux15",         "Aux15",          "",          {"aux15"}},
    {119, "A16",   "aux16",         "Aux16",          "",          {"aux16"}},
    {120, "A17",   "aux17",         "Aux17",          "",          {"aux17"}},
    {121, "A18",   "aux18",         "Aux18",          "",          {"aux18"}},
    {122, "A19",   "aux19",         "Aux19",          "",          {"aux19"}},
    {123, "A20",   "aux20",         "Aux20",          "",          {"aux20"}},
    {124, "A21",   "aux21",         "Aux21",          "",          {"aux21"}},
    {125, "A22",   "aux22",         "Aux22",          "",          {"aux22"}},
    {126, "A23",   "aux23",         "Aux23",          "",          {"aux23"}},
    {127, "A24",   "aux24",         "Aux24",          "",          {"aux24"}},
    {128, "A25",   "aux25",         "Aux25",          "",          {"aux25"}},
    {129, "A26",   "aux26",         "Aux26",          "",          {"aux26"}},
    {130, "A27",   "aux27",         "Aux27",          "",          {"aux27"}},
    {131, "A28",   "aux28",         "Aux28",          "",          {"aux28"}},
    {132, "A29",   "aux29",         "Aux29",          "",          {"aux29"}},
    {133, "A30",   "aux30",         "Aux30",          "",          {"aux30"}},
    {134, "A31",   "aux31",         "Aux31",          "",          {"aux31"}},
    {135, "A32",   "aux32",         "Aux32",          "",          {"aux32"}},
};

/// The one key whose caption and console name change with the kind.
struct KeyOfKind {
    int Index;
    Game Kind;
    const char* Caption;
    const char* ConsoleName;
};
constexpr KeyOfKind kKeysByKind[] = {
    {77, Game::Quake, "{+}", "+"},
    {77, Game::Hexen2, "{+}", "+"},
    {77, Game::Quake2, "kp+", "kp_plus"},
    {77, Game::Sin, "kp+", "kp_plus"},
    {77, Game::Heretic2, "{+}", "kp_plus"},
    {77, Game::HalfLife, "{+}", "kp_plus"},
};

/// Names that look like keys and are none.
constexpr const char* kNoKeys[] = {
    "",          "minus",     "escape",   "esc",       "capslock",  "numlock",    "scrolllock", "printscreen",
    "spacebar",  "plus",      "quote",    "apostrophe", "grave",    "return",     "kp_5 ",      " a",
    "f0",        "f13",       "joy0",     "joy7",      "joy16",     "aux0",       "aux33",      "aux01",
    "mouse0",    "mouse4",    "m0",       "m4",        "m5",        "kp_multiply", "kp_0",      "kp_7",
    "numpad",    "numpad10",  "lshift",   "rshift",    "rctrl",     "control",    "mwheel",     "wheelup",
    "pageu",     "pgupp",     "arrowup",  "uparrow ",  "greyenter", "numpadenter", "greydot",   "10",
    "aa",        "\"",        "+speed",   "^",         "@",         "\xa0",       "none",       "unknown",
};

/// A key that also paints another label of the picture, and that label. In kinds 1, 2 and 9 all of them.
struct MirrorRow {
    int Key;
    int Label;
};
constexpr MirrorRow kMirrors[] = {
    {32, 88}, {49, 149}, {50, 150}, {51, 151}, {54, 82}, {62, 83}, {65, 94}, {66, 95}, {67, 84},
    {68, 90}, {69, 86},  {70, 92},  {71, 85},  {72, 91}, {73, 87}, {74, 89}, {75, 93},
};
/// In kind 4 this one only; in kinds 3, 5 and 6 none.
constexpr MirrorRow kMirrorOfUnreal = {75, 93};

/// Shirt and pants, blue-green-red.
constexpr unsigned kColors[] = {
    0xffffff, 0x008080, 0xa88677, 0x008000, 0x000080, 0x5a8779, 0x4d6ba6,
    0x4989cf, 0x753572, 0xb779b4, 0x697b83, 0x6b7c3f, 0x00ffff, 0xc00000,
};
// clang-format on

}  // namespace lv::listing
