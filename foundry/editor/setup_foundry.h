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
};

/// One more "."; from 78 characters on it begins with "..." again.
void SFSplash_Timer1_Timer(SFSplash_Frm& splash);
/// Unloads the program's splash, not this one: kept on purpose.
void SFSplash_Unload_Tmr_Timer(SetupFoundry& foundry);

/// Opens the selected script.
void SetupFoundry_Bar_Click(SetupFoundry& foundry);

}  // namespace lv
