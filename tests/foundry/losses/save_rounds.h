// tests/foundry/losses/save_rounds.h
//
// What a save would do to a script that is opened and saved.

#pragma once

#include "foundry/losses/kept_lines.h"
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

/// The script as "keep these" and a save leave it.
inline Text KeptScript(const ScriptDialect& dialect, TextView file, Console console) {
    ScriptDocument document = ReadScript(dialect, file);
    KeepLosses(document, file, {}, kScriptDay, console);
    return ComposeScript(document, kScriptDay);
}

inline Text KeptScript(const ScriptDialect& dialect, TextView file) {
    return KeptScript(dialect, file, ConsoleOfDialect(dialect));
}

}  // namespace lv
