// foundry/losses/kept_lines.h
//
// The lines that give back what a save would lose.

#pragma once

#include <optional>
#include <vector>

#include "foundry/losses/lasting_line.h"
#include "foundry/losses/save_losses.h"

namespace lv {

struct KeptLine {
    EffectKind What = EffectKind::Action;  // of the difference that it makes none of
    Text Identity;
    Text Section;                        // an ini's bracket line in lower case; empty in a console script
    Text Command;                        // as the file has it
    std::optional<LastingLine> Lasting;  // none if the reader leaves it in no form
    std::size_t FileLine = 0;            // from 1: where the file has it
    std::size_t Turn = 0;                // among the file's effects
};

/// The lines that give back what the report tells of, unless the user has changed it themselves.
std::vector<KeptLine> KeptLines(const SaveReport& report, const SaveTexts& texts, Console console);

}  // namespace lv
