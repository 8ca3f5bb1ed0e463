// foundry/losses/overridden_edits.h
//
// What the user has changed on the pages in vain: a line of the Free Form Additions runs behind the pages' lines, and
// sets it otherwise.

#pragma once

#include <vector>

#include "foundry/losses/save_losses.h"
#include "platform/clock.h"

namespace lv {

struct OverriddenEdits {
    std::vector<SaveLoss> Losses;         // CanKeep: the sections below do without the line
    std::vector<ScriptSection> Sections;  // the Free Form Additions without the kept lines that set nothing else
    bool Drops = false;                   // whether there are such lines
};

/// `unedited` is the script as it was opened. What it has on its pages, and the user has left alone, is none of these.
OverriddenEdits FindOverriddenEdits(const ScriptDocument& unedited, const ScriptDocument& edited, const LocalTime& date,
                                    Console console);

/// Puts them ahead of what the report tells, in the place of what it says of the same. Those that somebody has changed
/// on the disk besides stand there as such.
void TellOverriddenEdits(SaveReport& report, const OverriddenEdits& edits, const ChangedNames& changed);

/// The same with the edits that are overridden no longer.
ChangedNames WithEdits(ChangedNames changed, const OverriddenEdits& edits);

}  // namespace lv
