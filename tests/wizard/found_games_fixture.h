// tests/wizard/found_games_fixture.h
//
// The setup wizard on a machine with usual places: games in C:\HOME\games, engines in Z:\usr\games.

#pragma once

#include "tests/support/shipped_engines.h"
#include "tests/wizard/wizard_fixture.h"
#include "wizard/setup_completion.h"
#include "wizard/wizard.h"

namespace lv {

class FoundGamesTest : public WizardTest {
  protected:
    FoundGamesTest() {
        launcher.Engines = ShippedEngines();
        system.Places.IsGames = {"C:\\HOME\\games"};
        system.Places.IsPrograms = {"Z:\\usr\\games"};
    }
    void AddQuake(bool isFull = true) {
        system.Disk.AddFile("C:\\HOME\\games\\quake\\id1\\pak0.pak");
        if (isFull) {
            system.Disk.AddFile("C:\\HOME\\games\\quake\\id1\\pak1.pak");
        }
    }
    void AddEngine(TextView name) { system.Disk.AddFile(Join("Z:\\usr\\games\\", name)); }
    /// The wizard, with "OK" clicked on what it has filled in.
    bool SetUpFoundGames() {
        user.In<Install_Frm>([](Install_Frm& form) { Install_OK_Cmd_Click(form); });
        return ShowInstallWizard(launcher);
    }
    Text Executables() { return Stored(kOptions, "Executables"); }
};

}  // namespace lv
