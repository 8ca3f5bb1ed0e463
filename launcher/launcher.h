// launcher/launcher.h
//
// What the launcher owns while it runs: the main window and the working copies of the catalogs.

#pragma once

#include <functional>

#include "catalogs/catalog_lists.h"
#include "foundation/run.h"
#include "games/engines/engine_table.h"
#include "launcher/drop/waiting_drop.h"
#include "launcher/menu/known_games.h"
#include "launcher/setups/setup_store.h"
#include "launcher/start/splash.h"
#include "launcher/window/lv_frm.h"
#include "video/video_profile_frm.h"

namespace lv {

/// The game that was launched last.
struct GameUnderWay {
    Text Path;            // of its program
    Text Name;            // of its program file
    double Started = 0;   // on the platform's clock
    double LookedAt = 0;  // for its end
};

struct Launcher {
    explicit Launcher(Run& owner) : run(owner) {}
    Launcher(const Launcher&) = delete;
    Launcher& operator=(const Launcher&) = delete;

    Run& run;
    Splash_Frm Splash;
    EngineTable Engines;      // of today
    TextView ShippedEngines;  // the table that the program carries
    LV_Frm Window;
    VideoProfile_Frm VideoProfile{run};
    bool VideoProfileReopen = false;  // it comes back with the main window
    bool VideoProfileHidden = false;  // it was hidden with that and is still open; a launch unloads it for good
    CatalogLists Lists{Window.Exe_Cbo,
                       Window.Game_Cbo,
                       Window.Box(Option::Game_Chk),
                       Window.Script_Cbo,
                       Window.Box(Option::Script_Chk),
                       Window.Server_Cbo,
                       Window.Box(Option::Server_Chk),
                       Window.Demo_Cbo,
                       Window.Mem_Cbo,
                       Window.Map_Cbo,
                       {},
                       {},
                       {},
                       {},
                       &Engines};

    /// Shows the setup wizard; true if the user went through with it. Empty: the program has none.
    std::function<bool()> ShowInstallWizard;
    bool WizardRan = false;  // in this start

    /// The same for the games that are not known yet.
    std::function<bool(const std::vector<KnownGame>&)> ShowInstallScan;

    /// Writes Half-Life's registry settings as a script to this path, and a script's settings to the registry. Empty:
    /// the program can't.
    std::function<void(TextView path)> RegistryToScript;
    std::function<Error(TextView path)> ScriptToRegistry;

    /// Shows what a launch would do now. Empty: the program can't.
    std::function<void()> ShowDryRun;

    /// Opens the selected script in the script editor. Empty: the program has none.
    std::function<void()> OpenSetupFoundry;

    /// Shows which scripts the picked game executes and what it takes otherwise than it may be meant. Empty: the
    /// program can't.
    std::function<void()> ShowFileOrder;
    std::function<void()> ShowScriptCheck;

    /// Gives a word that this start was given to the instance that runs; why that does not take it, or empty. Empty
    /// itself: the program can't.
    std::function<Text(TextView word)> HandOver;
    bool HandOverFailed = false;  // and the user was told

    /// The session ends: keeps what its user has not saved yet, and asks nothing. Empty: there is nothing to keep.
    std::function<void()> KeepUnsavedEdits;

    /// The picture of a game in all its sizes, by the name that its row has, in lower case. Empty: the program has
    /// none.
    std::function<std::vector<ShortcutPicture>(TextView image)> PicturesOfGame;

    /// Measures the main window's form. Empty: there is none, and the size stays as it is.
    std::function<WindowMeasures()> Measure;

    GameUnderWay LastGame;
    WaitingDrop Dropped;

    SetupList Setups;

    bool LaunchUnderWay = false;      // a launch waits for GameSpy 3D: another click does nothing
    bool ClearingGameChk = false;     // Game_Chk clears itself: its own click does nothing meanwhile
    bool ProfileChangeQuiet = false;  // a change of the profile tells nothing of the live window
};

}  // namespace lv
