// console/command_words.h
//
// What a line's first word is to the games: a command, or a setting that the second word is given to.

#pragma once

#include "console/console_rules.h"

namespace lv {

enum class WordUse {
    Command,
    Setting,
    Unknown,  // an alias, a setting of this engine's own, or a command of a modification
};

/// In any letter case. What begins with "+" or "-" is a command.
WordUse UseOfWord(TextView word);

/// Whether the console is known to lack this one of the settings: to it the word is no command and no setting, unless
/// the script makes a setting of the name by "set".
bool LacksSetting(Console console, TextView word);

/// Whether it runs another script: what that sets nobody knows who has not read it.
bool RunsScript(TextView word);

}  // namespace lv
