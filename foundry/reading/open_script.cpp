#include "foundry/reading/open_script.h"

#include <utility>

#include "foundation/bounded_file.h"
#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/link_question.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundry/document/bindings.h"
#include "foundry/document/script_backup.h"
#include "foundry/document/script_messages.h"
#include "foundry/reading/script_reader.h"
#include "foundry/reading/skin_page.h"

namespace lv {

namespace {

constexpr const char* kInformation = "SetupFoundry Information";

/// False if the script is large, and the user does not want to wait for it.
bool MayTakeLong(Run& run, TextView path, std::uint64_t size) {
    if (size <= kLargeScript) {
        return true;
    }
    return AskUser(run, "A Large Script",
                   Join("The script -->", NewLine, NewLine, TabChar, DoubleQuote, path, DoubleQuote, NewLine, NewLine,
                        "has ", std::to_string(size >> 20U),
                        " MB. No player writes as much, and to read it may take a minute."),
                   "&Leave It,&Read It") == 1;
}

bool Read(Run& run, ScriptDocument& document, ScriptView& view, TextView path) {
    auto file = OpenScriptFile(run, path);
    if (!file || !MayTakeLong(run, path, file->Size())) {
        return false;
    }
    document.ScriptLoading = true;
    const std::uint64_t firstLineWithoutAlias = ReadAliases(*file, document);
    file = OpenScriptFile(run, path);
    if (!file) {
        document.AliasTable = {};
        document.ScriptLoading = false;
        return false;
    }
    ReadLines(*file, document, view, firstLineWithoutAlias, [&] { Sex_Cbo_Click(run, document); });
    document.ScriptLoading = false;
    return true;
}

void BackUp(Run& run, ScriptDocument& document, TextView path) {
    const Text copy = BackupPathOf(path);
    if (SameText(copy, path)) {
        return;  // the script is itself such a copy
    }
    if (!PutsOwnFileInside(run, path, GameTreeOf(run, path))) {
        document.BackupDue = path;  // a save asks about the link, and makes the copy then
        return;
    }
    if (const Error failed = KeepBackup(run.System.Disk, path)) {
        document.BackupDue = path;
        AskUser(run, kInformation,
                Join("SetupFoundry has not edited this script before, and no backup copy could be stored.", NewLine,
                     "Until there is one, the script can be saved under another name only.", NewLine, NewLine,
                     ErrorLines(failed)),
                "&OK");
        return;
    }
    if (MessageIsOn(run, "BackupScript")) {
        AskUserUnlessTold(run, "BackupScript", kInformation,
                          Join("SetupFoundry has not edited this script before. A backup copy has been stored as -->",
                               NewLine, NewLine, DoubleQuote, copy, DoubleQuote),
                          "&Thanks SetupFoundry!");
    }
}

/// What the editor is to know of the file later, when somebody else may have written it.
void KeepFileText(Run& run, ScriptDocument& document, TextView path) {
    Result<Text> text = ReadBounded(run.System.Disk, path, kLargeScript);
    if (text.Ok()) {
        document.FileText = std::move(text.Value);
    }
}

/// The view sees the keys of an older script come free, and all rows change.
void MakeAnew(ScriptDocument& document, ScriptView& view, const ScriptDialect& dialect) {
    for (KeyIndex key = 0; key < kKeyCount; ++key) {
        UnbindKey(document, view, key);
    }
    document = MakeScriptDocument(dialect);
    for (const SlotNumber slot : SlotNumbers()) {
        view.SlotChanged(slot);
    }
}

}  // namespace

ScriptDialect DialectOfRun(const Run& run) {
    return {.GameKind = run.GameKind,
            .ScriptFamily = run.ScriptFamily,
            .IsQuakeWorld = run.IsQuakeWorld,
            .IsMissionPack = run.IsMissionPack,
            .DecimalSeparator = run.DecimalPointIsDot ? '.' : ','};
}

bool OpenScript(Run& run, ScriptDocument& document, ScriptView& view, TextView path) {
    return OpenScriptFrom(run, document, view, path, path);
}

bool OpenScriptFrom(Run& run, ScriptDocument& document, ScriptView& view, TextView path, TextView source) {
    const Text given(path);  // may be the document's own
    const Text from(source);
    MakeAnew(document, view, DialectOfRun(run));
    document.CurrentScriptPath = given;
    document.CurrentScriptDirectory = given.substr(0, given.rfind('\\') + 1);
    PrepareSkinPage(run, document);
    if (!Read(run, document, view, from)) {
        return false;
    }
    document.Caption = EditorCaption(given);
    KeepFileText(run, document, given);
    if (document.Foreign) {
        BackUp(run, document, given);
    }
    document.ScriptClean = true;
    return true;
}

}  // namespace lv
