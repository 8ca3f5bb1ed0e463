// foundry/tables/key_rows.h
//
// The key table, a row a key.

#pragma once

#include <array>
#include <iterator>

#include "foundry/tables/keys.h"

namespace lv {

struct KeyRow {
    TextView Caption;
    TextView ConsoleName;
    TextView UnrealName;
    std::array<const char*, 3> AlsoRead = {};  // besides the console name; all in lower case
};

// clang-format off
constexpr KeyRow kKeyRows[] = {
    // caption, console name, Unreal name, also accepted on reading
    {"Spc", "space", "Space"},                                    // 0
    {"{A}", "a", "A"},                                            // 1
    {"{B}", "b", "B"},                                            // 2
    {"{C}", "c", "C"},                                            // 3
    {"{D}", "d", "D"},                                            // 4
    {"{E}", "e", "E"},                                            // 5
    {"{F}", "f", "F"},                                            // 6
    {"{G}", "g", "G"},                                            // 7
    {"{H}", "h", "H"},                                            // 8
    {"{I}", "i", "I"},                                            // 9
    {"{J}", "j", "J"},                                            // 10
    {"{K}", "k", "K"},                                            // 11
    {"{L}", "l", "L"},                                            // 12
    {"{M}", "m", "M"},                                            // 13
    {"{N}", "n", "N"},                                            // 14
    {"{O}", "o", "O"},                                            // 15
    {"{P}", "p", "P"},                                            // 16
    {"{Q}", "q", "Q"},                                            // 17
    {"{R}", "r", "R"},                                            // 18
    {"{S}", "s", "S"},                                            // 19
    {"{T}", "t", "T"},                                            // 20
    {"{U}", "u", "U"},                                            // 21
    {"{V}", "v", "V"},                                            // 22
    {"{W}", "w", "W"},                                            // 23
    {"{X}", "x", "X"},                                            // 24
    {"{Y}", "y", "Y"},                                            // 25
    {"{Z}", "z", "Z"},                                            // 26
    {"{0}", "0", "0"},                                            // 27
    {"{1}", "1", "1"},                                            // 28
    {"{2}", "2", "2"},                                            // 29
    {"{3}", "3", "3"},                                            // 30
    {"{4}", "4", "4"},                                            // 31
    {"{5}", "5", "5"},                                            // 32
    {"{6}", "6", "6"},                                            // 33
    {"{7}", "7", "7"},                                            // 34
    {"{8}", "8", "8"},                                            // 35
    {"{9}", "9", "9"},                                            // 36
    {"{F1}", "F1", "F1"},                                         // 37
    {"{F2}", "F2", "F2"},                                         // 38
    {"{F3}", "F3", "F3"},                                         // 39
    {"{F4}", "F4", "F4"},                                         // 40
    {"{F5}", "F5", "F5"},                                         // 41
    {"{F6}", "F6", "F6"},                                         // 42
    {"{F7}", "F7", "F7"},                                         // 43
    {"{F8}", "F8", "F8"},                                         // 44
    {"{F9}", "F9", "F9"},                                         // 45
    {"{F10}", "F10", "F10"},                                      // 46
    {"{F11}", "F11", "F11"},                                      // 47
    {"{F12}", "F12", "F12"},                                      // 48
    {"Shft", "shift", "Shift"},                                   // 49
    {"Ctrl", "ctrl", "Ctrl"},                                     // 50
    {"Alt", "alt", "Alt"},                                        // 51
    {"{,}", ",", "Comma", {"<", "comma"}},                        // 52
    {"{.}", ".", "Period", {">", "period"}},                      // 53
    {"{/}", "/", "Slash", {"?", "slash"}},                        // 54
    {"{;}", ";", "Semicolon", {":", "semicolon"}},                // 55
    {"{'}", "'", "SingleQuote", {"singlequote"}},                 // 56
    {"Tab", "tab", "Tab"},                                        // 57
    {"[", "[", "LeftBracket", {"{", "leftbracket"}},              // 58
    {"]", "]", "RightBracket", {"}", "rightbracket"}},            // 59
    {"{\\}", "\\", "BackSlash", {"|", "backslash"}},              // 60
    {"{`}", "`", "Tilde", {"~", "tilde"}},                        // 61
    // "minus" was never among them, and "period" can never match: key 53 comes first.
    {"{-}", "-", "Minus", {"_", "period"}},                       // 62
    {"{=}", "=", "Equals", {"equals"}},                           // 63
    {"Bksp", "backspace", "Backspace"},                           // 64
    {"Ins", "ins", "Insert", {"insert"}},                         // 65
    {"Del", "del", "Delete", {"delete"}},                         // 66
    {"Home", "home", "Home"},                                     // 67
    {"End", "end", "End"},                                        // 68
    {"PgU", "pgup", "PageUp", {"pageup"}},                        // 69
    {"PgD", "pgdn", "PageDown", {"pagedn", "pgdown", "pagedown"}}, // 70
    {"UpAr", "uparrow", "Up", {"up"}},                            // 71
    {"DnAr", "downarrow", "Down", {"down"}},                      // 72
    {"L.Ar", "leftarrow", "Left", {"left"}},                      // 73
    {"R.Ar", "rightarrow", "Right", {"right"}},                   // 74
    {"Ent", "enter", "Enter"},                                    // 75
    {"{*}", "*", "GreyStar", {"greystar"}},                       // 76
    {"{+}", "+", "GreyPlus", {"+", "kp_plus", "greyplus"}},       // 77
    {"Pause", "pause", "Pause"},                                  // 78
    {"M1", "mouse1", "LeftMouse", {"m1", "leftmouse"}},           // 79
    {"M2", "mouse2", "RightMouse", {"m2", "rightmouse"}},         // 80
    {"M3", "mouse3", "MiddleMouse", {"m3", "middlemouse"}},       // 81
    {"kp/", "kp_slash", "GreySlash", {"greyslash"}},              // 82
    {"kp-", "kp_minus", "GreyMinus", {"greyminus"}},              // 83
    {"kp7", "kp_home", "NumPad7", {"numpad7"}},                   // 84
    {"kp8", "kp_uparrow", "NumPad8", {"numpad8"}},                // 85
    {"kp9", "kp_pgup", "NumPad9", {"numpad9"}},                   // 86
    {"kp4", "kp_leftarrow", "NumPad4", {"numpad4"}},              // 87
    {"kp5", "kp_5", "NumPad5", {"numpad5"}},                      // 88
    {"kp6", "kp_rightarrow", "NumPad6", {"numpad6"}},             // 89
    {"kp1", "kp_end", "NumPad1", {"numpad1"}},                    // 90
    {"kp2", "kp_downarrow", "NumPad2", {"numpad2"}},              // 91
    {"kp3", "kp_pgdn", "NumPad3", {"numpad3"}},                   // 92
    {"kpEnt", "kp_enter", "Enter"},                               // 93
    {"kp0", "kp_ins", "NumPad0", {"numpad0"}},                    // 94
    {"kpDel", "kp_del", "NumPadPeriod", {"numpadperiod"}},        // 95
    {"MwU", "mwheelup", "MouseWheelUp", {"mousewheelup"}},        // 96
    {"MwD", "mwheeldown", "MouseWheelDown", {"mousewheeldown"}},  // 97
    {"J1", "joy1", "Joy1"},                                       // 98
    {"J2", "joy2", "Joy2"},                                       // 99
    {"J3", "joy3", "Joy3"},                                       // 100
    {"J4", "joy4", "Joy4"},                                       // 101
    {"J5", "joy5", "Joy5"},                                       // 102
    {"J6", "joy6", "Joy6"},                                       // 103
    {"A1", "aux1", "Aux1"},                                       // 104
    {"A2", "aux2", "Aux2"},                                       // 105
    {"A3", "aux3", "Aux3"},                                       // 106
    {"A4", "aux4", "Aux4"},                                       // 107
    {"A5", "aux5", "Aux5"},                                       // 108
    {"A6", "aux6", "Aux6"},                                       // 109
    {"A7", "aux7", "Aux7"},                                       // 110
    {"A8", "aux8", "Aux8"},                                       // 111
    {"A9", "aux9", "Aux9"},                                       // 112
    {"A10", "aux10", "Aux10"},                                    // 113
    {"A11", "aux11", "Aux11"},                                    // 114
    {"A12", "aux12", "Aux12"},                                    // 115
    {"A13", "aux13", "Aux13"},                                    // 116
    {"A14", "aux14", "Aux14"},                                    // 117
    {"A15", "aux15", "Aux15"},                                    // 118
    {"A16", "aux16", "Aux16"},                                    // 119
    {"A17", "aux17", "Aux17"},                                    // 120
    {"A18", "aux18", "Aux18"},                                    // 121
    {"A19", "aux19", "Aux19"},                                    // 122
    {"A20", "aux20", "Aux20"},                                    // 123
    {"A21", "aux21", "Aux21"},                                    // 124
    {"A22", "aux22", "Aux22"},                                    // 125
    {"A23", "aux23", "Aux23"},                                    // 126
    {"A24", "aux24", "Aux24"},                                    // 127
    {"A25", "aux25", "Aux25"},                                    // 128
    {"A26", "aux26", "Aux26"},                                    // 129
    {"A27", "aux27", "Aux27"},                                    // 130
    {"A28", "aux28", "Aux28"},                                    // 131
    {"A29", "aux29", "Aux29"},                                    // 132
    {"A30", "aux30", "Aux30"},                                    // 133
    {"A31", "aux31", "Aux31"},                                    // 134
    {"A32", "aux32", "Aux32"},                                    // 135
};
// clang-format on

static_assert(std::size(kKeyRows) == static_cast<std::size_t>(kKeyCount));

}  // namespace lv
