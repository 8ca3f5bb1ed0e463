// tests/launcher/window/launch_flow_fixture.h
//
// A launch from the main window, on a drive with Quake.

#pragma once

#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "tests/support/launcher_fixture.h"

namespace lv {

class LaunchFlow : public LauncherTest {
  protected:
    void LoadWith(TextView exe) {
        AddGames();
        Load();
        PickExe(exe);
    }
    void SetProfile(TextView key, TextView value) { Save(run, kOptions, key, value); }

    static constexpr const char* kBatch = "C:\\QUAKE\\lv_666.bat";
    static constexpr const char* kScript = "C:\\QUAKE\\ID1\\lv_666.qs";
    static constexpr const char* kPif = "C:\\QUAKE\\lv_666.pif";
};

}  // namespace lv
