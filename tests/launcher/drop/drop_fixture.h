// tests/launcher/drop/drop_fixture.h
//
// The launcher with its games, and things that lie elsewhere.

#pragma once

#include "launcher/drop/dropped_thing.h"
#include "launcher/drop/listed_programs.h"
#include "tests/support/launcher_fixture.h"
#include "tests/support/shipped_engines.h"

namespace lv {

class DropTest : public LauncherTest {
  protected:
    /// Quake is picked.
    void LoadGames() {
        AddGames();
        launcher.Engines = ShippedEngines();
        Put("C:\\QUAKE\\ID1\\maps\\start.bsp", kMap);
        Put("C:\\QUAKE\\CTF\\pak0.pak", kPak);
        Put("C:\\QUAKE\\CTF\\maps\\ctf1.bsp", kMap);
        Load();
        PickExe("C:\\QUAKE\\GLQUAKE.EXE");
        run.MainFormLoaded = true;
        window.EverShown = window.Visible = true;
        launcher.OpenSetupFoundry = [this] { Opened.push_back(window.Script_Cbo.Selected().substr(100)); };
        system.Settings.Log.clear();
        system.Disk.Log.clear();
    }

    void Put(TextView path, TextView bytes) { system.Disk.AddFile(path, bytes); }

    static constexpr TextView kPak{"PACK\0\0\0\0\0\0\0\0", 12};
    static constexpr TextView kMap{"\x1D\0\0\0", 4};

    std::vector<Text> Opened;  // scripts in Setup Foundry
};

}  // namespace lv
