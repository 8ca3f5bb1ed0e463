#include "platform/key_strokes.h"

#include "platform/code_page.h"

namespace lv {

namespace {

/// What the character holds down; nullptr if it is a key of its own.
bool* HeldBy(char c, KeyStroke& stroke) {
    switch (c) {
        case '%':
            return &stroke.Alt;
        case '^':
            return &stroke.Control;
        case '+':
            return &stroke.Shift;
        default:
            return nullptr;
    }
}

bool IsPlainKey(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

}  // namespace

std::optional<std::vector<KeyStroke>> KeyStrokesOf(std::string_view notation) {
    std::vector<KeyStroke> strokes;
    KeyStroke next;
    for (const char c : notation) {
        bool* const held = HeldBy(c, next);
        if (held == nullptr ? !IsPlainKey(c) : *held) {
            return std::nullopt;
        }
        if (held != nullptr) {
            *held = true;
            continue;
        }
        next.Key = LowerCase(c);
        strokes.push_back(next);
        next = {};
    }
    if (next != KeyStroke()) {
        return std::nullopt;
    }
    return strokes;
}

}  // namespace lv
