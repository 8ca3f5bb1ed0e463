// launcher/launcher.h
//
// What the launcher owns while it runs: the main window and the working copies of the catalogs.

#pragma once

#include "catalogs/catalog_lists.h"
#include "foundation/run.h"
#include "launcher/lv_frm.h"

namespace lv {

struct Launcher {
    explicit Launcher(Run& owner) : run(owner) {}
    Launcher(const Launcher&) = delete;
    Launcher& operator=(const Launcher&) = delete;

    Run& run;
    LV_Frm Window;
    CatalogLists Lists{Window.Exe_Cbo,
                       Window.Game_Cbo,
                       Window.Game_Chk,
                       Window.Script_Cbo,
                       Window.Script_Chk,
                       Window.Server_Cbo,
                       Window.Server_Chk,
                       Window.Demo_Cbo,
                       Window.Mem_Cbo,
                       Window.Map_Cbo,
                       {},
                       {},
                       {},
                       {}};

    bool ClearingGameChk = false;     // Game_Chk clears itself: its own click does nothing meanwhile
    bool ProfileChangeQuiet = false;  // the profile list is being filled: its click does nothing
};

}  // namespace lv
