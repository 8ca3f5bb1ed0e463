#include "launcher/menu/button_bar.h"

#include "launcher/menu/video_profile_menu.h"
#include "launcher/menu/window_menu.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/window_life.h"

namespace lv {

namespace {

void Launch(Launcher& launcher) {
    DoIt_Cmd_Click(launcher, 0);
}

void EditScript(Launcher& launcher) {
    Menu_Click(launcher, MenuItem::SetupFoundry_Bar);
}

void LaunchGameSpy(Launcher& launcher) {
    if (launcher.LaunchUnderWay) {
        return;
    }
    SetOption(launcher, Option::LaunchQspy_Chk, 1);
    DoIt_Cmd_Click(launcher, 0);
}

/// Without both the profile for speed and the one for beauty in their rows neither is picked.
constexpr std::size_t kLeastProfiles = 3;

template <int Row>
void SelectProfile(Launcher& launcher) {
    ListBox& profiles = launcher.Window.VideoProfiles_Cbo;
    if (profiles.Items.size() < kLeastProfiles) {
        return;
    }
    profiles.ListIndex = Row;
    VideoProfiles_Cbo_Click(launcher);
}

constexpr BarButtonRow kButtons[kBarButtons] = {
    {"Launch [F2]", "launch", Launch},
    {"Edit Current Script with Setup Foundry [F3]", "edit_script", EditScript},
    {"Configure & Launch GameSpy", "gamespy", LaunchGameSpy},
    {"Reset GL Options for Speed (Overclocked)", "speed", SelectProfile<1>},
    {"Reset GL Options for Beauty", "beauty", SelectProfile<2>},
    {"Resize Lorvane 3D", "resize", NextSize},
    {"Minimize Lorvane 3D", "minimize", ShowLorvane_Bar_Click},
    {"Close Lorvane 3D [F12]", "close", Exit_Bar_Click},
    {"Help!! [F1]", "help", HelpView_Bar_Click},
};

}  // namespace

std::span<const BarButtonRow> BarButtonRows() {
    return kButtons;
}

void ButtonBar_Cmd_Click(Launcher& launcher, int index) {
    kButtons[index].Click(launcher);
}

}  // namespace lv
