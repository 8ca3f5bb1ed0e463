// foundry/losses/keep_plan.h
//
// What would be lost, put into the Free Form Additions so that it stays, however often the script is opened and saved.

#pragma once

#include <functional>
#include <vector>

#include "foundry/losses/save_losses.h"
#include "platform/clock.h"

namespace lv {

/// What opening this text and saving it, unedited, makes of it.
using Resaving = std::function<Text(TextView script)>;

struct KeepPlan {
    std::vector<ScriptSection> Sections;  // the Free Form Additions with all that can be kept
    bool Keeps = false;                   // whether they are others than the document's
    EffectNames Left;                     // what cannot be kept: this save takes it, or the next one would
};

/// Each line stands among those that stood around it in the file. The document stays as it is.
KeepPlan PlanKeeping(const ScriptDocument& document, TextView file, const ChangedNames& changed, const Resaving& resave,
                     const LocalTime& date, Console console);

/// Says in the report what the plan keeps, and what it cannot keep.
void MarkWhatIsLeft(SaveReport& report, const KeepPlan& plan);

}  // namespace lv
