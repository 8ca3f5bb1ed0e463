// tests/forms/lv_form_fixture.h
//
// The main window of the tests.

#pragma once

#include <gtest/gtest.h>

#include "foundation/settings.h"
#include "launcher/forms/lv_form.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/window_life.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"

namespace lv {

/// The real main window over a platform in memory.
class LvForm_ : public ::testing::Test {
  protected:
    LvForm_() {
        MemoryFiles& disk = system.Disk;
        disk.AddFile("C:\\QUAKE\\GLQUAKE.EXE");
        disk.AddFile("C:\\QUAKE\\ID1\\my.cfg");
        disk.AddFile("C:\\QUAKE\\ID1\\maps\\start.bsp");
        disk.AddFile("C:\\QUAKE\\CTF\\pak0.pak");
        disk.AddFile("C:\\QUAKE2\\QUAKE2.EXE");
        disk.AddDirectory("C:\\QUAKE2\\BASEQ2");
        disk.AddFile("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
        Save(run, kOptions, "Executables",
             "Quake;C:\\QUAKE\\GLQUAKE.EXE;Quake 2;C:\\QUAKE2\\QUAKE2.EXE;Unreal;C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
        Save(run, kOptions, "NetServers", "A server;10.0.0.1;26000;0;");
        Save(run, kOptions, "UseDemos", 0);
        Save(run, kOptions, "UseScripts", 1);
        Save(run, "LV-Stuff", "FirstTime", 0);
        form = new LvForm(launcher, user);
        EXPECT_TRUE(LV_Frm_Load(launcher));
        ShowMainWindow(launcher);
        BringForward(form);
    }
    ~LvForm_() override {
        form->Destroy();
        Settle();
    }

    void PickExe(int row) {
        launcher.Window.Exe_Cbo.ListIndex = row;
        Exe_Cbo_Click(launcher);
        user.Refresh();
        Settle();
    }

    MemoryPlatform system;
    WxUser user{system.Disk};
    lv::Run run{system.Services, user};
    Launcher launcher{run};
    LvForm* form = nullptr;
};

}  // namespace lv
