#include "foundry/writing/save_script.h"

#include <exception>
#include <utility>

#include "catalogs/scripts.h"
#include "foundation/bounded_file.h"
#include "foundation/browse.h"
#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/link_question.h"
#include "foundation/question_box.h"
#include "foundry/document/bindings.h"
#include "foundry/document/script_backup.h"
#include "foundry/document/script_messages.h"
#include "foundry/versions/script_versions.h"
#include "foundry/writing/compose_script.h"
#include "foundry/writing/console_layout.h"
#include "foundry/writing/save_filters.h"

namespace lv {

namespace {

constexpr const char* kTitle = "Setup Foundry";
constexpr const char* kFailed = "Error During Save";
constexpr std::size_t kMaxFileSize = 32000;

bool SayNotSaved(Run& run) {
    AskUser(run, kTitle, "Script NOT saved.");
    return false;
}

void TellDialogFailure(Run& run, const Error& failed, bool diagnostics) {
    const Text size = diagnostics ? Join("MaxFileSize is ", std::to_string(kMaxFileSize), NewLine) : Text();
    AskUser(run, "A Windows Related Error Occured", Join(size, DialogFailureText(failed)));
}

/// Empty if the user chose none, or was told why there is none.
Text ChoosePath(Run& run, const ScriptDocument& document, bool diagnostics) {
    const Game kind = document.Dialect.GameKind;
    const Text& path = document.CurrentScriptPath;
    FileRequest request;
    request.Filter = SaveFilter(kind, ExtensionOf(path));
    request.InitialDirectory = kind == Game::Unreal ? DirectoryOf(path) : ScriptDirectory(run);
    request.FileName = LastPathPart(path);
    request.ForSaving = true;
    request.MaxFileSize = kMaxFileSize;
    const Result<std::optional<Text>> chosen = AskForFile(run, request);
    if (chosen.Ok()) {
        return chosen.Value.value_or("");
    }
    if (chosen.Fault.Number != kDialogCancelled) {
        TellDialogFailure(run, chosen.Fault, diagnostics);
    }
    return {};
}

/// The games of the newer family write their config.cfg themselves.
bool MayOwnConfig(Run& run, const ScriptDocument& document, TextView path) {
    if (document.Dialect.ScriptFamily != Dialect::Quake2 || !Holds(LowerCase(path), "\\config.cfg")) {
        return true;
    }
    const Index answer = AskUser(run, kTitle,
                                 Join("You have selected to save this script as", NewLine, TabChar, "config.cfg",
                                      NewLine, "Quake 2 / Sin / Heretic2 may ruin some of your changes", NewLine,
                                      "because Quake 2 / Sin / Heretic2 owns the config.cfg."),
                                 "&I Don't Care,&Cancel,&Tell Me How To Avoid This");
    if (answer == 1) {
        return SayNotSaved(run);
    }
    if (answer != 2) {
        return true;
    }
    const Index second = AskUser(
        run, kTitle,
        Join("Press 'Save As...', and name the script", NewLine, "something like 'myscript.cfg'. Then select", NewLine,
             "the script from the script list box on the", NewLine, "main launch window. Check the box next to the",
             NewLine, "script list box. Quake 2 will not mess with", NewLine,
             "this new file, and Lorvane will execute it."),
        "&Screw That - Save This Anyway,&Cancel and I'll Try That");
    return second == 1 ? SayNotSaved(run) : true;
}

/// Once the user has agreed they are not asked again, least of all by every auto save.
bool MayFollowLink(Run& run, ScriptDocument& document, const Text& path) {
    const Text target = LinkTargetOutside(run, path);
    if (target.empty() || target == document.FollowedLink) {
        return true;
    }
    if (!AskToFollowLink(run, path, target)) {
        return SayNotSaved(run);
    }
    document.FollowedLink = target;
    return true;
}

/// A foreign script is written over only once there is a copy of it.
bool HasBackup(Run& run, ScriptDocument& document, const Text& path) {
    if (document.BackupDue.empty() || !SameText(document.BackupDue, path) || !run.System.Disk.FileExists(path)) {
        return true;
    }
    if (const Error failed = KeepBackup(run.System.Disk, path)) {
        AskUser(
            run, kFailed,
            Join("Script NOT saved. SetupFoundry has not edited it before, and no backup copy could be stored as -->",
                 NewLine, NewLine, DoubleQuote, BackupPathOf(path), DoubleQuote, NewLine, NewLine, ErrorLines(failed),
                 NewLine, NewLine, "Make room for the copy and save again, or save the script under another name."));
        return false;
    }
    document.BackupDue.clear();
    return true;
}

/// What the save replaces is kept. A save by itself asks nothing: it would ask again each time.
bool KeepsWhatItReplaces(Run& run, const Text& path, bool quiet) {
    const Result<Text> kept = KeepVersion(run, path);
    if (kept.Ok() && !kept.Value.empty()) {
        AskUser(run, kTitle, KeptAsideText(kept.Value));  // the file is whole again with this save
    }
    if (kept.Ok() || quiet) {
        return true;
    }
    const Index answer =
        AskUser(run, kTitle,
                Join("What the file holds now could not be kept as a version, to be brought back later:", NewLine,
                     NewLine, ErrorLines(kept.Fault)),
                "&Save Anyway,&Cancel");
    return answer == 0 || SayNotSaved(run);
}

Error Put(Run& run, ScriptDocument& document, const Text& path) {
    try {
        Text script = ComposeScript(document, run.System.Time.Now());
        Error failed = run.System.Disk.Replace(path, script);
        if (!failed) {
            document.FileText = script.size() <= kLargeScript ? std::optional<Text>(std::move(script)) : std::nullopt;
        }
        return failed;
    } catch (const std::exception& thrown) {
        return ErrorOfException(thrown);
    }
}

bool Write(Run& run, ScriptDocument& document, const Text& path) {
    if (const Error failed = Put(run, document, path)) {
        AskUser(run, kFailed, ErrorLines(failed));
        return false;
    }
    return true;
}

/// An ini has no form for the empty command, so only a console script frees the key.
void FreeEmptyBindings(ScriptDocument& document, ScriptView& view) {
    if (document.Dialect.GameKind == Game::Unreal) {
        return;
    }
    for (KeyIndex key = 0; key < kKeyCount; ++key) {
        if (document.KeyBinding[static_cast<std::size_t>(key)] == kEmptyCommand &&
            IsWrittenKey(key, document.Dialect.ScriptFamily)) {
            UnbindKey(document, view, key);
        }
    }
}

}  // namespace

bool SaveScript(Run& run, CatalogLists& lists, ScriptDocument& document, ScriptView& view, const SaveManner& manner) {
    Text path = document.CurrentScriptPath;
    if (manner.Name == SaveName::AskForIt) {
        path = ChoosePath(run, document, manner.Diagnostics);
        if (path.empty() || !MayOwnConfig(run, document, path)) {
            return false;
        }
    }
    if (!MayFollowLink(run, document, path) || !HasBackup(run, document, path) ||
        !KeepsWhatItReplaces(run, path, manner.Quiet) || !Write(run, document, path)) {
        return false;
    }
    FreeEmptyBindings(document, view);
    document.ScriptClean = true;
    document.CurrentScriptPath = path;
    document.Caption = EditorCaption(path);
    if (!manner.Quiet) {
        AskUser(run, kTitle, "The script was saved successfully!");
    }
    if (AddToScripts(run, LowerCase(LastPathPart(path)), path)) {
        FillScriptsCombo(run, lists);
    }
    return true;
}

}  // namespace lv
