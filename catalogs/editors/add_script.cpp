#include "catalogs/editors/add_script.h"

#include "catalogs/scripts.h"
#include "foundation/browse.h"
#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/link_question.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundation/typed_path.h"
#include "games/games.h"

namespace lv {

namespace {

const char* CaptionOf(EntryMode mode) {
    switch (mode) {
        case EntryMode::Edit:
            return "Edit Current Script";
        case EntryMode::New:
            return "New Script";
        case EntryMode::Add:
            break;
    }
    return "Add Script";
}

bool IsEdit(const AddScript_Frm& form) {
    return form.Mode == EntryMode::Edit && form.Lists.Script_Cbo.HasSelection();
}

bool ValidateTexts(AddScript_Frm& form, const Text& title, const Text& name) {
    if (title.empty()) {
        TellFault(form, "ScriptTitle_Txt", "Enter a Title for the script file.");
    } else if (Holds(title, ",")) {
        TellFault(form, "ScriptTitle_Txt", "The Title may not contain a comma.");
    } else if (Holds(title, ";")) {
        TellFault(form, "ScriptTitle_Txt", "The Title may not contain a semi-colon.");
    } else if (name.empty()) {
        TellFault(form, "ScriptPath_Txt", "Enter the Script File Name.");
    } else if (Holds(name, ";")) {
        TellFault(form, "ScriptPath_Txt", "The File Name may not contain a semi-colon.");
    } else {
        return true;
    }
    return false;
}

bool StandsInCatalog(const CatalogRows& scripts, TextView path) {
    for (std::size_t i = 0; i < scripts.Count(); ++i) {
        if (SameText(Trim(scripts.Field(i, 1)), path)) {
            return true;
        }
    }
    return false;
}

Text AlreadyExists(TextView path) {
    return Join("Requested file '", path, "' already exists.");
}

// A copy of the game's own script, or an empty file if there is none.
Error MakeScript(const Run& run, const Text& path) {
    Files& disk = run.System.Disk;
    const Text pattern = GamesOwnScript(run);
    return disk.FileExists(pattern) ? disk.Copy(pattern, path) : disk.Replace(path, "");
}

// A new file is made here.
bool ValidateFile(AddScript_Frm& form, const Text& path) {
    Run& run = form.run;
    const bool there = run.System.Disk.FileExists(path);
    if (form.Mode != EntryMode::New) {
        if (!there) {
            TellFault(form, "ScriptPath_Txt",
                      Join("The script must be in the '", run.CurrentGameDir,
                           run.GameKind == Game::Unreal ? "' directory." : "' subdirectory."),
                      "File Name is Invalid.");
        }
        return there;
    }
    if (there) {
        TellFault(form, "ScriptPath_Txt", AlreadyExists(path), "Error Creating File");
        return false;
    }
    if (!MayWriteThroughLinks(run, path)) {
        return false;
    }
    if (const Error failed = MakeScript(run, path)) {
        TellFault(form, "ScriptPath_Txt", Join("Unable to create new file.", NewLine, ErrorLines(failed)),
                  "Error Creating File");
        return false;
    }
    return true;
}

bool StoreRow(AddScript_Frm& form, const Text& item) {
    ListBox& list = form.Lists.Script_Cbo;
    const ListBox before = list;
    if (IsEdit(form)) {
        list.Items[static_cast<std::size_t>(list.ListIndex)] = item;
    } else {
        list.Items.push_back(item);
    }
    if (SaveCatalog(form.run, form.Lists, kScripts.Key, list)) {
        return true;
    }
    list = before;
    return false;
}

}  // namespace

AddScript_Frm::AddScript_Frm(Run& owner, CatalogLists& lists, EntryMode mode)
    : EntryWindow(owner, "AddScript_Frm", mode), Lists(lists) {
    Caption = CaptionOf(mode);
    ScriptTitle_Lbl.Caption = "Script Title";
    ScriptPath_Lbl.Caption = "Script File Name";
    Browse_Cmd.Caption = "&Browse";
    if (mode == EntryMode::Edit && lists.Script_Cbo.HasSelection()) {
        ScriptTitle_Txt.Text = ItemTitle(lists.Script_Cbo.Selected());
        ScriptPath_Txt.Text = ItemValue(lists.Script_Cbo.Selected());
    }
}

Text WholeScriptPath(const Run& run, TextView typed) {
    Text name(typed);
    if (!Holds(name, ".")) {
        name += ScriptEnding(run);
    }
    const Text directory = ScriptDirectory(run);
    if (Holds(LowerCase(name), LowerCase(directory)) || Holds(name, ":")) {
        return name;
    }
    return Join(directory, "\\", name);
}

void AddScript_Browse_Cmd_Click(AddScript_Frm& form) {
    const TextView own = FactsOf(form.run.GameKind).ScriptFilter;
    const Text typed = TypedPath(form.run, form.ScriptPath_Txt.Text);
    const Text inBox = typed.empty() ? Text() : WholeScriptPath(form.run, typed);
    if (auto path = BrowseForFile(form.run, own.empty() ? kAllFilesFilter : own,
                                  BrowseStart(form.run, inBox, ScriptDirectory(form.run)))) {
        form.ScriptPath_Txt.Text = *std::move(path);
    }
}

void AddScript_OK_Cmd_Click(AddScript_Frm& form) {
    Run& run = form.run;
    const Text title = Trim(form.ScriptTitle_Txt.Text);
    const Text name = TypedPath(run, form.ScriptPath_Txt.Text);
    if (!ValidateTexts(form, title, name)) {
        return;
    }
    const Text path = WholeScriptPath(run, name);
    if (form.Mode != EntryMode::Edit) {
        const auto scripts = ReadCatalog(run, kScripts);
        if (!scripts) {
            Entry_Cancel_Cmd_Click(form);
            return;
        }
        if (StandsInCatalog(*scripts, path)) {
            TellFault(form, "ScriptPath_Txt", AlreadyExists(path), "Error Adding Script");
            return;
        }
    }
    if (!ValidateFile(form, path) || !StoreRow(form, MakeItem(title, LowerCase(path)))) {
        return;
    }
    Save(run, "DefaultScript", DefaultScriptKey(run), TextView(LowerCase(path)));
    FillScriptsCombo(run, form.Lists);
    ConfirmEntry(form, title, path);
}

}  // namespace lv
