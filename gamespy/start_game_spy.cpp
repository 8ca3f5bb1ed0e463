#include "gamespy/start_game_spy.h"

#include "foundation/error_lines.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "gamespy/game_spy_config.h"
#include "gamespy/window_search.h"
#include "launch/launch_step.h"

namespace lv {

namespace {

Text NotLaunched() {
    return Join("There was an error attempting to launch GameSpy 3D.", NewLine,
                "However, GameSpy 3D was configured, and you may now", NewLine, "launch GameSpy 3D manually.");
}

bool StartProgram(Run& run) {
    const Text location = GetSetting(run, run.AppName, kOptions, kGameSpyLocation);
    if (location.empty()) {
        AskUser(run, "Error", NotLaunched());
        return false;
    }
    if (!run.System.Disk.FileExists(location)) {
        AskUser(run, "Where'd it go?", "Could not locate GameSpy.");
        return false;
    }
    if (const Error failed = run.System.Programs.StartProgram(location, {})) {
        AskUser(run, "Error",
                Join(NotLaunched(), NewLine, ErrorLines(failed, ShownStep(LaunchStep::GameSpyStart)), NewLine,
                     "GameSpy Location = ", location));
        return false;
    }
    return true;
}

void BringForward(Desktop& desktop, WindowHandle window) {
    if (desktop.IsIconic(window)) {
        desktop.OpenIcon(window);
    }
    (void)desktop.SetForegroundWindow(window);  // one that stays behind runs all the same
}

}  // namespace

bool StartGameSpy(Run& run) {
    const WindowHandle GameSpyHwnd = FindGameSpyWindow(run.System.Windows);
    if (GameSpyHwnd != 0) {
        BringForward(*run.System.Windows, GameSpyHwnd);
    } else if (!StartProgram(run)) {
        return false;
    }
    PauseSeconds(run, 1);
    return !run.Ended;
}

}  // namespace lv
