// The sample drive's Half-Life, from the pick to the game in the real Wine: the player that lies in the registry
// becomes a script, and the script becomes the player.

#include <gtest/gtest.h>

#include <cstdlib>

#include "foundry/foundry.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_processes.h"
#include "platform/linux/settings/sqlite_settings.h"
#include "platform/linux/wine_registry.h"
#include "platform/memory/memory_platform.h"
#include "tests/engines/engine_run.h"
#include "tests/foundry/script_fixture.h"
#include "tests/support/game_yard.h"
#include "tests/support/scripted_user.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr const char* kProfile = "Software\\Valve\\Half-Life\\Player Profiles\\Gordon";

void PickHalfLife(Launcher& launcher) {
    auto& list = launcher.Window.Exe_Cbo;
    for (std::size_t i = 0; i < list.Items.size(); ++i) {
        if (list.Items[i].Title.starts_with("Half-Life")) {
            list.ListIndex = static_cast<int>(i);
            Exe_Cbo_Click(launcher);
            return;
        }
    }
    FAIL() << "the sample has no Half-Life";
}

void PickScript(Launcher& launcher, TextView title) {
    ListBox& list = launcher.Window.Script_Cbo;
    for (std::size_t i = 0; i < list.Items.size(); ++i) {
        if (TextView(list.Items[i]).starts_with(title)) {
            list.ListIndex = static_cast<int>(i);
            return;
        }
    }
    FAIL() << "the list has no " << title;
}

}  // namespace

TEST(SampleHalfLife, TakesItsPlayerOutOfTheRegistryAndPutsHimBack) {
    const fs::path sample = fs::path(TestBinaryDir()) / "yards/engines/sample";
    fs::create_directories(sample);
    const fs::path maker = fs::path(TestBinaryDir()) / "make_sample";
    ASSERT_EQ(RunTool({maker.c_str(), sample.c_str()}), 0);
    fs::remove_all(sample / "wine");

    auto store = SqliteSettings::Open(sample / "config/lorvane3d/settings.sqlite");
    ASSERT_TRUE(store.Ok()) << store.Fault.Text;
    LinuxFiles disk({sample / "data/lorvane3d/drives", sample / "wine", sample});
    WineRegistry registry(*store.Value, {FindWine().Command, sample / "wine", std::chrono::minutes(5)});
    HostPlaces places;
    places.SearchPath = std::getenv("PATH");
    places.Cache = sample / "cache";
    places.WinePrefix = sample / "wine";
    places.PauseHelper = fs::path(TestBinaryDir()) / "lorvane3d-pause";
    places.State = sample / "state";
    LinuxProcesses programs(disk, places);
    MemoryClipboard clip;
    LinuxClock clock;
    Platform system{*store.Value, registry, disk, programs, clip, clock};
    ScriptedUser user;
    lv::Run run(system, user);
    Launcher launcher(run);
    ConnectFoundry(launcher);
    ASSERT_TRUE(LV_Frm_Load(launcher));

    user.Expect({"Half-Life Registry Conversion", "c:\\sierra\\half-life\\valve\\lv3dhlrg.cfg"});
    PickHalfLife(launcher);
    const fs::path valve = sample / "data/lorvane3d/drive_c/SIERRA/Half-Life/valve";
    const std::string script = ReadBytes(valve / "lv3dhlrg.cfg");
    EXPECT_EQ(CountLines(script, "name \"Player of the sample\""), 1);
    EXPECT_EQ(CountLines(script, "bind \"w\"             \"+forward\""), 1);
    EXPECT_EQ(CountLines(script, "bind \"mouse1\"        \"+attack\""), 1);
    EXPECT_EQ(CountLines(script, "+mlook"), 1);
    EXPECT_EQ(CountLines(script, "plate_color 30"), 1);
    EXPECT_FALSE(fs::exists(sample / "wine")) << "looking made a prefix";

    PickScript(launcher, "Registry Settings");
    DoIt_Cmd_Click(launcher, 0);
    const auto output = WaitForOutput(valve.parent_path() / "output.txt");
    EXPECT_FALSE(output.empty()) << "the game did not start";
    EXPECT_EQ(registry.Query(kProfile, "Chat Nickname").Value.Text, "Player of the sample");
    EXPECT_EQ(registry.Query(Join(kProfile, "\\KB"), "119").Value.Text, "+forward");
    EXPECT_EQ(registry.Query(Join(kProfile, "\\CVAR"), "plate color").Value.Text, "30");
    EXPECT_EQ(registry.Query(Join(kProfile, "\\CVAR"), "mlook").Value.Text, "1");

    user.Expect({"Half-Life Registry Conversion", "c:\\sierra\\half-life\\valve\\lv3dhlrg.cfg"});
    PickHalfLife(launcher);
    EXPECT_EQ(CountLines(ReadBytes(valve / "lv3dhlrg.cfg"), "bind \"w\"             \"+forward\""), 1);

    // Wine's server would write into the prefix for some seconds more.
    const std::string end = "WINEPREFIX='" + (sample / "wine").string() + "' wineserver -k -w 2>/dev/null";
    (void)std::system(end.c_str());
}

}  // namespace lv
