// From an empty home to the first game: Debian's engines found beside a game of our own making, entered by the setup
// and started by the launch, for real.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <thread>

#include "foundation/settings.h"
#include "games/engines/engine_seats.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/linux_processes.h"
#include "platform/memory/memory_platform.h"
#include "sample/small_quake.h"
#include "tests/engines/engine_run.h"
#include "tests/support/game_yard.h"
#include "tests/support/quiet_start.h"
#include "tests/support/scripted_user.h"
#include "tests/support/shipped_engines.h"
#include "tests/support/test_paths.h"
#include "wizard/setup_completion.h"
#include "wizard/wizard.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

/// A home with a game in "~/games/quake", and a machine with Debian's engines.
struct NewHome {
    explicit NewHome(const std::string& name)
        : Root(fs::path(TestBinaryDir()) / "yards/engines" / name),
          Disk((fs::remove_all(Root), DriveDirectories{Root / "data/drives", Root / "wine", Root / "program"})),
          Programs(Disk, {"", Root / "cache", Root / "wine", fs::path(TestBinaryDir()) / "lorvane3d-pause",
                          Root / "state", fs::path(TestBinaryDir()) / "lorvane3d-watch"}) {
        fs::create_directories(Game / "id1");
        Put("pak0.pak", Pak({{"gfx.wad", NoPictures()},
                             {"quake.rc", "exec default.cfg\nexec config.cfg\nexec autoexec.cfg\nstuffcmds\n"},
                             {"default.cfg", "echo the game's own\n"}}));
        Put("pak1.pak", Pak({{"gfx/pop.lmp", RegisteredMark("/usr/games/quakespasm")}}));
        Put("mine.cfg", "echo PLAYERS_SCRIPT_HAS_RUN\nquit\n");
        launcher.Engines = ShippedEngines();
        Places.IsGames = {Disk.FromHost((Root / "home/games").string())};
        Places.IsPrograms = {Disk.FromHost("/usr/games")};
        PrepareQuietStart(run);
    }

    ~NewHome() { EndAllIn(Root); }
    NewHome(const NewHome&) = delete;
    NewHome& operator=(const NewHome&) = delete;

    void Put(const std::string& file, const std::string& bytes) const {
        std::ofstream(Game / "id1" / file, std::ios::binary) << bytes;
    }

    /// The setup as it comes up, and "OK".
    void SetUp() {
        user.In<Install_Frm>([](Install_Frm& form) { Install_OK_Cmd_Click(form); });
        ASSERT_TRUE(ShowInstallWizard(launcher));
        ASSERT_TRUE(LV_Frm_Load(launcher));
    }

    void PickEngine(TextView title) {
        const auto& items = window.Exe_Cbo.Items;
        const auto row = std::ranges::find(items, title, &ImageComboItem::Title);
        ASSERT_NE(row, items.end()) << "the setup has not entered " << title;
        window.Exe_Cbo.ListIndex = static_cast<int>(row - items.begin());
        Exe_Cbo_Click(launcher);
    }

    void TickScript() {
        const auto& items = window.Script_Cbo.Items;
        const auto row = std::ranges::find_if(items, [](const Text& item) { return item.ends_with("mine.cfg"); });
        ASSERT_NE(row, items.end());
        window.Script_Cbo.ListIndex = static_cast<int>(row - items.begin());
        window.Box(Option::Script_Chk).Value = 1;
    }

    /// All that the started game prints until that comes, or for a minute.
    std::string OutputUntil(const std::string& awaited) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        std::string output;
        while (std::chrono::steady_clock::now() < end && output.find(awaited) == std::string::npos) {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            output = Programs.LastOutput().value_or("");
        }
        return output;
    }

    fs::path Root;
    fs::path Game = Root / "home/games/quake";
    LinuxFiles Disk;
    LinuxProcesses Programs;
    MemoryPlatform memory;
    MemoryKnownPlaces Places;
    Platform services{memory.Settings, memory.Registry, Disk,    Programs, memory.Clip,
                      memory.Time,     nullptr,         nullptr, &Places};
    ScriptedUser user;
    Run run{services, user};
    Launcher launcher{run};
    LV_Frm& window = launcher.Window;
};

}  // namespace

TEST(FirstGame, QuakeSpasmRunsThePlayersScript) {
    ASSERT_EQ(RegisteredMark("/usr/games/quakespasm").size(), 256u);
    NewHome home("first_quakespasm");
    home.SetUp();
    home.PickEngine("QuakeSpasm");
    home.TickScript();
    home.window.Box(Option::Dedicated_Chk).Value = 1;
    DoIt_Cmd_Click(home.launcher, 0);
    const std::string output = home.OutputUntil("PLAYERS_SCRIPT_HAS_RUN");
    EXPECT_THAT(output, HasSubstr("PLAYERS_SCRIPT_HAS_RUN"));
    EXPECT_THAT(output, HasSubstr(home.Game.string()));
    EXPECT_FALSE(fs::exists(home.Game / "quakespasm"));
}

TEST(FirstGame, DarkPlacesRunsThePlayersScript) {
    NewHome home("first_darkplaces");
    home.SetUp();
    home.PickEngine("DarkPlaces");
    home.TickScript();
    home.window.Box(Option::Dedicated_Chk).Value = 1;
    DoIt_Cmd_Click(home.launcher, 0);
    EXPECT_THAT(home.OutputUntil("PLAYERS_SCRIPT_HAS_RUN"), HasSubstr("PLAYERS_SCRIPT_HAS_RUN"));
}

TEST(FirstGame, EzQuakeIsStartedBehindDebiansWrapper) {
    NewHome home("first_ezquake");
    home.SetUp();
    home.PickEngine("ezQuake");
    EXPECT_TRUE(home.run.IsQuakeWorld);
    DoIt_Cmd_Click(home.launcher, 0);
    // The game of our own making has no palette. The wrapper would have looked for one in a directory of its own.
    EXPECT_THAT(home.OutputUntil("gfx/palette.lmp"), HasSubstr("gfx/palette.lmp"));
    EXPECT_THAT(ReadBytes(home.Game / "lv_666.bat"), HasSubstr("EZQUAKE"));
}

TEST(FirstGame, MvdsvRunsThePlayersScript) {
    NewHome home("first_mvdsv");
    home.SetUp();
    const Text seat = Join(home.Disk.FromHost(home.Game.string()), "\\mvdsv");
    ASSERT_TRUE(SeatEngine(home.run, seat, home.Disk.FromHost("/usr/games/mvdsv")));
    home.window.Exe_Cbo.Items.push_back({"mvdsv", seat, "", ""});
    home.PickEngine("mvdsv");
    home.TickScript();
    DoIt_Cmd_Click(home.launcher, 0);
    EXPECT_THAT(home.OutputUntil("PLAYERS_SCRIPT_HAS_RUN"), HasSubstr("PLAYERS_SCRIPT_HAS_RUN"));
}

}  // namespace lv
