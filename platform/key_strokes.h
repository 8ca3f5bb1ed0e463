// platform/key_strokes.h
//
// The notation that keys to be pressed are written in.

#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace lv {

/// A key that goes down and up again, and what is held meanwhile.
struct KeyStroke {
    char Key = 0;  // 'a' to 'z' or '0' to '9'
    bool Alt = false;
    bool Control = false;
    bool Shift = false;

    bool operator==(const KeyStroke&) const = default;
};

/// A letter, of either case, or a digit is its own key; "%", "^" and "+" before it hold Alt, Control and Shift for it,
/// each at most once. Nothing if there is anything else.
std::optional<std::vector<KeyStroke>> KeyStrokesOf(std::string_view notation);

}  // namespace lv
