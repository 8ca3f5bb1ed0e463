#include "foundry/editor/script_looks.h"

#include <optional>

#include "console/checks/named_bodies.h"
#include "console/engine_consoles.h"
#include "console/files/played_of_run.h"
#include "foundation/bounded_file.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundry/editor/aliases_page.h"
#include "foundry/editor/kind_layout.h"
#include "foundry/look/alias_graph_frm.h"
#include "foundry/look/changes_frm.h"
#include "foundry/look/file_order_frm.h"
#include "foundry/look/launch_looks.h"
#include "foundry/look/script_check_frm.h"
#include "foundry/look/versions_frm.h"
#include "foundry/losses/keep_plan.h"
#include "foundry/losses/overridden_edits.h"
#include "foundry/reading/open_script.h"
#include "foundry/reading/scratch_script.h"
#include "foundry/writing/compose_script.h"

namespace lv {

namespace {

void ReadAgain(Fig_Frm& form) {
    const Text script = form.Document.CurrentScriptPath;
    NoteEdit(form);  // what was edited before is a change of its own
    if (!OpenScript(form.run, form.Document, form, script) || form.run.Ended) {
        return;
    }
    ApplyGameKind(form);
    FillAliasList(form);
    form.Document.ScriptClean = true;
    NoteSaved(form);
}

TextView ProgramInUse(const Fig_Frm& form) {
    const ImageCombo& executables = form.Lists.Exe_Cbo;
    return executables.HasSelection() ? TextView(executables.Items[static_cast<std::size_t>(executables.ListIndex)].Key)
                                      : TextView();
}

const Engine* EngineInUse(const Fig_Frm& form) {
    return form.Lists.Engines != nullptr ? EngineOf(*form.Lists.Engines, LastPathPart(ProgramInUse(form))) : nullptr;
}

/// That of the engine that is picked to play the script, and of the game itself without one.
Console ConsoleInUse(const Fig_Frm& form) {
    const ScriptDialect& dialect = form.Document.Dialect;
    return ConsoleOfProgram(EngineInUse(form), ProgramInUse(form), dialect.GameKind, dialect.IsQuakeWorld);
}

/// What a save would make of the file.
struct SaveLook {
    Text File;
    Text Written;
    LocalTime Date;
    Console Its{};
    ChangedNames Changed;
    SaveReport Report;
    bool Loses = false;
    KeepPlan Plan;  // where something is lost
};

/// Nothing for a file that is not there, or that takes long to read.
std::optional<SaveLook> LookAtSave(Fig_Frm& form) {
    Run& run = form.run;
    const ScriptDocument& document = form.Document;
    Result<Text> file = ReadBounded(run.System.Disk, document.CurrentScriptPath, kLargeScript);
    if (!file.Ok()) {
        return std::nullopt;
    }
    SaveLook look;
    look.File = std::move(file.Value);
    look.Date = run.System.Time.Now();
    look.Its = ConsoleInUse(form);
    look.Written = ComposeScript(document, look.Date);
    const Text& known = document.FileText ? *document.FileText : look.File;
    const ScriptDocument unedited = ReadScratch(run, document.Dialect, document.CurrentScriptPath, known);
    look.Changed.InEditor = DifferingNames(ComposeScript(unedited, look.Date), look.Written, look.Its);
    look.Changed.OnDisk = RewrittenNames(known, look.File, look.Its);
    look.Report = ReportSave({look.File, look.Written}, look.Changed, document.Dialect, look.Its);
    const OverriddenEdits overridden = FindOverriddenEdits(unedited, document, look.Date, look.Its);
    TellOverriddenEdits(look.Report, overridden, look.Changed);
    const bool foreign =
        unedited.Foreign || ReadScratch(run, document.Dialect, document.CurrentScriptPath, look.File).Foreign;
    look.Loses = LosesSomething(look.Report, foreign ? ScriptHand::Foreign : ScriptHand::Own);
    if (LosesSomething(look.Report, ScriptHand::Foreign)) {
        const auto resave = [&](TextView script) {
            return ComposeScript(ReadScratch(run, document.Dialect, document.CurrentScriptPath, script), look.Date);
        };
        ScriptDocument freed = document;
        freed.Foreign = foreign;
        freed.Sections = overridden.Sections;
        look.Plan = PlanKeeping(freed, look.File, WithEdits(look.Changed, overridden), resave, look.Date, look.Its);
        look.Plan.Keeps = look.Plan.Keeps || overridden.Drops;
        MarkWhatIsLeft(look.Report, look.Plan);
    }
    return look;
}

void Keep(Fig_Frm& form, const SaveLook& look) {
    if (look.Plan.Keeps) {
        form.Document.Sections = look.Plan.Sections;
        Edited(form);
        NoteEdit(form);
    }
}

/// The file where it is not edited, and else what a save would write.
Text TextNow(Fig_Frm& form) {
    if (form.Document.ScriptClean) {
        const Result<Text> file = ReadBounded(form.run.System.Disk, form.Document.CurrentScriptPath, kLargeScript);
        if (file.Ok()) {
            return file.Value;
        }
    }
    return ComposeScript(form.Document, form.run.System.Time.Now());
}

PlayedGame GameOf(const Fig_Frm& form) {
    const ScriptDialect& dialect = form.Document.Dialect;
    return PlayedOfRun(form.run, EngineInUse(form), ProgramInUse(form), dialect.GameKind, dialect.IsQuakeWorld);
}

/// The start of the game that is picked, as a launch would make it, with this script.
LookedStart StartOf(Fig_Frm& form) {
    const GivenScript edited{form.Document.CurrentScriptPath, TextNow(form)};
    StartRequest request = form.StartOfLaunch ? form.StartOfLaunch(edited) : StartRequest{{}, {}, {edited}};
    request.Played = GameOf(form);
    return StartWith(form.run.System.Disk, std::move(request), edited.Path);
}

}  // namespace

void ShowChanges_Cmd_Click(Fig_Frm& form) {
    const auto look = LookAtSave(form);
    if (!look) {
        AskUser(form.run, "Setup Foundry", "There is no file yet that could be compared with what is saved.");
        return;
    }
    Changes_Frm changes(form.run, look->Report, {look->File, look->Written}, ChangesTime::Looking);
    ShowModal(changes);
    if (changes.Answer == ChangesAnswer::Keep) {
        Keep(form, *look);
    }
}

bool MaySaveChanges(Fig_Frm& form) {
    const auto look = LookAtSave(form);
    if (!look || !look->Loses) {
        return true;
    }
    Changes_Frm changes(form.run, look->Report, {look->File, look->Written}, ChangesTime::Saving);
    ShowModal(changes);
    if (changes.Answer == ChangesAnswer::Keep) {
        Keep(form, *look);
    }
    return changes.Answer != ChangesAnswer::Leave && !form.run.Ended;
}

void FileOrder_Cmd_Click(Fig_Frm& form) {
    const LookedStart start = StartOf(form);
    FileOrder_Frm order(form.run, start.Request, start.Note);
    ShowModal(order);
}

void AliasGraph_Cmd_Click(Fig_Frm& form) {
    const Console console = GameOf(form).Of;
    const std::vector<NamedBody> bodies = NamedBodiesOf(TextNow(form), console);
    AliasGraph_Frm graph(form.run, bodies, console);
    ShowModal(graph);
}

void ScriptCheck_Cmd_Click(Fig_Frm& form) {
    const LookedStart start = StartOf(form);
    ScriptCheck_Frm check(form.run, start.Request, start.Note);
    ShowModal(check);
}

void Versions_Cmd_Click(Fig_Frm& form) {
    if (ShowVersions(form.run, form.Document.CurrentScriptPath) && !form.run.Ended) {
        ReadAgain(form);
    }
}

}  // namespace lv
