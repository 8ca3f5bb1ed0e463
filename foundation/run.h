// foundation/run.h
//
// What one run of the program owns: its globals, the system it runs on, the user. Handlers get it; rules below them
// take only what they use.

#pragma once

#include <functional>

#include "foundation/game.h"
#include "foundation/text.h"
#include "foundation/topmost.h"
#include "foundation/user_interface.h"
#include "platform/platform.h"

namespace lv {

constexpr TextView kOptions = "Options";  // the section of the program's own settings and of the Base profile
constexpr TextView kStuff = "LV-Stuff";   // the section of what the program notes about its runs

/// The product's page on the web.
constexpr TextView kHomePage = "https://lorvane3d.example/";

struct Run {
    Run(Platform& system, UserInterface& user) : System(system), User(user) {}

    Platform& System;
    UserInterface& User;

    Text AppName = "Lorvane 3D";
    Text VersionText{};        // "1.06.0112 <Beta>", set at the start
    Text MainWindowCaption{};  // set at the start
    lv::Text HomePage{kHomePage};
    Text AppDirectory{};

    // Set by the change of game.
    Game GameKind = Game::None;
    Dialect ScriptFamily = Dialect::None;
    Text DefaultGameDirectory{};  // no trailing "\"
    Text BaseGameDir{};
    Text CurrentGameDir{};
    bool IsQuakeWorld = false;
    bool IsHexenWorld = false;
    bool IsMissionPack = false;
    bool UsesAccelerator = true;

    Text VideoProfileSection{kOptions};
    bool IsWin9x = false;
    bool DecimalPointIsDot = true;

    bool ShowAgain = true;     // outcome of AskUserOnce
    int SaveGroups = 0;        // open SavesTogether
    bool GroupFailed = false;  // a save in them did, and the user was told
    int TellingOnce = 0;       // open ToldOnce
    int FaultTold = 0;         // the number of what was told in them
    bool LockTold = false;     // another program holds the store, and the user knows that nothing is saved
    bool MainFormLoaded = false;
    TopmostState Topmost{};
    Text LastBrowsed{};  // the directory that the last choice of a file or a directory ended in
    bool Ended = false;  // the program is over: handlers return, the event loop ends
};

/// Ends the program. The caller returns at once.
void EndProgram(Run& run);

/// Makes the path's drive and directory current.
Error SetCurrentPath(Run& run, TextView path);

/// Returns after that many seconds; the windows stay alive meanwhile. The work is done first, within them.
void PauseSeconds(Run& run, double seconds, const std::function<void()>& work = {});

}  // namespace lv
