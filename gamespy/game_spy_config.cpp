#include "gamespy/game_spy_config.h"

#include "catalogs/catalog_store.h"
#include "catalogs/editors/path_window.h"
#include "foundation/browse.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"

namespace lv {

namespace {

constexpr TextView kProgram = "\\gamespy.exe";
constexpr TextView kPlaces[] = {"\\gamespy\\gamespy.exe", "\\progra~1\\gamespy\\gamespy.exe"};

Text PositionKey(TextView name, std::size_t slot) {
    return Join(name, std::to_string(slot));
}

Text ExecutableOf(const GameSpyConfig_Frm& form, std::size_t slot) {
    return ItemValue(form.ExeSpy_Cbo[slot].Selected());
}

void FillExecutables(GameSpyConfig_Frm& form, std::size_t slot) {
    const SpySlot& facts = SpySlots()[slot];
    ListBox& list = form.ExeSpy_Cbo[slot];
    list.Clear();
    for (const ImageComboItem& item : form.Executables.Items) {
        const Text path = ReplaceSameLength(item.Key, "/", "\\");
        if (IsExecutableOf(slot, path) &&
            form.run.System.Disk.DirectoryExists(Join(DirectoryOf(path), DataDirectoryOf(facts)))) {
            list.Items.push_back(MakeItem(item.Title, path));
        }
    }
    list.ListIndex = StoredPosition(form.run, PositionKey("SpyExecutablesPos", slot), 0, list.Items.size());
}

/// The rows of the slot's scripts: those of the catalog that lie in its directory.
std::vector<Text> ScriptRows(GameSpyConfig_Frm& form, std::size_t slot) {
    const SpySlot& facts = SpySlots()[slot];
    const auto catalog = SplitRows(CatalogValue(form.run, kScripts), kScripts.RecordSize);
    if (facts.Scripts == SpyScripts::None || !form.ExeSpy_Cbo[slot].HasSelection() || !catalog) {
        return {};
    }
    const Text directory = LowerCase(Join(DirectoryOf(ExecutableOf(form, slot)), DataDirectoryOf(facts)));
    std::vector<Text> rows;
    for (std::size_t i = 0; i < catalog->Count(); ++i) {
        const Text path = Trim(catalog->Field(i, 1));
        const bool isIni = LowerCase(path).ends_with(".ini");
        if (LowerCase(DirectoryOf(path)) == directory && isIni == (facts.Scripts == SpyScripts::InisOf)) {
            rows.push_back(MakeItem(catalog->Field(i, 0), path));
        }
    }
    return rows;
}

void RestoreScript(GameSpyConfig_Frm& form, std::size_t slot) {
    ListBox& list = form.ScriptSpy_Cbo[slot];
    list.Items = ScriptRows(form, slot);
    const Index stored = GetNumber(form.run, kOptions, PositionKey("SpyScriptsPos", slot), -1);
    list.ListIndex = stored;
    if (!list.HasSelection()) {
        list.ListIndex = -1;
    }
}

void ShowWorkingDirectory(GameSpyConfig_Frm& form) {
    form.QuakeWorkingDir_Lbl.Caption = DirectoryOf(ExecutableOf(form, spy_slot::kQuake));
}

void ShowLocation(GameSpyConfig_Frm& form, TextView location) {
    form.GameSpyLocation_Lbl.Caption = location;
    Save(form.run, kOptions, kGameSpyLocation, location);
}

}  // namespace

GameSpyConfig_Frm::GameSpyConfig_Frm(Run& owner, const ImageCombo& executables)
    : ModalWindow(owner, "GameSpyConfig_Frm"), Executables(executables) {
    Caption = "Configure Game Spy";
    Browse_Cmd.Caption = "&Browse";
    DoIt_Cmd.Caption = "Configure Game&Spy!";
    DoIt_Cmd.Default = true;
    Cancel_Cmd.Caption = "&Cancel";
    LaunchSpyNow_Chk.Caption = "Start GameSpy 3D Now";
    LaunchSpyNow_Chk.Value = 1;
    MinimizeLorvane_Opt = {"Leave Lorvane Alone", "Minimize Lorvane", "Close Lorvane"};
    for (std::size_t slot = 0; slot < kSpySlots; ++slot) {
        const SpySlot& facts = SpySlots()[slot];
        const TextView kind = facts.Scripts == SpyScripts::InisOf ? "Ini file" : "Script";
        ExeSpy_Cbo[slot].ToolTip = Join("Program that GameSpy starts for ", facts.Game);
        ScriptSpy_Cbo[slot].ToolTip = Join(kind, " for ", facts.Game, " when GameSpy starts it");
        if (CheckBox* const box = InstalledBox(*this, slot)) {
            box->Caption = facts.Game;
        }
    }
    ScriptSpy_Cbo[spy_slot::kQuakeWorld].Visible = false;
}

CheckBox* InstalledBox(GameSpyConfig_Frm& form, std::size_t slot) {
    CheckBox* const boxes[kSpySlots] = {nullptr,
                                        &form.QWInstalled_Chk,
                                        &form.Hexen2Installed_Chk,
                                        &form.Quake2Installed_Chk,
                                        &form.UnRealInstalled_Chk,
                                        &form.SinInstalled_Chk};
    return boxes[slot];
}

bool SlotInUse(GameSpyConfig_Frm& form, std::size_t slot) {
    const CheckBox* const box = InstalledBox(form, slot);
    return form.ExeSpy_Cbo[slot].HasSelection() && (box == nullptr || box->Value == 1);
}

void GameSpyConfig_Load(GameSpyConfig_Frm& form) {
    for (std::size_t slot = 0; slot < kSpySlots; ++slot) {
        FillExecutables(form, slot);
        RestoreScript(form, slot);
        const bool found = form.ExeSpy_Cbo[slot].HasSelection();
        form.ExeSpy_Cbo[slot].Enabled = form.ScriptSpy_Cbo[slot].Enabled = found;
        if (CheckBox* const box = InstalledBox(form, slot)) {
            box->Value = found ? 1 : 0;
            box->Enabled = found;
        }
    }
    ShowWorkingDirectory(form);
    FindGameSpy(form);
}

void GameSpyConfig_ExeSpy_Cbo_Click(GameSpyConfig_Frm& form, std::size_t slot) {
    Save(form.run, kOptions, PositionKey("SpyExecutablesPos", slot), form.ExeSpy_Cbo[slot].ListIndex);
    std::vector<Text> scripts = ScriptRows(form, slot);
    if (scripts != form.ScriptSpy_Cbo[slot].Items) {
        form.ScriptSpy_Cbo[slot].Items = std::move(scripts);
        form.ScriptSpy_Cbo[slot].ListIndex = -1;
        GameSpyConfig_ScriptSpy_Cbo_Click(form, slot);  // the stored position was one of the list that has gone
    }
    if (slot == spy_slot::kQuake) {
        ShowWorkingDirectory(form);
    }
}

void GameSpyConfig_ScriptSpy_Cbo_Click(GameSpyConfig_Frm& form, std::size_t slot) {
    Save(form.run, kOptions, PositionKey("SpyScriptsPos", slot), form.ScriptSpy_Cbo[slot].ListIndex);
}

void GameSpyConfig_Browse_Cmd_Click(GameSpyConfig_Frm& form) {
    const Text directory = ChoosePath(form.run, BrowseStart(form.run, DirectoryOf(form.GameSpyLocation_Lbl.Caption)));
    if (directory == kPathCancelled) {
        return;
    }
    const TextView below = directory.ends_with('\\') ? kProgram.substr(1) : kProgram;
    if (const Text location = Join(directory, below); form.run.System.Disk.FileExists(location)) {
        ShowLocation(form, location);
    } else {
        AskUser(form.run, "", Join("GameSpy was not found in '", directory, "'."));
    }
}

void GameSpyConfig_MinimizeLorvane_Opt_Click(GameSpyConfig_Frm& form, int index) {
    form.Minimize = static_cast<MinimizeLorvane>(index);
}

void GameSpyConfig_DoIt_Cmd_Click(GameSpyConfig_Frm& form) {
    if (form.GameSpyLocation_Lbl.Caption.empty()) {
        AskUser(form.run, "Where is GamsSpy?", "Please locate GameSpy before configuring.");
        GameSpyConfig_Browse_Cmd_Click(form);
        return;
    }
    form.DialogResult = 1;
    form.Closed = true;
}

void GameSpyConfig_Cancel_Cmd_Click(GameSpyConfig_Frm& form) {
    form.DialogResult = 0;
    form.Closed = true;
}

void FindGameSpy(GameSpyConfig_Frm& form) {
    Files& disk = form.run.System.Disk;
    Text location = GetSetting(form.run, form.run.AppName, kOptions, kGameSpyLocation);
    if (location.empty() || !disk.FileExists(location)) {
        location.clear();
        for (const Text& drive : disk.Drives()) {
            if (drive == "A:" || drive == "B:" || disk.ProbeDrive(drive)) {
                continue;
            }
            for (const TextView place : kPlaces) {
                location = disk.FileExists(Join(drive, place)) ? Join(drive, place) : location;
            }
        }
    }
    ShowLocation(form, location);
}

}  // namespace lv
