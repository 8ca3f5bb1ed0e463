#include "wizard/setup_completion.h"

#include <algorithm>

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/typed_path.h"
#include "games/programs.h"
#include "wizard/engine_advice.h"
#include "wizard/engine_entries.h"
#include "wizard/entry_list.h"
#include "wizard/first_pick.h"
#include "wizard/further_trees.h"

namespace lv {

namespace {

bool HasProgram(Run& run, std::size_t row, const Text& path) {
    return std::ranges::any_of(AllPrograms(), [&](const Program& program) {
        return program.WizardRow == row && run.System.Disk.FileExists(Join(path, "\\", program.FileName));
    });
}

/// The entries under work.
struct Setup {
    Install_Frm& Form;
    Text List;
};

void AddEntry(Setup& setup, TextView title, const Text& path, const Text& tree) {
    setup.List += Join(TitleOfEntry(setup.List, title, tree, TreesBeside(setup.Form, tree)), ";", path, ";");
}

/// The game's own programs in the directory. Those of a row have their own names always.
void AddPrograms(Setup& setup, std::size_t row, const Text& tree, bool isRow) {
    const Text path = LowerCase(tree);
    for (const Program& program : AllPrograms()) {
        const Text file = Join(path, "\\", program.FileName);
        if (program.WizardRow != row || program.EntryTitle.empty() || !IsNewProgram(setup.Form.run, setup.List, file)) {
            continue;
        }
        if (isRow) {
            setup.List += Join(program.EntryTitle, ";", file, ";");
        } else {
            AddEntry(setup, program.EntryTitle, file, tree);
        }
    }
}

void AddEngines(Setup& setup, const std::vector<EngineEntry>& entries, const Text& tree) {
    for (const EngineEntry& entry : entries) {
        if (FitsAField(entry.Path) && !IsListed(setup.List, entry.Path)) {
            AddEntry(setup, entry.Title, entry.Path, tree);
        }
    }
}

/// Of the game in that directory: its own programs, the engines of today that play it and, where anything does, the
/// servers. True if anything does, or would if the tree could be prepared for it: the user was told why it could not.
bool AddTree(Setup& setup, std::size_t row, const Text& tree, bool isRow) {
    Install_Frm& form = setup.Form;
    const Text path = LowerCase(tree);
    AddPrograms(setup, row, tree, isRow);
    const std::vector<EngineEntry> engines = EngineEntries(form.run, form.Engines, form.Found, row, path);
    AddEngines(setup, engines, tree);
    if (engines.empty() && !HasProgram(form.run, row, path)) {
        return HasNewEngine(form.run, form.Engines, form.Found, row, path, "");
    }
    AddEngines(setup, ServerEntries(form.run, form.Engines, form.Found, row, path), tree);
    return true;
}

void AddFurtherTrees(Setup& setup) {
    const std::vector<FurtherTree> trees = FurtherTrees(setup.Form, setup.List);
    if (!WantsFurtherTrees(setup.Form.run, trees)) {
        return;
    }
    for (const FurtherTree& tree : trees) {
        AddTree(setup, tree.Row, tree.Path, false);
    }
}

bool PathIsGood(Install_Frm& form, std::size_t row, const Text& path) {
    const char* fault = path.empty()                                  ? " Path is missing."
                        : !form.run.System.Disk.DirectoryExists(path) ? " Path does not exist."
                                                                      : nullptr;
    if (fault == nullptr) {
        return true;
    }
    AskUser(form.run, "", Join(InstallRows()[row].Name, fault));
    form.Focus = Join("GamePath_Txt(", std::to_string(row), ")");
    return false;
}

/// Ahead of all that stores anything or makes directories: the first bad row leaves everything as it was.
bool RowsAreGood(Install_Frm& form) {
    for (std::size_t i = 0; i < kWizardRows; ++i) {
        if (form.Game_Chk[i].Value == 1 &&
            !PathIsGood(form, i, LowerCase(TypedPath(form.run, form.GamePath_Txt[i].Text)))) {
            return false;
        }
    }
    return true;
}

}  // namespace

void Install_OK_Cmd_Click(Install_Frm& form) {
    Run& run = form.run;
    if (!RowsAreGood(form)) {
        return;
    }
    form.Found.Engines = EnginesHere(run, form.Engines);  // one may have been installed meanwhile
    Setup setup{form, Trim(CatalogValue(run, kExecutables))};
    Text& list = setup.List;
    const bool isFirst = list.empty();
    if (!isFirst) {
        list += ';';
    }
    Text directory = run.DefaultGameDirectory;
    std::vector<SetUpTree> trees;
    for (std::size_t i = 0; i < kWizardRows; ++i) {
        if (form.Game_Chk[i].Value != 1) {
            continue;
        }
        const Text typed = TypedPath(run, form.GamePath_Txt[i].Text);
        const Text path = LowerCase(typed);
        const bool isPlayed = AddTree(setup, i, typed, true);
        if (TreeIn(run.System.Disk, path)) {
            trees.push_back({i, path, isPlayed, form.GamePath_Txt[i].Text != form.FoundPaths[i]});
        }
        if (directory.empty() || i == wizard_row::kQuake) {
            directory = Join(path, "\\");
        }
    }
    AddFurtherTrees(setup);
    AdviseOnce(run, form.Engines, trees, list.size() < 2);
    if (list.size() < 2) {
        AskUser(run, "", Join("No supported executables were found", NewLine, "in the selected directories."));
        return;
    }
    if (list.ends_with(';')) {
        list.pop_back();
    }
    if (!StoreCatalog(run, kExecutables.Key, list)) {
        return;
    }
    if (isFirst) {
        PickWhatStarts(run, form.Engines, list);
    }
    run.DefaultGameDirectory = directory;
    form.DialogResult = true;
    form.Closed = true;
}

}  // namespace lv
