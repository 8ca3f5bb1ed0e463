#include "console/key_names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

namespace lv {
namespace {

using Consoles = std::initializer_list<Console>;

constexpr Console kWithKeys[] = {Console::Quake,      Console::QuakeWorld, Console::Hexen2,    Console::Quake2,
                                 Console::Heretic2,   Console::Sin,        Console::EzQuake,   Console::Ironwail,
                                 Console::DarkPlaces, Console::Fte,        Console::Yamagi,    Console::Q2Pro,
                                 Console::HalfLife,   Console::QuakeSpasm, Console::HexenWorld};

struct KeyCase {
    const char* Name;
    Consoles Known;
};

// Keys that not all consoles know.
const KeyCase kKeys[] = {
    {"KP_UPARROW",
     {Console::Hexen2, Console::HexenWorld, Console::Quake2, Console::Sin, Console::EzQuake, Console::Ironwail,
      Console::DarkPlaces, Console::Fte, Console::Yamagi, Console::Q2Pro, Console::HalfLife, Console::QuakeSpasm}},
    {"KP_UP", {Console::Heretic2}},
    {"KP_STAR",
     {Console::Hexen2, Console::HexenWorld, Console::EzQuake, Console::Ironwail, Console::QuakeSpasm, Console::Yamagi}},
    {"ABUTTON", {Console::Ironwail, Console::QuakeSpasm}},
    {"DPAD_UP", {Console::Ironwail}},
    {"KP_NUMLOCK", {Console::Hexen2, Console::HexenWorld, Console::Heretic2, Console::Ironwail, Console::Yamagi}},
    {"KP_7", {Console::EzQuake, Console::DarkPlaces, Console::Fte}},
    {"MOUSE5",
     {Console::Hexen2, Console::HexenWorld, Console::EzQuake, Console::Ironwail, Console::DarkPlaces, Console::Fte,
      Console::Yamagi, Console::Q2Pro, Console::HalfLife, Console::QuakeSpasm}},
    {"MOUSE16", {Console::DarkPlaces}},
    {"F13", {Console::EzQuake, Console::Yamagi}},
    {"JOY1",
     {Console::Quake, Console::QuakeWorld, Console::Hexen2, Console::HexenWorld, Console::Quake2, Console::Heretic2,
      Console::Sin, Console::EzQuake, Console::DarkPlaces, Console::Fte, Console::QuakeSpasm}},
    {"AUX32",
     {Console::Quake, Console::QuakeWorld, Console::Hexen2, Console::HexenWorld, Console::Quake2, Console::Heretic2,
      Console::Sin, Console::DarkPlaces, Console::HalfLife, Console::QuakeSpasm}},
    {"AUX33", {}},
    {"AUX01", {}},
    {"AUX", {}},
    {"RALT", {Console::EzQuake, Console::Fte, Console::Q2Pro}},
    {"CTRL+ALT+X", {Console::Fte}},
    {"X360_A", {Console::DarkPlaces}},
    {"CAPSLOCK",
     {Console::Heretic2, Console::EzQuake, Console::Ironwail, Console::DarkPlaces, Console::Fte, Console::Yamagi,
      Console::Q2Pro, Console::HalfLife}},
    {"WINDOWS", {}},
    {"", {}},
};

}  // namespace

TEST(KeyNames, AreKnownToTheirConsoles) {
    for (const KeyCase& key : kKeys) {
        for (const Console console : kWithKeys) {
            EXPECT_EQ(IsKeyName(console, key.Name), std::ranges::find(key.Known, console) != key.Known.end())
                << key.Name << " in " << RulesOf(console).Name;
        }
    }
}

TEST(KeyNames, OfTheFirstGameAreKnownToAll) {
    for (const TextView name :
         {"TAB",        "ENTER",     "escape", "Space", "BACKSPACE", "UPARROW", "DOWNARROW", "LEFTARROW",
          "RIGHTARROW", "ALT",       "CTRL",   "SHIFT", "F1",        "f12",     "INS",       "DEL",
          "PGDN",       "PGUP",      "HOME",   "END",   "MOUSE1",    "MOUSE3",  "PAUSE",     "MWHEELUP",
          "MWHEELDOWN", "SEMICOLON", "a",      "[",     "\\",        "\xE4"}) {
        for (const Console console : kWithKeys) {
            EXPECT_TRUE(IsKeyName(console, name)) << name << " in " << RulesOf(console).Name;
        }
    }
}

TEST(KeyNames, OfAnIniAreNotLookedAt) {
    EXPECT_TRUE(IsKeyName(Console::Unreal, "LeftMouse"));
    EXPECT_TRUE(IsKeyName(Console::Unreal, "NoSuchKey"));
}

TEST(KeyIdentity, IsOneForAllNamesOfAKey) {
    EXPECT_EQ(KeyIdentity(Console::Quake, "f1"), "F1");
    EXPECT_EQ(KeyIdentity(Console::Quake, "Semicolon"), ";");
    EXPECT_EQ(KeyIdentity(Console::Quake, ";"), ";");
    EXPECT_EQ(KeyIdentity(Console::EzQuake, "kp_7"), "KP_HOME");
    EXPECT_EQ(KeyIdentity(Console::Yamagi, "quote"), "'");
    EXPECT_EQ(KeyIdentity(Console::DarkPlaces, "quote"), "\"");
    EXPECT_EQ(KeyIdentity(Console::Unreal, "Space"), "SPACE");
}

TEST(KeyIdentity, TellsACapitalFromASmallLetterWhereTheConsoleDoes) {
    EXPECT_EQ(KeyIdentity(Console::Quake, "A"), "A");
    EXPECT_EQ(KeyIdentity(Console::Quake, "a"), "a");
    EXPECT_EQ(KeyIdentity(Console::DarkPlaces, "A"), "a");
}

}  // namespace lv
