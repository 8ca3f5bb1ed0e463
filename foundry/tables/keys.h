// foundry/tables/keys.h
//
// The 136 keys that a script can bind: their captions, how each script style spells them, what is accepted on reading.

#pragma once

#include <array>

#include "foundation/game.h"

namespace lv {

using KeyIndex = Index;

constexpr KeyIndex kKeyCount = 136;
constexpr KeyIndex kNoKey = -1;  // as an unsigned 16-bit number 65535

/// One text for each key, by key index.
using KeyTexts = std::array<Text, static_cast<std::size_t>(kKeyCount)>;

enum class KeyStyle {
    OldConsole,  // key 77 is "+"
    NewConsole,  // key 77 is "kp_plus"
    Unreal,
};

/// The style of the scripts of a dialect.
KeyStyle StyleOfFamily(Dialect scriptFamily);

struct WrittenKey {
    TextView Name;
    TextView Comment;  // "key pad 7": explains the name behind a console script's line; often empty
};

/// The name that a script of this style writes. Two keys share "Enter" in an Unreal ini: 75 and 93.
/// An index that is no key gives empty texts.
WrittenKey KeyName(KeyIndex key, KeyStyle style);

/// The key of a spelling in lower case, kNoKey if there is none. "enter" is key 75 and never 93; "minus" is no key.
KeyIndex KeyFromName(TextView spelling);

/// The short names on the keyboard's picture; that of key 77 depends on the kind of game.
KeyTexts KeyCaptions(Game gameKind);

/// The first key with exactly this caption; kNoKey if there is none.
KeyIndex KeyIndexOfCaption(const KeyTexts& captions, TextView caption);

/// The second label of the keyboard's picture that shows the key's colour, or kNoKey. The older engines don't tell
/// the keypad from the main keys, nor a right Shift, Ctrl or Alt (labels 149 to 151) from a left one.
Index MirrorLabel(KeyIndex key, Game gameKind);

}  // namespace lv
