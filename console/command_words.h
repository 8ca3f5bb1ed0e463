// console/command_words.h
//
// What a line's first word is to the games: a command, or a setting that the second word is given to.

#pragma once

#include "foundation/text.h"

namespace lv {

enum class WordUse {
    Command,
    Setting,
    Unknown,  // an alias, a setting of this engine's own, or a command of a modification
};

/// In any letter case. What begins with "+" or "-" is a command.
WordUse UseOfWord(TextView word);

/// Whether it runs another script: what that sets nobody knows who has not read it.
bool RunsScript(TextView word);

}  // namespace lv
