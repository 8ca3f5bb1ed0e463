#include "launcher/start/start.h"

#include "foundation/field_strings.h"
#include "foundation/number_format.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundation/shown_name.h"
#include "launcher/menu/video_profile_menu.h"
#include "launcher/menu/window_menu.h"
#include "launcher/start/engine_load.h"
#include "launcher/start/install_params.h"
#include "launcher/start/main_window_load.h"
#include "launcher/start/start_directories.h"
#include "launcher/start/start_repairs.h"
#include "launcher/window/window_life.h"
#include "transfer/backups.h"

namespace lv {

namespace {

constexpr double kSecondsBehindTheLoad = 1;

bool AskForChipsetOnFirstRun(Launcher& launcher) {
    Run& run = launcher.run;
    if (GetNumber(run, kStuff, "FirstTime", 1) != 1) {
        return true;
    }
    SetSplashTopmost(run, launcher.Splash, false);  // it would lie above the dialog
    const bool accepted = AskForChipset(run);
    SetSplashTopmost(run, launcher.Splash, true);
    return accepted;
}

/// What this start was given is not lost without a word.
void HandOverToTheOther(Launcher& launcher) {
    if (!launcher.Dropped.IsThere() || !launcher.HandOver) {
        return;
    }
    const Text why = launcher.HandOver(launcher.Dropped.Word);
    if (!why.empty()) {
        launcher.HandOverFailed = true;
        SetSplashTopmost(launcher.run, launcher.Splash, false);
        AskUser(launcher.run, "",
                Join(why, NewLine, NewLine, "It was not given -->", NewLine, NewLine, TabChar,
                     Shown(launcher.Dropped.Word)));
    }
}

/// False if another instance runs; it has come forward, and has got what this start was given.
bool IsTheOnlyOne(Launcher& launcher) {
    Run& run = launcher.run;
    if (run.System.Instance == nullptr || run.System.Instance->Claim()) {
        return true;
    }
    HandOverToTheOther(launcher);
    EndProgram(run);
    return false;
}

void RepairAndNoteFacts(Run& run) {
    RepairVideoProfileList(run);
    RepairExecutables(run);
    RepairGames(run);
    run.DecimalPointIsDot = DecimalPointIsDot(run.System.Time.DecimalSeparator());
    run.VersionText = VersionText();
}

/// False if the program is to end: the user was told why, or another instance has come forward.
bool Prepare(Launcher& launcher) {
    Run& run = launcher.run;
    RepairAndNoteFacts(run);
    if (!AskForChipsetOnFirstRun(launcher)) {
        return false;
    }
    run.MainWindowCaption = Join("   ", run.AppName);
    run.IsWin9x = run.System.Time.IsWin9x();
    if (!IsTheOnlyOne(launcher) || !AlignDirectories(run)) {
        return false;
    }
    (void)KeepBackup(run);  // nothing keeps the program from starting
    OfferRemovalOfOlderInstall(run);
    LoadEngines(launcher);
    CutTrailingBackslash(run.AppDirectory);
    return true;
}

void OpenWindows(Launcher& launcher) {
    Run& run = launcher.run;
    ShowMainWindow(launcher);
    SetAlwaysOnTop(launcher, SameText(GetSetting(run, run.AppName, kOptions, "OnTop", "False"), "True"));
    run.User.Refresh();
    if (GetSetting(run, run.AppName, "VideoProfile_Frm", "LoadAtStartup", "0") != "1") {
        return;
    }
    run.User.AwaitMainWindow();
    if (!run.Ended) {
        VideoProfileEdit_Cmd_Click(launcher);
    }
}

}  // namespace

bool Start(Launcher& launcher) {
    Run& run = launcher.run;
    const ToldOnce told(run);
    Splash_Frm& splash = launcher.Splash;
    ShowSplash(run, splash);
    if (!Prepare(launcher)) {
        UnloadSplash(run, splash);
        return false;
    }
    InformUser(run, splash, " Loading Main Form");
    if (!LV_Frm_Load(launcher)) {
        UnloadSplash(run, splash);
        return false;
    }
    InformUser(run, splash, " Setting Window Name");
    launcher.Window.Caption = run.MainWindowCaption;
    InformUser(run, splash, " Processing Events");
    run.User.PumpEvents();
    PauseSeconds(run, kSecondsBehindTheLoad, [&run] { run.User.PrepareMainWindow(); });
    UnloadSplash(run, splash);
    if (run.Ended) {
        return false;  // an event of that second ended the program
    }
    OpenWindows(launcher);
    return !run.Ended;
}

bool LoadUnseen(Launcher& launcher) {
    Run& run = launcher.run;
    RepairAndNoteFacts(run);
    run.IsWin9x = run.System.Time.IsWin9x();
    run.AppDirectory = run.System.Disk.ProgramDirectory();
    LoadEngines(launcher);
    CutTrailingBackslash(run.AppDirectory);
    return LV_Frm_Load(launcher) && !run.Ended;
}

}  // namespace lv
