// console/key_name_rows.h
//
// The table of the keys' names.

#pragma once

#include <initializer_list>

#include "console/console_rules.h"

namespace lv {

/// A bit a console.
using ConsoleSet = unsigned;

template <class... Consoles>
constexpr ConsoleSet In(Consoles... consoles) {
    return (0U | ... | (1U << static_cast<unsigned>(consoles)));
}

template <class... Consoles>
constexpr ConsoleSet NotIn(Consoles... consoles) {
    return ~In(consoles...);
}

struct KeyNameRow {
    TextView Name;
    ConsoleSet Consoles;
};

/// Names that end in a number.
struct KeyRunRow {
    TextView Name;
    unsigned First;
    unsigned Last;
    ConsoleSet Consoles;
};

/// A second name of a key.
struct SameKeyRow {
    TextView Name;
    TextView Key;
};

using enum Console;

constexpr ConsoleSet kEvery = NotIn();
constexpr ConsoleSet kQuake2s = In(Quake2, Sin, Yamagi, Q2Pro, HalfLife);
constexpr ConsoleSet kKeypad =
    kQuake2s | In(Hexen2, HexenWorld, EzQuake, Ironwail, QuakeSpasm, DarkPlaces, Fte);  // in Quake II's spelling
constexpr ConsoleSet kKeypadHeretic2 = kKeypad | In(Heretic2);
constexpr ConsoleSet kKeypadDigits = In(EzQuake, DarkPlaces, Fte);
constexpr ConsoleSet kSides = In(EzQuake, Fte, Q2Pro);  // tells the left from the right one

// clang-format off
constexpr KeyNameRow kKeyNames[] = {
    {"TAB",           kEvery},
    {"ENTER",         kEvery},
    {"ESCAPE",        kEvery},
    {"SPACE",         kEvery},
    {"BACKSPACE",     kEvery},
    {"UPARROW",       kEvery},
    {"DOWNARROW",     kEvery},
    {"LEFTARROW",     kEvery},
    {"RIGHTARROW",    kEvery},
    {"ALT",           kEvery},
    {"CTRL",          kEvery},
    {"SHIFT",         kEvery},
    {"INS",           kEvery},
    {"DEL",           kEvery},
    {"PGDN",          kEvery},
    {"PGUP",          kEvery},
    {"HOME",          kEvery},
    {"END",           kEvery},
    {"PAUSE",         kEvery},
    {"MWHEELUP",      kEvery},
    {"MWHEELDOWN",    kEvery},
    {"SEMICOLON",     kEvery},
    {"KP_HOME",       kKeypadHeretic2},
    {"KP_UPARROW",    kKeypad},
    {"KP_UP",         In(Heretic2)},
    {"KP_PGUP",       kKeypadHeretic2},
    {"KP_LEFTARROW",  kKeypad},
    {"KP_LEFT",       In(Heretic2)},
    {"KP_5",          kKeypadHeretic2},
    {"KP_RIGHTARROW", kKeypad},
    {"KP_RIGHT",      In(Heretic2)},
    {"KP_END",        kKeypadHeretic2},
    {"KP_DOWNARROW",  kKeypad},
    {"KP_DOWN",       In(Heretic2)},
    {"KP_PGDN",       kKeypadHeretic2},
    {"KP_ENTER",      kKeypadHeretic2},
    {"KP_INS",        kKeypadHeretic2},
    {"KP_DEL",        kKeypadHeretic2},
    {"KP_SLASH",      kKeypadHeretic2},
    {"KP_MINUS",      kKeypadHeretic2},
    {"KP_PLUS",       kKeypadHeretic2},
    {"KP_STAR",       In(Hexen2, HexenWorld, EzQuake, Ironwail, QuakeSpasm, Yamagi)},
    {"KP_NUMLOCK",    In(Hexen2, HexenWorld, Ironwail, Yamagi, Heretic2)},
    {"KP_MULTIPLY",   In(EzQuake, DarkPlaces, Q2Pro, Fte)},
    {"KP_DIVIDE",     In(EzQuake, DarkPlaces, Fte)},
    {"KP_EQUAL",      In(EzQuake)},
    {"KP_EQUALS",     In(DarkPlaces, Yamagi, Fte)},
    {"KP_PERIOD",     In(DarkPlaces)},
    {"CAPSLOCK",      In(Heretic2, EzQuake, Ironwail, DarkPlaces, Fte, Yamagi, Q2Pro, HalfLife)},
    {"NUMLOCK",       In(EzQuake, Ironwail, DarkPlaces, Fte, Q2Pro)},
    {"SCROLLOCK",     In(EzQuake, DarkPlaces, Yamagi, Q2Pro, HalfLife)},
    {"SCROLLLOCK",    In(EzQuake, Ironwail, Fte)},
    {"SCRLCK",        In(EzQuake)},
    {"PRINTSCREEN",   In(EzQuake, Ironwail, DarkPlaces, Fte, Q2Pro)},
    {"PRINTSCR",      In(EzQuake)},
    {"PRINTSCRN",     In(EzQuake)},
    {"LALT",          kSides},
    {"RALT",          kSides},
    {"LCTRL",         kSides},
    {"RCTRL",         kSides},
    {"LSHIFT",        kSides},
    {"RSHIFT",        kSides},
    {"ALTGR",         In(EzQuake)},
    {"WINKEY",        In(EzQuake)},
    {"LWINKEY",       In(EzQuake, Q2Pro)},
    {"RWINKEY",       In(EzQuake, Q2Pro)},
    {"WIN",           In(EzQuake, Fte)},
    {"LWIN",          In(EzQuake, Fte)},
    {"RWIN",          In(EzQuake, Fte)},
    {"SUPER",         In(EzQuake, Yamagi)},
    {"LSUPER",        In(EzQuake)},
    {"RSUPER",        In(EzQuake)},
    {"POPUPMENU",     In(EzQuake)},
    {"MENU",          In(EzQuake, Fte, Yamagi, Q2Pro)},
    {"APP",           In(Fte)},
    {"COMMAND",       In(Hexen2, HexenWorld, EzQuake, Ironwail, QuakeSpasm, Yamagi)},
    {"COMPOSE",       In(Yamagi)},
    {"MODE",          In(Yamagi)},
    {"HELP",          In(Yamagi)},
    {"PRINT",         In(Yamagi)},
    {"SYSREQ",        In(Yamagi)},
    {"UNDO",          In(Yamagi)},
    {"POWER",         In(Yamagi)},
    {"102ND",         In(Q2Pro)},
    {"SECTION",       In(EzQuake)},
    {"ACUTE",         In(EzQuake)},
    {"DIAERESIS",     In(EzQuake)},
    {"ARING",         In(EzQuake)},
    {"ISO",           In(EzQuake)},
    {"PARA",          In(EzQuake)},
    {"JOYPOVUP",      In(EzQuake)},
    {"JOYPOVRT",      In(EzQuake)},
    {"JOYPOVDN",      In(EzQuake)},
    {"JOYPOVLT",      In(EzQuake)},
    {"MWHEELLEFT",    In(Fte, Q2Pro)},
    {"MWHEELRIGHT",   In(Fte, Q2Pro)},
    {"TILDE",         In(Ironwail, QuakeSpasm, DarkPlaces, Fte)},
    {"BACKQUOTE",     In(Ironwail, QuakeSpasm, DarkPlaces, Fte)},
    {"QUOTE",         In(DarkPlaces, Yamagi)},
    {"QUOTES",        In(Fte)},
    {"DOUBLEQUOTE",   In(Yamagi)},
    {"DOLLAR",        In(Yamagi)},
    {"APOSTROPHE",    In(DarkPlaces, Fte)},
    {"BACKSLASH",     In(DarkPlaces, Fte)},
    {"PLUS",          In(Fte)},
    {"MINUS",         In(Fte)},
    {"JOY_UP",        In(DarkPlaces)},
    {"JOY_DOWN",      In(DarkPlaces)},
    {"JOY_LEFT",      In(DarkPlaces)},
    {"JOY_RIGHT",     In(DarkPlaces)},
    {"JOY_START",     In(Ironwail)},
    {"JOY_BACK",      In(Ironwail)},
    {"LTHUMB",        In(Ironwail, QuakeSpasm)},
    {"RTHUMB",        In(Ironwail, QuakeSpasm)},
    {"LSHOULDER",     In(Ironwail, QuakeSpasm)},
    {"RSHOULDER",     In(Ironwail, QuakeSpasm)},
    {"DPAD_UP",       In(Ironwail)},
    {"DPAD_DOWN",     In(Ironwail)},
    {"DPAD_LEFT",     In(Ironwail)},
    {"DPAD_RIGHT",    In(Ironwail)},
    {"ABUTTON",       In(Ironwail, QuakeSpasm)},
    {"BBUTTON",       In(Ironwail, QuakeSpasm)},
    {"XBUTTON",       In(Ironwail, QuakeSpasm)},
    {"YBUTTON",       In(Ironwail, QuakeSpasm)},
    {"LTRIGGER",      In(Ironwail, QuakeSpasm)},
    {"RTRIGGER",      In(Ironwail, QuakeSpasm)},
    {"TOUCHPAD",      In(Ironwail)},
};

constexpr KeyRunRow kKeyRuns[] = {
    {"F",             1, 12,  kEvery},
    {"F",             13, 15, In(EzQuake, Yamagi)},
    {"MOUSE",         1, 3,   kEvery},
    {"MOUSE",         4, 5,   In(Hexen2, HexenWorld, EzQuake, Ironwail, QuakeSpasm, DarkPlaces, Fte, Yamagi, Q2Pro, HalfLife)},
    {"MOUSE",         6, 8,   In(EzQuake, DarkPlaces, Fte, Q2Pro)},
    {"MOUSE",         9, 10,  In(DarkPlaces, Fte)},
    {"MOUSE",         11, 16, In(DarkPlaces)},
    {"JOY",           1, 2,   NotIn(Ironwail, Yamagi, Q2Pro, HalfLife)},
    {"JOY",           3, 4,   NotIn(Ironwail, Yamagi, Q2Pro)},
    {"JOY",           5, 16,  In(DarkPlaces, Fte)},
    {"JOY",           17, 32, In(Fte)},
    {"AUX",           1, 16,  NotIn(Ironwail, Yamagi, Q2Pro, HalfLife)},
    {"AUX",           17, 25, NotIn(Ironwail, Yamagi, Q2Pro, HalfLife, Fte)},
    {"AUX",           26, 28, NotIn(Ironwail, Yamagi, Q2Pro, Fte)},
    {"AUX",           29, 32, NotIn(Ironwail, Yamagi, Q2Pro, Fte, EzQuake)},
    {"KP_",           0, 9,   kKeypadDigits},
    {"MISC",          1, 1,   In(Ironwail)},
    {"PADDLE",        1, 4,   In(Ironwail, HalfLife)},
    {"MIDINOTE",      0, 127, In(DarkPlaces)},
    {"INTERNATIONAL", 1, 9,   In(HalfLife)},
};

/// Pads' and scan codes' names by how they begin.
constexpr KeyNameRow kKeyStarts[] = {
    {"X360_",         In(DarkPlaces)},
    {"GP_",           In(Fte)},
    {"SC_",           In(Yamagi)},
};

/// Characters that have a name, and the keypad's digits.
constexpr SameKeyRow kSameKeys[] = {
    {"SPACE",         " "},
    {"SEMICOLON",     ";"},
    {"TILDE",         "~"},
    {"BACKQUOTE",     "`"},
    {"DOUBLEQUOTE",   "\""},
    {"QUOTES",        "\""},
    {"DOLLAR",        "$"},
    {"APOSTROPHE",    "'"},
    {"BACKSLASH",     "\\"},
    {"PLUS",          "+"},
    {"MINUS",         "-"},
    {"KP_7",          "KP_HOME"},
    {"KP_8",          "KP_UPARROW"},
    {"KP_9",          "KP_PGUP"},
    {"KP_4",          "KP_LEFTARROW"},
    {"KP_6",          "KP_RIGHTARROW"},
    {"KP_1",          "KP_END"},
    {"KP_2",          "KP_DOWNARROW"},
    {"KP_3",          "KP_PGDN"},
    {"KP_0",          "KP_INS"},
    {"KP_PERIOD",     "KP_DEL"},
    {"KP_DIVIDE",     "KP_SLASH"},
    {"SCROLLLOCK",    "SCROLLOCK"},
    {"SCRLCK",        "SCROLLOCK"},
    {"PRINTSCR",      "PRINTSCREEN"},
    {"PRINTSCRN",     "PRINTSCREEN"},
};
// clang-format on

}  // namespace lv
