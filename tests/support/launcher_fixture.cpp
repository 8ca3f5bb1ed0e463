#include "tests/support/launcher_fixture.h"

#include "launcher/start/main_window_load.h"
#include "launcher/window/lv_events.h"

namespace lv {

LauncherTest::LauncherTest() {
    run.AppDirectory = "C:\\LORVANE";
    system.Disk.AddDirectory("C:\\LORVANE");
    Save(run, "LV-Stuff", "FirstTime", 0);
    Save(run, "LV-Stuff", "VP_Version", 1);
    Save(run, "LV-Stuff", "NVC_Version", 1);
    Save(run, kOptions, "VideoProfileList", "Base;Optimize for Speed;Optimize for Beauty;Default");
    Save(run, kOptions, "UseDemos", 0);
    Save(run, kOptions, "UseMemory", 0);
    Save(run, kOptions, "UseGames", 0);
}

void LauncherTest::AddGames() {
    MemoryFiles& disk = system.Disk;
    disk.AddFile("C:\\QUAKE\\GLQUAKE.EXE");
    disk.AddFile("C:\\QUAKE\\QUAKE.EXE");
    disk.AddFile("C:\\QUAKE\\QWCL.EXE");
    disk.AddFile("C:\\QUAKE\\ID1\\MY.CFG");
    disk.AddFile("C:\\QUAKE\\ID1\\maps\\start.bsp");
    disk.AddFile("C:\\QUAKE\\CTF\\pak0.pak");
    disk.AddFile("C:\\QUAKE\\CTF\\maps\\ctf1.bsp");
    disk.AddFile("C:\\QUAKE\\CTF\\flag.cfg");
    disk.AddFile("C:\\QUAKE2\\QUAKE2.EXE");
    disk.AddFile("C:\\QUAKE2\\BASEQ2\\two.cfg");
    disk.AddFile("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
    disk.AddFile("C:\\UNREAL\\SYSTEM\\unreal.ini");
    disk.AddFile("C:\\HL\\HL.EXE");
    disk.AddFile("C:\\HL\\VALVE\\life.cfg");
    disk.AddFile("C:\\LORVANE\\lv_666.hid", "the pif of most");
    disk.AddFile("C:\\LORVANE\\lv_666_q2.hid", "the pif of two");
    Save(run, kOptions, "Executables",
         "Quake;C:\\QUAKE\\GLQUAKE.EXE;Plain Quake;C:\\QUAKE\\QUAKE.EXE;QuakeWorld;C:\\QUAKE\\QWCL.EXE;"
         "Quake 2;C:\\QUAKE2\\QUAKE2.EXE;Unreal;C:\\UNREAL\\SYSTEM\\UNREAL.EXE;Half-Life;C:\\HL\\HL.EXE");
    Save(run, kOptions, "Games", "Capture the Flag;-game CTF;Base;-game ID1;Base 2;-game BASEQ2;Life;-game VALVE");
}

void LauncherTest::Load() {
    if (Stored(kOptions, "Executables") == "(none)") {
        ExpectEmptyListQuestion();
    }
    ASSERT_TRUE(LV_Frm_Load(launcher));
}

void LauncherTest::ExpectEmptyListQuestion(int answer) {
    user.Expect({"Executables List Is Empty", "Would you like to set up your game executables?", answer, false, true,
                 "&Yes,&No"});
}

void LauncherTest::PickExe(TextView path) {
    const auto& items = window.Exe_Cbo.Items;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].Key == path) {
            window.Exe_Cbo.ListIndex = static_cast<int>(i);
            Exe_Cbo_Click(launcher);
            return;
        }
    }
    FAIL() << "no such executable: " << path;
}

void LauncherTest::Click(Option option, int value) {
    window.Box(option).Value = value;
    Option_Chk_Click(launcher, option);
}

}  // namespace lv
