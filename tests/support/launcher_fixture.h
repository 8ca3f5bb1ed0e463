// tests/support/launcher_fixture.h
//
// A launcher on a platform in memory, with a user who answers as told, and a small drive of games.

#pragma once

#include <gtest/gtest.h>

#include "foundation/settings.h"
#include "launcher/launcher.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

class LauncherTest : public ::testing::Test {
  protected:
    /// The store says that this is no first run and that the profiles were made, so that a load writes no more than it
    /// must.
    LauncherTest();

    /// Quake, QuakeWorld, Quake II, Unreal and Half-Life, each with its data directory, and the catalog of them.
    void AddGames();

    /// Loads the main window; without executables the user says no to setting them up.
    void Load();

    /// The question of a start without executables; 0 is yes.
    void ExpectEmptyListQuestion(int answer = 1);

    /// Picks the row of the executables list with this key, as a click would.
    void PickExe(TextView path);

    /// A click on a check box that leaves it with this value.
    void Click(Option option, int value);

    Text Stored(TextView section, TextView key) { return GetSetting(run, run.AppName, section, key, "(none)"); }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
    Launcher launcher{run};
    LV_Frm& window = launcher.Window;
};

}  // namespace lv
