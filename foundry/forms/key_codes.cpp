#include "foundry/forms/key_codes.h"

#include <algorithm>
#include <iterator>

namespace lv {

namespace {

struct KeyCodeRow {
    int Code;
    Index Label;
};

// clang-format off
constexpr KeyCodeRow kCodes[] = {
    {WXK_SPACE, 0},
    {WXK_SHIFT, 49}, {WXK_CONTROL, 50}, {WXK_RAW_CONTROL, 50}, {WXK_ALT, 51},
    {',', 52}, {'<', 52}, {'.', 53}, {'>', 53}, {'/', 54}, {'?', 54}, {';', 55}, {':', 55}, {'\'', 56}, {'"', 56},
    {WXK_TAB, 57}, {'[', 58}, {'{', 58}, {']', 59}, {'}', 59}, {'\\', 60}, {'|', 60}, {'`', 61}, {'~', 61},
    {'-', 62}, {'_', 62}, {'=', 63}, {'+', 77}, {'*', 76},
    {WXK_BACK, 64}, {WXK_INSERT, 65}, {WXK_DELETE, 66}, {WXK_HOME, 67}, {WXK_END, 68},
    {WXK_PAGEUP, 69}, {WXK_PAGEDOWN, 70}, {WXK_UP, 71}, {WXK_DOWN, 72}, {WXK_LEFT, 73}, {WXK_RIGHT, 74},
    {WXK_RETURN, 75}, {WXK_PAUSE, 78},
    {WXK_MULTIPLY, 76}, {WXK_NUMPAD_MULTIPLY, 76}, {WXK_ADD, 77}, {WXK_NUMPAD_ADD, 77},
    {WXK_DIVIDE, 82}, {WXK_NUMPAD_DIVIDE, 82}, {WXK_SUBTRACT, 83}, {WXK_NUMPAD_SUBTRACT, 83},
    {WXK_NUMPAD7, 84}, {WXK_NUMPAD_HOME, 84}, {WXK_NUMPAD8, 85}, {WXK_NUMPAD_UP, 85},
    {WXK_NUMPAD9, 86}, {WXK_NUMPAD_PAGEUP, 86}, {WXK_NUMPAD4, 87}, {WXK_NUMPAD_LEFT, 87},
    {WXK_NUMPAD5, 88}, {WXK_NUMPAD_BEGIN, 88}, {WXK_CLEAR, 88}, {WXK_NUMPAD6, 89}, {WXK_NUMPAD_RIGHT, 89},
    {WXK_NUMPAD1, 90}, {WXK_NUMPAD_END, 90}, {WXK_NUMPAD2, 91}, {WXK_NUMPAD_DOWN, 91},
    {WXK_NUMPAD3, 92}, {WXK_NUMPAD_PAGEDOWN, 92}, {WXK_NUMPAD_ENTER, 93},
    {WXK_NUMPAD0, 94}, {WXK_NUMPAD_INSERT, 94}, {WXK_NUMPAD_DECIMAL, 95}, {WXK_NUMPAD_DELETE, 95}, {WXK_DECIMAL, 95},
};
// clang-format on

// X11's own codes, for keys that the toolkit takes for others. Windows' codes end below them.
constexpr unsigned kAltGr = 0xfe03;
constexpr unsigned kSuperLeft = 0xffeb;
constexpr unsigned kSuperRight = 0xffec;

constexpr Index kA = 1;
constexpr Index kAlt = 51;
constexpr Index kZero = 27;
constexpr Index kF1 = 37;
constexpr Index kMouse1 = 79;  // right 80, middle 81
constexpr Index kWheelUp = 96;
constexpr Index kWheelDown = 97;

}  // namespace

Index LabelOfKey(const wxKeyEvent& event) {
    switch (event.GetRawKeyCode()) {
        case kAltGr:
            return kAlt;
        case kSuperLeft:
        case kSuperRight:
            return kNoKey;
        default:
            break;
    }
    const int code = event.GetKeyCode();
    if (code >= 'A' && code <= 'Z') {
        return static_cast<Index>(kA + code - 'A');
    }
    if (code >= 'a' && code <= 'z') {
        return static_cast<Index>(kA + code - 'a');
    }
    if (code >= '0' && code <= '9') {
        return static_cast<Index>(kZero + code - '0');
    }
    if (code >= WXK_F1 && code <= WXK_F12) {
        return static_cast<Index>(kF1 + code - WXK_F1);
    }
    const auto* const row = std::ranges::find(kCodes, code, &KeyCodeRow::Code);
    return row == std::end(kCodes) ? kNoKey : row->Label;
}

Index LabelOfMouse(const wxMouseEvent& event) {
    if (event.GetWheelRotation() != 0) {
        if (event.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL) {
            return kNoKey;  // a wheel that is tilted: no script knows it
        }
        return event.GetWheelRotation() > 0 ? kWheelUp : kWheelDown;
    }
    const int button = event.ButtonDown() || event.ButtonDClick() ? event.GetButton() : wxMOUSE_BTN_NONE;
    switch (button) {
        case wxMOUSE_BTN_LEFT:
            return kMouse1;
        case wxMOUSE_BTN_RIGHT:
            return kMouse1 + 1;
        case wxMOUSE_BTN_MIDDLE:
            return kMouse1 + 2;
        default:
            return kNoKey;
    }
}

}  // namespace lv
