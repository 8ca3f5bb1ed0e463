#include "foundry/editor/rescued_edits.h"

#include <exception>

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundry/document/script_mark.h"
#include "foundry/editor/aliases_page.h"
#include "foundry/editor/kind_layout.h"
#include "foundry/reading/open_script.h"
#include "foundry/writing/compose_script.h"

namespace lv {

namespace {

constexpr TextView kRescueName = "SetupFoundry_Rescue_";
constexpr const char* kTitle = "Setup Foundry";
constexpr int kTakeUp = 0;

Text NameOf(TextView script) {
    return Join(kRescueName, ScriptMark(script), ".txt");
}

/// Where the script's directory takes none. Several users may share it.
Text BesideProgram(const Run& run, TextView script) {
    const Text directory = run.AppDirectory.empty() ? run.System.Disk.ProgramDirectory() : run.AppDirectory;
    return Join(directory, "\\", NameOf(script));
}

/// Empty if nothing was kept.
Text KeptFile(Run& run, TextView script) {
    for (const Text& path : {RescuePathOf(script), BesideProgram(run, script)}) {
        if (run.System.Disk.FileExists(path)) {
            return path;
        }
    }
    return {};
}

Error Keep(Run& run, const ScriptDocument& document) {
    const Text script = ComposeScript(document, run.System.Time.Now());
    const Text& path = document.CurrentScriptPath;
    if (!run.System.Disk.ReplaceOwn(RescuePathOf(path), script)) {
        (void)run.System.Disk.Delete(BesideProgram(run, path));  // an older one, of which only one could be offered
        return {};
    }
    return run.System.Disk.ReplaceOwn(BesideProgram(run, path), script);
}

}  // namespace

Text RescuePathOf(TextView script) {
    return Join(script.substr(0, script.rfind('\\') + 1), NameOf(script));
}

Error RescueEdits(Fig_Frm& form) {
    if (!form.Loaded || form.Document.ScriptClean) {
        return {};
    }
    try {
        return Keep(form.run, form.Document);
    } catch (const std::exception& thrown) {
        return ErrorOfException(thrown);
    }
}

std::optional<bool> OfferRescuedEdits(Fig_Frm& form) {
    Run& run = form.run;
    const Text script = form.Document.CurrentScriptPath;
    const Text kept = KeptFile(run, script);
    if (kept.empty()) {
        return false;
    }
    const Index answer = AskUser(run, kTitle,
                                 Join("There are edits of ", script, " that were not saved: the session ended first.",
                                      NewLine, NewLine, "Take them up and go on, or drop them for good?"),
                                 "&Take Them Up,&Drop Them");
    if (run.Ended) {
        return std::nullopt;
    }
    if (answer != kTakeUp) {
        DropRescuedEdits(run, script);
    }
    return answer == kTakeUp;
}

bool TakeUpRescuedEdits(Fig_Frm& form) {
    Run& run = form.run;
    const Text script = form.Document.CurrentScriptPath;
    const Text backupDue = form.Document.BackupDue;
    const bool taken = OpenScriptFrom(run, form.Document, form, script, KeptFile(run, script));
    if (run.Ended || (!taken && !OpenScript(run, form.Document, form, script))) {
        return false;
    }
    form.Document.BackupDue = backupDue;
    ApplyGameKind(form);
    FillAliasList(form);
    form.Document.ScriptClean = !taken;
    NoteWholeEdit(form);
    return true;
}

void DropRescuedEdits(Run& run, TextView script) {
    for (Text kept = KeptFile(run, script); !kept.empty(); kept = KeptFile(run, script)) {
        if (run.System.Disk.Delete(kept)) {
            return;  // it is offered again
        }
    }
}

}  // namespace lv
