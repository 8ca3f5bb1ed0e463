#include "foundry/editor/setup_foundry.h"

#include <exception>
#include <memory>
#include <optional>

#include "foundation/padded_item.h"
#include "foundation/question_box.h"
#include "foundry/editor/lifecycle.h"
#include "foundry/editor/rescued_edits.h"
#include "foundry/reading/open_script.h"
#include "launcher/window/planned_launch.h"

namespace lv {

namespace {

constexpr std::size_t kProgressLength = 78;

void Refuse(Run& run, TextView why) {
    AskUser(run, "Error", Join(NewLine, why), "&OK");
}

/// Empty if there is none to open, which the user was told.
Text SelectedScript(Launcher& launcher) {
    const ListBox& scripts = launcher.Window.Script_Cbo;
    if (!scripts.HasSelection()) {
        Refuse(launcher.run, "No Script is selected.");
        return {};
    }
    const Text path = ItemValue(scripts.Selected());
    if (!launcher.run.System.Disk.FileExists(path)) {
        Refuse(launcher.run, "Script Not Found");
        return {};
    }
    return path;
}

/// The second is time enough to make the window.
void ShowSFSplash(SetupFoundry& foundry, Fig_Frm& form) {
    Run& run = foundry.launcher.run;
    foundry.Splash = {.Visible = true, .Progress_Lbl = {}};
    run.User.Refresh();
    run.User.PumpEvents();
    PauseSeconds(run, 1, [&] {
        PrepareEditor(form, DialectOfRun(run));
        run.User.Prepare(form);
    });
}

void UnloadSFSplash(SetupFoundry& foundry) {
    foundry.Splash.Visible = false;
    foundry.launcher.run.User.Refresh();
}

void Edit(SetupFoundry& foundry, Fig_Frm& form, TextView path) {
    Run& run = foundry.launcher.run;
    const bool opened = OpenScript(run, form.Document, form, path);
    UnloadSFSplash(foundry);
    if (!opened || run.Ended) {
        return;
    }
    const std::optional<bool> rescued = OfferRescuedEdits(form);
    if (!rescued) {
        return;
    }
    Fig_Frm_Load(form);
    if (*rescued && !TakeUpRescuedEdits(form)) {
        return;
    }
    ShowModal(form);
    run.User.PumpEvents();
}

/// Nothing that was prepared outlives its struct.
class PreparedWindow {
  public:
    explicit PreparedWindow(Run& run) : run_(run) {}
    ~PreparedWindow() { run_.User.DropPrepared(); }
    PreparedWindow(const PreparedWindow&) = delete;
    PreparedWindow& operator=(const PreparedWindow&) = delete;

  private:
    Run& run_;
};

/// Whom the end of the session asks for unsaved edits.
class ShownEditor {
  public:
    ShownEditor(SetupFoundry& foundry, Fig_Frm& form) : foundry_(foundry) { foundry_.Window = &form; }
    ~ShownEditor() { foundry_.Window = nullptr; }
    ShownEditor(const ShownEditor&) = delete;
    ShownEditor& operator=(const ShownEditor&) = delete;

  private:
    SetupFoundry& foundry_;
};

void TellWindowsError(Run& run, TextView what) {
    AskUser(run, "Windows Error",
            Join(what, NewLine, NewLine, "System low on Windows Resources.", NewLine,
                 "Please close some other Windows programs."),
            "&OK");
}

void OpenEditor(SetupFoundry& foundry, TextView path) {
    Run& run = foundry.launcher.run;
    const auto form = std::make_unique<Fig_Frm>(run, foundry.launcher.Lists);
    const PreparedWindow prepared(run);
    const ShownEditor shown(foundry, *form);
    form->StartOfLaunch = [&foundry](const GivenScript& edited) { return StartOfLaunch(foundry.launcher, edited); };
    try {
        ShowSFSplash(foundry, *form);
        if (run.Ended) {
            UnloadSFSplash(foundry);
            return;
        }
        Edit(foundry, *form, path);
    } catch (const std::exception& failed) {
        UnloadSFSplash(foundry);
        TellWindowsError(run, failed.what());
    }
}

}  // namespace

void SFSplash_Timer1_Timer(SFSplash_Frm& splash) {
    Text& line = splash.Progress_Lbl.Caption;
    line += ".";
    if (line.size() >= kProgressLength) {
        line = "...";
    }
}

void SFSplash_Unload_Tmr_Timer(SetupFoundry& foundry) {
    UnloadSplash(foundry.launcher.run, foundry.launcher.Splash);
}

void KeepUnsavedEdits(SetupFoundry& foundry) {
    if (foundry.Window != nullptr) {
        (void)RescueEdits(*foundry.Window);
    }
}

void SetupFoundry_Bar_Click(SetupFoundry& foundry) {
    Launcher& launcher = foundry.launcher;
    if (foundry.Open || launcher.LaunchUnderWay || launcher.run.Ended) {
        return;
    }
    foundry.Open = true;
    if (const Text path = SelectedScript(launcher); !path.empty()) {
        OpenEditor(foundry, path);
    }
    foundry.Open = false;
}

}  // namespace lv
