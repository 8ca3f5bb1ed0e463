#include "wizard/setup_completion.h"

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/typed_path.h"

namespace lv {

namespace {

struct ProgramRow {
    std::size_t Row;
    const char* Title;
    const char* File;
};

constexpr ProgramRow kPrograms[] = {
    {0, "Quake", "\\quake.exe"},
    {0, "GL Quake", "\\glquake.exe"},
    {0, "QuakeWorld", "\\qwcl.exe"},
    {0, "GL QuakeWorld", "\\glqwcl.exe"},
    {0, "WinQuake", "\\winquake.exe"},
    {0, "V Quake", "\\vquake.exe"},
    {1, "Hexen 2", "\\h2.exe"},
    {1, "GL Hexen 2", "\\glh2.exe"},
    {1, "Hexen World", "\\hwcl.exe"},
    {1, "Hexen 2 - Portals", "\\h2mp.exe"},
    {1, "GL Hexen 2 - Portals", "\\glh2mp.exe"},
    {2, "Quake 2", "\\quake2.exe"},
    {3, "Unreal", "\\unreal.exe"},
    {4, "Sin", "\\sin.exe"},
    {5, "Heretic 2", "\\heretic2.exe"},
    {6, "Shogo", "\\shogo.exe"},
    {7, "Blood 2", "\\blood2.exe"},
    {7, "Blood 2", "\\b2demo.exe"},
    {8, "Half-Life", "\\hl.exe"},
};

constexpr std::size_t kQuakeRow = 0;

// A path that cannot stand in the list would take all entries behind it with it.
bool IsNew(Run& run, const Text& list, const Text& program) {
    return FitsAField(program) && run.System.Disk.FileExists(program) && !Holds(LowerCase(list), program);
}

void AddPrograms(Run& run, std::size_t row, const Text& path, Text& list) {
    for (const ProgramRow& program : kPrograms) {
        const Text file = Join(path, program.File);
        if (program.Row == row && IsNew(run, list, file)) {
            list += Join(program.Title, ";", file, ";");
        }
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
    for (std::size_t i = 0; i < kInstallRows; ++i) {
        if (form.Game_Chk[i].Value != 1) {
            continue;
        }
        const Text path = LowerCase(TypedPath(run, form.GamePath_Txt[i].Text));
        if (!PathIsGood(form, i, path)) {
            return;
        }
        AddPrograms(run, i, path, list);
        if (directory.empty() || i == kQuakeRow) {
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
