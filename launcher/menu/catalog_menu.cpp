#include "launcher/menu/catalog_menu.h"

#include "catalogs/editors/add_demo.h"
#include "catalogs/editors/add_exe.h"
#include "catalogs/editors/add_game.h"
#include "catalogs/editors/add_script.h"
#include "catalogs/editors/add_server.h"
#include "catalogs/editors/copy_script.h"
#include "catalogs/editors/delete_entry.h"
#include "catalogs/editors/edit_memory.h"
#include "catalogs/editors/view_all.h"
#include "catalogs/executables.h"
#include "catalogs/modifications.h"
#include "foundation/question_box.h"
#include "gamespy/add_servers.h"
#include "launcher/window/lv_events.h"

namespace lv {

namespace {

// True if there is a row; the user is told if not.
template <class List>
bool NeedsRow(Launcher& launcher, const List& list, const char* message) {
    if (!list.HasSelection()) {
        AskUser(launcher.run, "", message);
        return false;
    }
    return true;
}

void ShowAddExe(Launcher& launcher, EntryMode mode) {
    AddExe_Frm form(launcher.run, launcher.Lists, mode);
    form.ChangeGame = [&launcher] { Exe_Cbo_Click(launcher); };
    ShowModal(form);
}

// True if the dialog took an entry.
bool ShowAddGame(Launcher& launcher, EntryMode mode) {
    AddGame_Frm form(launcher.run, launcher.Lists, mode);
    ShowModal(form);
    return form.DialogResult;
}

bool ShowAddScript(Launcher& launcher, EntryMode mode) {
    AddScript_Frm form(launcher.run, launcher.Lists, mode);
    ShowModal(form);
    return form.DialogResult;
}

void ShowAddDemo(Launcher& launcher, EntryMode mode) {
    AddDemo_Frm form(launcher.run, launcher.Lists, mode);
    ShowModal(form);
}

void ShowAddServer(Launcher& launcher, EntryMode mode, bool fromRow) {
    AddServer_Frm form(launcher.run, launcher.Lists, mode, fromRow);
    ShowModal(form);
}

// The row that a deletion left selected counts as picked.
void PickAfterDeletion(Launcher& launcher, const ListBox& list, void (*click)(Launcher&)) {
    if (list.HasSelection()) {
        click(launcher);
    }
}

}  // namespace

void ExeViewAll_Bar_Click(Launcher& launcher) {
    ViewAllExecutables(launcher.run, launcher.Lists);
}

void ExeAddManual_Bar_Click(Launcher& launcher) {
    ShowAddExe(launcher, EntryMode::Add);
}

void ExeAddScan_Bar_Click(Launcher& launcher) {
    const auto known = KnownGames(launcher.run);
    if (!known || !launcher.ShowInstallScan) {
        return;
    }
    launcher.ShowInstallScan(*known);
    if (!launcher.run.Ended && LoadExes(launcher.run, launcher.Lists)) {
        Exe_Cbo_Click(launcher);
    }
}

void SetUpGames_Bar_Click(Launcher& launcher) {
    if (!launcher.ShowInstallWizard) {
        return;
    }
    launcher.ShowInstallWizard();
    if (!launcher.run.Ended && LoadExes(launcher.run, launcher.Lists)) {
        Exe_Cbo_Click(launcher);
    }
}

void ExeEdit_Bar_Click(Launcher& launcher) {
    if (NeedsRow(launcher, launcher.Window.Exe_Cbo, kNoExecutable)) {
        ShowAddExe(launcher, EntryMode::Edit);
    }
}

void ExeDelete_Bar_Click(Launcher& launcher) {
    if (DeleteExecutable(launcher.run, launcher.Lists)) {
        Exe_Cbo_Click(launcher);
    }
}

void GameViewAll_Bar_Click(Launcher& launcher) {
    ViewAllGames(launcher.run, launcher.Lists);
}

void GameAddManual_Bar_Click(Launcher& launcher) {
    ShowAddGame(launcher, EntryMode::Add);
}

void GameAddScan_Bar_Click(Launcher& launcher) {
    const Index count = ScanForGames(launcher.run, launcher.Lists);
    AskUser(launcher.run, "Scan Results", Join(std::to_string(count), " game directories were added."));
}

void GameEdit_Bar_Click(Launcher& launcher) {
    if (NeedsRow(launcher, launcher.Window.Game_Cbo, kNoGame) && ShowAddGame(launcher, EntryMode::Edit)) {
        Game_Cbo_Click(launcher);  // its directory may be another now
    }
}

void GameDelete_Bar_Click(Launcher& launcher) {
    if (!DeleteGame(launcher.run, launcher.Lists)) {
        return;
    }
    if (launcher.Window.Game_Cbo.HasSelection()) {
        Game_Cbo_Click(launcher);
    } else if (launcher.Window.Box(Option::Game_Chk).Value == 1) {
        launcher.Window.Box(Option::Game_Chk).Value = 0;  // by the program: the stored choice stays
        ApplyModification(launcher);
    }
}

void MemViewAll_Bar_Click(Launcher& launcher) {
    ViewAllMemory(launcher.run, launcher.Lists);
}

void MemEdit_Bar_Click(Launcher& launcher) {
    EditMem_Frm form(launcher.run, launcher.Lists);
    ShowModal(form);
    if (form.DialogResult && launcher.Window.Mem_Cbo.HasSelection()) {
        Mem_Cbo_Click(launcher);
    }
}

void ScriptsViewAll_Bar_Click(Launcher& launcher) {
    ViewAllScripts(launcher.run, launcher.Lists);
}

void ScriptsAdd_Bar_Click(Launcher& launcher) {
    ShowAddScript(launcher, EntryMode::Add);
}

void ScriptsEdit_Bar_Click(Launcher& launcher) {
    if (NeedsRow(launcher, launcher.Window.Script_Cbo, kNoScript)) {
        ShowAddScript(launcher, EntryMode::Edit);
    }
}

void ScriptsCopy_Bar_Click(Launcher& launcher) {
    CopyScript(launcher.run, launcher.Lists);
}

void ScriptsDelete_Bar_Click(Launcher& launcher) {
    if (DeleteScript(launcher.run, launcher.Lists)) {
        PickAfterDeletion(launcher, launcher.Window.Script_Cbo, Script_Cbo_Click);
    }
}

void ScriptNew_Bar_Click(Launcher& launcher) {
    if (ShowAddScript(launcher, EntryMode::New) && launcher.OpenSetupFoundry) {
        launcher.OpenSetupFoundry();
    }
}

void DemoViewAll_Bar_Click(Launcher& launcher) {
    ViewAllDemos(launcher.run, launcher.Lists);
}

void DemoAdd_Bar_Click(Launcher& launcher) {
    ShowAddDemo(launcher, EntryMode::Add);
}

void DemoEdit_Bar_Click(Launcher& launcher) {
    if (NeedsRow(launcher, launcher.Window.Demo_Cbo, kNoDemo)) {
        ShowAddDemo(launcher, EntryMode::Edit);
    }
}

void DemoDelete_Bar_Click(Launcher& launcher) {
    if (DeleteDemo(launcher.run, launcher.Lists)) {
        PickAfterDeletion(launcher, launcher.Window.Demo_Cbo, Demo_Cbo_Click);
    }
}

void ServerViewAll_Bar_Click(Launcher& launcher) {
    ViewAllServers(launcher.run, launcher.Lists);
}

void ServerAddCurrentGameSpy_Bar_Click(Launcher& launcher) {
    if (!launcher.LaunchUnderWay) {
        launcher.LaunchUnderWay = true;
        AddCurrentGameSpyServers(launcher.run, launcher.Lists);
        launcher.LaunchUnderWay = false;
    }
}

void ServerAddManual_Bar_Click(Launcher& launcher) {
    ShowAddServer(launcher, EntryMode::Add, false);
}

void ServerEdit_Bar_Click(Launcher& launcher) {
    if (NeedsRow(launcher, launcher.Window.Server_Cbo, kNoServer)) {
        ShowAddServer(launcher, EntryMode::Edit, true);
    }
}

void ServerCopy_Bar_Click(Launcher& launcher) {
    if (NeedsRow(launcher, launcher.Window.Server_Cbo, kNoServer)) {
        ShowAddServer(launcher, EntryMode::Add, true);
    }
}

void ServerDelete_Bar_Click(Launcher& launcher) {
    if (DeleteServer(launcher.run, launcher.Lists)) {
        PickAfterDeletion(launcher, launcher.Window.Server_Cbo, Server_Cbo_Click);
    }
}

}  // namespace lv
