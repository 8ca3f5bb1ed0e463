// foundry/losses/lasting_line.h
//
// The form in which a line stays in the Free Form Additions, however often the script is opened and saved.

#pragma once

#include <optional>

#include "console/console_rules.h"

namespace lv {

struct LastingLine {
    Text Line;
    bool HasWholeLine = false;  // all that the file has on the line, not the command alone
};

/// The command itself where the reader does not know it, and behind ";" where it would take it for its own. As the
/// reader ends each other line at "//", one that has that becomes a comment whose ";" the console ends it at. None
/// where it does not: nothing stays then. `fileLine` is the line that the command stands in, empty if in none.
std::optional<LastingLine> LastingLineOf(TextView command, TextView fileLine, Console console);

}  // namespace lv
