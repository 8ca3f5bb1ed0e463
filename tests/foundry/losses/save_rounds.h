// tests/foundry/losses/save_rounds.h
//
// What a save would do to a script that is opened and saved.

#pragma once

#include "foundry/losses/keep_plan.h"
#include "foundry/writing/compose_script.h"
#include "tests/foundry/reading.h"
#include "tests/foundry/script_fixture.h"

namespace lv {

inline Text WrittenOf(const ScriptDialect& dialect, TextView file) {
    return ComposeScript(ReadScript(dialect, file), kScriptDay);
}

inline SaveReport ReportOf(const ScriptDialect& dialect, TextView file, Console console) {
    const Text written = WrittenOf(dialect, file);
    return ReportSave({file, written}, {}, dialect, console);
}

inline SaveReport ReportOf(const ScriptDialect& dialect, TextView file) {
    return ReportOf(dialect, file, ConsoleOfDialect(dialect));
}

/// "words (reason)", one a line, without those that are added.
inline Text LossesOf(const SaveReport& report) {
    Text all;
    for (const SaveLoss& loss : report.Losses) {
        if (loss.Difference.Kind != DifferenceKind::Added) {
            all += Join(all.empty() ? "" : "\n", loss.Words, " (", loss.Reason, ")");
        }
    }
    return all;
}

inline Text LossesOf(const ScriptDialect& dialect, TextView file) {
    return LossesOf(ReportOf(dialect, file));
}

inline KeepPlan PlanOf(const ScriptDialect& dialect, const ScriptDocument& document, TextView file,
                       const ChangedNames& changed, Console console) {
    return PlanKeeping(
        document, file, changed, [&](TextView script) { return WrittenOf(dialect, script); }, kScriptDay, console);
}

/// The script as "keep these" and a save leave it.
inline Text KeptScript(const ScriptDialect& dialect, TextView file, Console console) {
    ScriptDocument document = ReadScript(dialect, file);
    document.Sections = PlanOf(dialect, document, file, {}, console).Sections;
    return ComposeScript(document, kScriptDay);
}

inline Text KeptScript(const ScriptDialect& dialect, TextView file) {
    return KeptScript(dialect, file, ConsoleOfDialect(dialect));
}

/// Its Free Form Additions.
inline Text KeptFreeForm(const ScriptDialect& dialect, TextView file, Console console) {
    return PlanOf(dialect, ReadScript(dialect, file), file, {}, console).Sections.at(0).Text;
}

/// "words (reason)", one a line, of what kind ever.
inline Text ChangesOf(const SaveReport& report) {
    Text all;
    for (const SaveLoss& loss : report.Losses) {
        all += Join(all.empty() ? "" : "\n", loss.Words, " (", loss.Reason, ")");
    }
    return all;
}

/// All that opening and saving it changes for the game.
inline Text AllChangesOf(const ScriptDialect& dialect, TextView file, Console console) {
    return ChangesOf(ReportOf(dialect, file, console));
}

}  // namespace lv
