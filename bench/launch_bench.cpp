// bench/launch_bench.cpp
//
// From the click to the started process on the native road (limit 50 ms), and composing and writing all launch files
// alone (limit 2 ms). On the real store and the real disk.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

#include "bench/limit.h"
#include "bench/no_user.h"
#include "foundation/settings.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/launch_flow.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_processes.h"
#include "platform/linux/settings/sqlite_settings.h"
#include "platform/memory/memory_platform.h"
#include "video/profile_model.h"

namespace {

namespace fs = std::filesystem;

fs::path MakeDrive() {
    const fs::path root = fs::path(LV_BINARY_DIR) / "bench_drive";
    fs::remove_all(root);
    fs::create_directories(root / "drives/c:/QUAKE/ID1");
    std::ofstream(root / "drives/c:/QUAKE/ID1/my.cfg") << "echo\r\n";
    fs::create_symlink("/bin/true", root / "drives/c:/QUAKE/GLQUAKE.EXE");
    return root;
}

struct Fixture {
    fs::path Root = MakeDrive();
    std::unique_ptr<lv::SqliteSettings> Store = std::move(lv::SqliteSettings::Open(Root / "settings.sqlite").Value);
    lv::LinuxFiles Disk{{Root / "drives", Root / "wine", Root}};
    lv::LinuxProcesses Programs{Disk};
    lv::MemoryRegistry Registry;
    lv::MemoryClipboard Clip;
    lv::LinuxClock Time;
    lv::Platform System{*Store, Registry, Disk, Programs, Clip, Time};
    lv::NoUser User;
    lv::Run Run{System, User};
    lv::Launcher Launcher{Run};

    bool Load() {
        lv::Save(Run, lv::kOptions, "Executables", "Quake;c:\\quake\\glquake.exe");
        lv::Save(Run, lv::kOptions, "UseScripts", 1);
        return lv::LV_Frm_Load(Launcher) && !User.Questions;
    }
};

void RunClicks(benchmark::State& state, int button, double limitMs) {
    Fixture fixture;
    if (!fixture.Load()) {
        state.SkipWithError("the launcher did not load");
        return;
    }
    double seconds = 0;
    for (auto _ : state) {
        const double start = fixture.Time.Seconds();
        lv::DoIt_Cmd_Click(fixture.Launcher, button);
        const double took = fixture.Time.Seconds() - start;
        state.SetIterationTime(took);
        seconds += took;
    }
    if (fixture.User.Questions) {
        state.SkipWithError("the launch asked something");
        return;
    }
    lv::SetLimit(state, seconds * 1000 / static_cast<double>(state.iterations()), limitMs);
}

void BM_ClickToStartedProcess(benchmark::State& state) {
    RunClicks(state, 0, 50);
}

void BM_ComposeAndWriteLaunchFiles(benchmark::State& state) {
    RunClicks(state, 2, 2);
}

BENCHMARK(BM_ClickToStartedProcess)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(50);
BENCHMARK(BM_ComposeAndWriteLaunchFiles)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(200);

}  // namespace

BENCHMARK_MAIN();
