// foundry/editor/setup_foundry.h
//
// How the editor is opened from the main window, and the splash meanwhile.

#pragma once

#include "foundry/editor/fig_frm.h"
#include "launcher/launcher.h"

namespace lv {

constexpr int kSplashDotMilliseconds = 50;
constexpr int kSplashUnloadMilliseconds = 15000;

struct SFSplash_Frm {
    bool Visible = false;
    Label Progress_Lbl;
};

/// What the editor owns while the program runs.
struct SetupFoundry {
    explicit SetupFoundry(Launcher& owner) : launcher(owner) {}

    Launcher& launcher;
    SFSplash_Frm Splash;
    Fig_Frm* Window = nullptr;  // while there is one
    bool Open = false;          // from the click that opens the editor until it is closed
};

/// One more "."; at 78 characters it begins with "..." again.
void SFSplash_Timer1_Timer(SFSplash_Frm& splash);
/// Unloads the program's splash, not this one: kept on purpose.
void SFSplash_Unload_Tmr_Timer(SetupFoundry& foundry);

/// The session ends: nobody can be asked any more.
void KeepUnsavedEdits(SetupFoundry& foundry);

/// Opens the selected script. Nothing happens while one is open, or while a launch is under way.
void SetupFoundry_Bar_Click(SetupFoundry& foundry);

}  // namespace lv
