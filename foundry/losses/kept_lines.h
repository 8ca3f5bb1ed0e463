// foundry/losses/kept_lines.h
//
// Lost lines, put into the Free Form Additions, which a save writes to the letter.

#pragma once

#include <vector>

#include "foundry/losses/save_losses.h"
#include "platform/clock.h"

namespace lv {

struct KeptLine {
    Text Section;  // an ini's bracket line in lower case; empty in a console script
    Text Line;
    std::size_t FileLine = 0;  // from 1: where the file has it
    std::size_t Turn = 0;      // among the file's effects
};

/// The lines that give back what the report tells of, unless the user has changed it themselves. A line that the editor
/// would swallow again as soon as it reads it, and has no page for, begins with ";": to the games an empty command.
std::vector<KeptLine> KeptLines(const SaveReport& report, const SaveTexts& texts, const ScriptDialect& dialect,
                                Console console);

/// Puts into the document's Free Form Additions what a save would lose, each line among those that stood around it in
/// the file. False if there was nothing to keep.
bool KeepLosses(ScriptDocument& document, TextView file, const ChangedNames& changed, const LocalTime& date,
                Console console);

}  // namespace lv
