#include "foundry/half_life/key_code_names.h"

namespace lv {

namespace {

struct CodeName {
    int Code;
    TextView Name;
};

constexpr CodeName kCodeNames[] = {
    {9, "tab"},         {13, "enter"},    {27, "escape"},      {32, "space"},       {96, "~"},
    {127, "backspace"}, {128, "uparrow"}, {129, "downarrow"},  {130, "rightarrow"}, {131, "leftarrow"},
    {132, "alt"},       {133, "ctl"},     {134, "shift"},      {147, "ins"},        {148, "del"},
    {149, "pgdn"},      {150, "pgup"},    {151, "home"},       {152, "end"},        {200, "mouse1"},
    {201, "mouse2"},    {202, "mouse3"},  {239, "mwheeldown"}, {240, "mwheelup"},   {255, "pause"},
};

struct NumberedName {
    int First;
    int Last;
    TextView Name;  // and a number from 1
};

constexpr NumberedName kNumberedNames[] = {
    {135, 146, "F"},
    {203, 206, "joy"},
    {207, 238, "aux"},
};

struct KeyRun {
    KeyIndex First;
    KeyIndex Last;
    int Code;  // of the first
};

constexpr KeyRun kKeyRuns[] = {
    {0, 0, 32},       // space
    {1, 26, 97},      // letters
    {27, 36, 48},     // digits
    {37, 48, 135},    // F1 to F12
    {49, 49, 134},    // shift
    {50, 50, 133},    // ctrl
    {51, 51, 132},    // alt
    {52, 52, 44},     // ,
    {53, 53, 46},     // .
    {54, 54, 47},     // /
    {55, 55, 59},     // ;
    {56, 56, 39},     // '
    {57, 57, 9},      // tab
    {58, 58, 91},     // [
    {59, 59, 93},     // ]
    {60, 60, 92},     // backslash
    {61, 61, 96},     // `
    {62, 62, 45},     // -
    {63, 63, 61},     // =
    {64, 64, 127},    // backspace
    {65, 66, 147},    // ins, del
    {67, 68, 151},    // home, end
    {69, 69, 150},    // pgup
    {70, 70, 149},    // pgdn
    {71, 72, 128},    // uparrow, downarrow
    {73, 73, 131},    // leftarrow
    {74, 74, 130},    // rightarrow
    {75, 75, 13},     // enter
    {76, 77, 42},     // *, +
    {78, 78, 255},    // pause
    {79, 81, 200},    // mouse1 to mouse3
    {96, 96, 240},    // mwheelup
    {97, 97, 239},    // mwheeldown
    {98, 101, 203},   // joy1 to joy4
    {104, 135, 207},  // aux1 to aux32
};

}  // namespace

Text HalfLifeKeyName(int code) {
    for (const CodeName& row : kCodeNames) {
        if (row.Code == code) {
            return Text(row.Name);
        }
    }
    for (const NumberedName& row : kNumberedNames) {
        if (code >= row.First && code <= row.Last) {
            return Join(row.Name, std::to_string(code - row.First + 1));
        }
    }
    return {static_cast<char>(code)};
}

int HalfLifeKeyCode(KeyIndex key) {
    for (const KeyRun& run : kKeyRuns) {
        if (key >= run.First && key <= run.Last) {
            return run.Code + (key - run.First);
        }
    }
    return kNoHalfLifeKey;
}

}  // namespace lv
