#include "wizard/setup_completion.h"

#include <algorithm>

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/typed_path.h"
#include "games/programs.h"
#include "wizard/engine_entries.h"

namespace lv {

namespace {

// A path that cannot stand in the list would take all entries behind it with it.
bool IsNew(Run& run, const Text& list, const Text& program) {
    return FitsAField(program) && run.System.Disk.FileExists(program) && !Holds(LowerCase(list), program);
}

bool HasProgram(Run& run, std::size_t row, const Text& path) {
    return std::ranges::any_of(AllPrograms(), [&](const Program& program) {
        return program.WizardRow == row && run.System.Disk.FileExists(Join(path, "\\", program.FileName));
    });
}

/// Of the game in that directory: its own programs, and the engines of today that play it.
void AddPrograms(Install_Frm& form, std::size_t row, const Text& path, Text& list) {
    Run& run = form.run;
    const std::size_t before = list.size();
    for (const Program& program : AllPrograms()) {
        if (program.WizardRow != row || program.EntryTitle.empty()) {
            continue;
        }
        const Text file = Join(path, "\\", program.FileName);
        if (IsNew(run, list, file)) {
            list += Join(program.EntryTitle, ";", file, ";");
        }
    }
    const std::vector<EngineEntry> engines = EngineEntries(run, form.Engines, form.Found, row, path);
    for (const EngineEntry& entry : engines) {
        if (FitsAField(entry.Path) && !Holds(LowerCase(list), Join(entry.Path, ";"))) {
            list += Join(entry.Title, ";", entry.Path, ";");
        }
    }
    if (list.size() == before && engines.empty() && TreeIn(run.System.Disk, path) && !HasProgram(run, row, path)) {
        AdviseEngine(run, form.Engines, row, path);
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

}  // namespace

void Install_OK_Cmd_Click(Install_Frm& form) {
    Run& run = form.run;
    Text list = Trim(CatalogValue(run, kExecutables));
    if (!list.empty()) {
        list += ';';
    }
    Text directory = run.DefaultGameDirectory;
    for (std::size_t i = 0; i < kWizardRows; ++i) {
        if (form.Game_Chk[i].Value != 1) {
            continue;
        }
        const Text path = LowerCase(TypedPath(run, form.GamePath_Txt[i].Text));
        if (!PathIsGood(form, i, path)) {
            return;
        }
        AddPrograms(form, i, path, list);
        if (directory.empty() || i == wizard_row::kQuake) {
            directory = Join(path, "\\");
        }
    }
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
    run.DefaultGameDirectory = directory;
    form.DialogResult = true;
    form.Closed = true;
}

}  // namespace lv
