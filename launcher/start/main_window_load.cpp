#include "launcher/start/main_window_load.h"

#include "catalogs/built_in_lists.h"
#include "catalogs/executables.h"
#include "catalogs/map_scan.h"
#include "catalogs/scripts.h"
#include "foundation/settings.h"
#include "games/engines/engine_seats.h"
#include "launcher/setups/setups_menu.h"
#include "launcher/start/get_options.h"
#include "launcher/start/start_repairs.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/option_rules.h"
#include "video/profile_model.h"

namespace lv {

namespace {

// The stored combination is shown as it is: nothing is excluded here. Only what the game itself rules out is.
void LoadOptionBoxes(Launcher& launcher) {
    Run& run = launcher.run;
    LV_Frm& window = launcher.Window;
    for (const OptionBox& option : OptionBoxes()) {
        if (*option.Key != '\0') {
            const Index stored = GetNumber(run, kOptions, option.Key, static_cast<Index>(option.Default));
            window.Box(option.Box).Value = stored == 1 || stored == 2 ? stored : 0;
        }
    }
    if (!window.Game_Cbo.HasSelection()) {
        window.Box(Option::Game_Chk).Value = 0;
    }
    ApplyGameSpyRule(window);
    window.CommandLineAdditions_Txt.Text = GetSetting(run, run.AppName, kOptions, "CustomCommandLineText");
    ApplyGamePanels(window, {run.GameKind, run.ScriptFamily, run.IsQuakeWorld, run.IsHexenWorld});
    ApplyEngine(window, SelectedEngine(launcher));
    if (run.GameKind != Game::None) {
        ApplyModification(launcher);
        ScanForMaps(run, launcher.Lists);
    }
}

}  // namespace

bool LV_Frm_Load(Launcher& launcher) {
    Run& run = launcher.run;
    LV_Frm& window = launcher.Window;
    window.Remembered = window.Size;
    InformUser(run, launcher.Splash, " Getting Options");
    if (!GetOptions(launcher)) {
        return false;
    }
    LoadOptionBoxes(launcher);
    window.ButtonBar_Cmd[0].ToolTip = kLaunchToolTip;
    if (run.Ended || !FixScriptRegistries(run)) {
        return false;
    }
    LoadPlacement(run, "LV_Frm", window.Placement, ScreenInTwips(run));
    SetSplashTopmost(run, launcher.Splash, false);
    launcher.Setups = LoadSetups(run);
    SetSplashTopmost(run, launcher.Splash, true);
    ShowSetupsInMenu(launcher);
    window.TrayIcon = true;
    run.MainFormLoaded = true;
    return true;
}

bool ReloadMainWindow(Launcher& launcher) {
    Run& run = launcher.run;
    LV_Frm& window = launcher.Window;
    RepairVideoProfileList(run);
    RepairExecutables(run);
    RepairGames(run);
    UpgradeVideoProfiles(run);
    RestoreEngineSeats(run);
    if (run.Ended) {
        return false;
    }
    FillVideoProfiles(run, window.VideoProfiles_Cbo);
    if (!LoadExes(run, launcher.Lists)) {
        return false;
    }
    Exe_Cbo_Click(launcher);
    if (run.Ended || !FillMemoryCombo(run, launcher.Lists) || !FillDemoCombo(run, launcher.Lists)) {
        return false;
    }
    LoadOptionBoxes(launcher);
    if (launcher.VideoProfile.VideoProfileWindowOpen) {
        Videop(launcher.VideoProfile);
    }
    launcher.Setups = LoadSetups(run);
    ShowSetupsInMenu(launcher);
    run.User.Refresh();
    return !run.Ended;
}

}  // namespace lv
