#include "launcher/window/window_life.h"

#include "foundation/settings.h"

namespace lv {

bool DialogIsUp(const Run& run) {
    return run.Topmost.Nesting > 0;
}

void ShowMainWindow(Launcher& launcher) {
    LV_Frm& window = launcher.Window;
    window.Visible = true;
    window.EverShown = true;
    if (window.Placement.WindowState == kWindowMinimised) {
        window.Placement.WindowState = kWindowNormal;
    }
    window.Bar(MenuItem::ShowLorvane_Bar).Caption = "&Hide Lorvane 3D";
    launcher.run.User.Refresh();
    if (launcher.VideoProfileReopen) {
        launcher.VideoProfileReopen = false;
        launcher.VideoProfileHidden = false;
        VideoProfile_Frm_Load(launcher.VideoProfile);
    }
}

void HideMainWindow(Launcher& launcher) {
    LV_Frm& window = launcher.Window;
    window.Visible = false;
    window.TrayAvailable = window.TrayIcon && launcher.run.User.TrayAvailable();
    if (launcher.VideoProfile.VideoProfileWindowOpen) {
        launcher.VideoProfileReopen = true;
        launcher.VideoProfileHidden = true;
        VideoProfile_Frm_Unload(launcher.VideoProfile);
    }
    window.Bar(MenuItem::ShowLorvane_Bar).Caption = "&Show Lorvane 3D";
    launcher.run.User.Refresh();
}

void HideForLaunch(Launcher& launcher) {
    HideMainWindow(launcher);
    launcher.VideoProfileHidden = false;
}

void ShowLorvane_Bar_Click(Launcher& launcher) {
    if (launcher.Window.Visible) {
        HideMainWindow(launcher);
    } else {
        ShowMainWindow(launcher);
    }
}

void Tray_Click(Launcher& launcher, int message) {
    if (DialogIsUp(launcher.run)) {
        return;
    }
    if (message == kTrayLeftButtonUp) {
        ShowMainWindow(launcher);
        launcher.run.User.RaiseMainWindow();
    } else if (message == kTrayRightButtonUp) {
        if (launcher.Window.Visible) {
            launcher.run.User.RaiseMainWindow();
        }
        launcher.run.User.PopUpMenu("File_Bar");
    }
}

void ComeForward(Launcher& launcher) {
    if (!launcher.run.MainFormLoaded || !launcher.Window.EverShown) {
        return;  // it comes by itself in a moment
    }
    ShowMainWindow(launcher);
    launcher.run.User.RaiseMainWindow();
}

bool LV_Frm_QueryUnload(Launcher& launcher) {
    if (launcher.Window.CanUnload) {
        return true;
    }
    HideMainWindow(launcher);
    return false;
}

void Exit_Bar_Click(Launcher& launcher) {
    Run& run = launcher.run;
    const ToldOnce told(run);
    LV_Frm& window = launcher.Window;
    window.CanUnload = true;
    SavePlacement(run, "LV_Frm", window.Placement);
    window.TrayIcon = false;
    run.MainFormLoaded = false;
    const bool profilesOpen = launcher.VideoProfile.VideoProfileWindowOpen || launcher.VideoProfileHidden;
    Save(run, "VideoProfile_Frm", "LoadAtStartup", profilesOpen ? 1 : 0);
    VideoProfile_Frm_Unload(launcher.VideoProfile);
    EndProgram(run);
}

void SessionEnds(Launcher& launcher) {
    if (launcher.run.MainFormLoaded && !launcher.run.Ended) {
        if (launcher.KeepUnsavedEdits) {
            launcher.KeepUnsavedEdits();
        }
        Exit_Bar_Click(launcher);
    }
}

Presence PresenceOf(const LV_Frm& window) {
    if (window.Visible) {
        return Presence::Shown;
    }
    return window.TrayAvailable || !window.EverShown ? Presence::Hidden : Presence::Minimised;
}

}  // namespace lv
