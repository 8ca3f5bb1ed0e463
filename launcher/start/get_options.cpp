#include "launcher/start/get_options.h"

#include <array>
#include <cstdio>

#include "catalogs/built_in_lists.h"
#include "catalogs/executables.h"
#include "foundation/field_strings.h"
#include "foundation/numbers.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "launcher/start/install_params.h"
#include "launcher/start/start_directories.h"
#include "launcher/window/lv_events.h"
#include "video/profile_model.h"

namespace lv {

namespace {

/// Shows the wizard until the user has gone through with it. False if the program ended instead.
bool RunWizard(Launcher& launcher) {
    Run& run = launcher.run;
    launcher.WizardRan = true;
    SetSplashTopmost(run, launcher.Splash, false);
    while (!launcher.ShowInstallWizard()) {
        if (!GoOnAfterCancel(run)) {
            return false;
        }
    }
    SetSplashTopmost(run, launcher.Splash, true);
    return true;
}

/// False if the program ended; the next start is a first run again then.
bool FirstRun(Launcher& launcher) {
    Run& run = launcher.run;
    if (GetNumber(run, kStuff, "FirstTime", 1) != 1) {
        return true;
    }
    if (launcher.ShowInstallWizard && !RunWizard(launcher)) {
        return false;
    }
    Save(run, kStuff, "FirstRunOn", TextView(LongDate(run.System.Time)));
    CutTrailingBackslash(run.DefaultGameDirectory);
    return true;
}

void CountRun(Run& run) {
    Save(run, kStuff, "FirstTime", 0);
    const std::int64_t runs = ToLong(GetSetting(run, run.AppName, kStuff, "RunCount", "0"));
    Save(run, kStuff, "RunCount", TextView(std::to_string(runs + 1)));
    CutTrailingBackslash(run.DefaultGameDirectory);
}

void SetUpExecutables(Launcher& launcher) {
    Run& run = launcher.run;
    if (!launcher.ShowInstallWizard) {
        AskUser(run, "", "The search for games isn't part of this version of Lorvane 3D yet.");
        return;
    }
    if (!launcher.ShowInstallWizard()) {
        AskUser(run, "", "Setup cancelled at users request.");
    }
}

void OfferWizardForEmptyList(Launcher& launcher) {
    Run& run = launcher.run;
    if (launcher.WizardRan) {
        return;
    }
    run.DefaultGameDirectory.clear();
    if (!GetSetting(run, run.AppName, kOptions, "Executables").empty()) {
        return;
    }
    SetSplashTopmost(run, launcher.Splash, false);
    if (AskUser(run, "Executables List Is Empty", "Would you like to set up your game executables?", "&Yes,&No") == 0) {
        SetUpExecutables(launcher);
    }
    SetSplashTopmost(run, launcher.Splash, true);
}

}  // namespace

Text LongDate(Clock& clock) {
    const LocalTime now = clock.Now();
    std::array<char, 32> dayAndYear{};
    (void)std::snprintf(dayAndYear.data(), dayAndYear.size(), " %02d, %04d", now.Day, now.Year);
    return Join(clock.MonthName(now.Month), dayAndYear.data());
}

bool GetOptions(Launcher& launcher) {
    Run& run = launcher.run;
    if (!FirstRun(launcher)) {
        return false;
    }
    CountRun(run);
    UpgradeVideoProfiles(run);
    if (run.Ended) {
        return false;
    }
    SizeTo(launcher, ModeOfWord(GetSetting(run, run.AppName, kOptions, "ShowAll", "Yes")));
    FillVideoProfiles(run, launcher.Window.VideoProfiles_Cbo);
    OfferWizardForEmptyList(launcher);
    if (!LoadExes(run, launcher.Lists)) {
        return false;
    }
    Exe_Cbo_Click(launcher);
    VideoProfile_Frm_Unload(launcher.VideoProfile);
    return !run.Ended && FillMemoryCombo(run, launcher.Lists) && FillDemoCombo(run, launcher.Lists);
}

}  // namespace lv
