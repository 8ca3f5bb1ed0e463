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

/// Where the edits are kept, the newest first to be found: beside the script; where that directory takes none, among
/// the user's data; beside the program, which may take none either.
std::vector<Text> PlacesOf(const Run& run, TextView script) {
    std::vector<Text> places = {RescuePathOf(script)};
    const Text data = run.System.Places != nullptr ? Text(run.System.Places->DataDirectory()) : Text();
    if (!data.empty()) {
        places.push_back(Join(data, "\\lorvane3d\\", NameOf(script)));
    }
    const Text program = run.AppDirectory.empty() ? run.System.Disk.ProgramDirectory() : run.AppDirectory;
    places.push_back(Join(program, "\\", NameOf(script)));
    return places;
}

/// Empty if nothing was kept.
Text KeptFile(Run& run, TextView script) {
    for (const Text& path : PlacesOf(run, script)) {
        if (run.System.Disk.FileExists(path)) {
            return path;
        }
    }
    return {};
}

Error Keep(Run& run, const ScriptDocument& document) {
    const Text script = ComposeScript(document, run.System.Time.Now());
    Error failed;
    bool isKept = false;
    for (const Text& path : PlacesOf(run, document.CurrentScriptPath)) {
        if (isKept) {
            (void)run.System.Disk.Delete(path);  // an older one, of which only one could be offered
        } else {
            failed = run.System.Disk.ReplaceOwn(path, script);
            isKept = !failed;
        }
    }
    return failed;
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
