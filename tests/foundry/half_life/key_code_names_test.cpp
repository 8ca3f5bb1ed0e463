#include "foundry/half_life/key_code_names.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(HalfLifeKeyName, IsTheRegistrysWord) {
    struct Row {
        int Code;
        TextView Name;
    };
    const Row rows[] = {
        {9, "tab"},          {13, "enter"},     {27, "escape"},     {32, "space"},       {96, "~"},
        {127, "backspace"},  {128, "uparrow"},  {129, "downarrow"}, {130, "rightarrow"}, {131, "leftarrow"},
        {132, "alt"},        {133, "ctl"},      {134, "shift"},     {135, "F1"},         {144, "F10"},
        {146, "F12"},        {147, "ins"},      {148, "del"},       {149, "pgdn"},       {150, "pgup"},
        {151, "home"},       {152, "end"},      {200, "mouse1"},    {201, "mouse2"},     {202, "mouse3"},
        {203, "joy1"},       {206, "joy4"},     {207, "aux1"},      {216, "aux10"},      {238, "aux32"},
        {239, "mwheeldown"}, {240, "mwheelup"}, {255, "pause"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(HalfLifeKeyName(row.Code), row.Name) << row.Code;
    }
}

TEST(HalfLifeKeyName, IsOtherwiseTheCharacterItself) {
    EXPECT_EQ(HalfLifeKeyName('a'), "a");
    EXPECT_EQ(HalfLifeKeyName('A'), "A");
    EXPECT_EQ(HalfLifeKeyName('/'), "/");
    EXPECT_EQ(HalfLifeKeyName(153), "\x99");
    EXPECT_EQ(HalfLifeKeyName(0), Text(1, '\0'));
}

TEST(HalfLifeKeyCode, IsTheCodeOfEachKey) {
    struct Row {
        TextView Spelling;
        int Code;
    };
    const Row rows[] = {
        {"space", 32},    {"a", 97},          {"z", 122},         {"0", 48},           {"9", 57},
        {"f1", 135},      {"f12", 146},       {"shift", 134},     {"ctrl", 133},       {"alt", 132},
        {",", 44},        {".", 46},          {"/", 47},          {";", 59},           {"'", 39},
        {"tab", 9},       {"[", 91},          {"]", 93},          {"\\", 92},          {"`", 96},
        {"~", 96},        {"-", 45},          {"=", 61},          {"backspace", 127},  {"ins", 147},
        {"del", 148},     {"home", 151},      {"end", 152},       {"pgup", 150},       {"pgdn", 149},
        {"uparrow", 128}, {"downarrow", 129}, {"leftarrow", 131}, {"rightarrow", 130}, {"enter", 13},
        {"*", 42},        {"+", 43},          {"kp_plus", 43},    {"pause", 255},      {"mouse1", 200},
        {"mouse2", 201},  {"mouse3", 202},    {"mwheelup", 240},  {"mwheeldown", 239}, {"mousewheeldown", 239},
        {"joy1", 203},    {"joy4", 206},      {"aux1", 207},      {"aux32", 238},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(HalfLifeKeyCode(KeyFromName(row.Spelling)), row.Code) << row.Spelling;
    }
}

TEST(HalfLifeKeyCode, OfTheKeypadAndTheLastJoystickButtonsIsNone) {
    for (KeyIndex key = 82; key <= 95; ++key) {
        EXPECT_EQ(HalfLifeKeyCode(key), kNoHalfLifeKey) << key;
    }
    EXPECT_EQ(HalfLifeKeyCode(102), kNoHalfLifeKey);
    EXPECT_EQ(HalfLifeKeyCode(103), kNoHalfLifeKey);
    EXPECT_EQ(HalfLifeKeyCode(kNoKey), kNoHalfLifeKey);
}

}  // namespace
}  // namespace lv
