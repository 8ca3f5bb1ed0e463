// bench/executables_bench.cpp
//
// The main window's list of 500 executables, filled from the store (limit: 100 ms): half of them the games' own
// programs on the disk, half engines of today in their seats.

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "bench/limit.h"
#include "bench/no_user.h"
#include "catalogs/executables.h"
#include "foundation/settings.h"
#include "games/engines/engine_seats.h"
#include "launcher/launcher.h"
#include "platform/linux/files/linux_files.h"
#include "platform/memory/memory_platform.h"

namespace {

namespace fs = std::filesystem;

constexpr int kExecutables = 500;

lv::EngineTable ShippedEngines() {
    std::ifstream file(LV_SOURCE_DIR "/assets/engines.tsv", std::ios::binary);
    return lv::ReadEngines(std::string(std::istreambuf_iterator<char>(file), {}), "");
}

/// Makes the programs below "C:\G", seats the engines, and gives the list's value, which must not be too long to keep.
std::string MakeExecutables(lv::Run& run, const fs::path& drive) {
    const auto make = [](const fs::path& file) {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << "MZ";
    };
    make(drive / "bin/quakespasm");
    std::string list;
    for (int i = 0; i < kExecutables; ++i) {
        const std::string number = std::to_string(i);
        const bool isEngine = i % 2 == 1;
        make(drive / "G" / number / (isEngine ? "id1/pak0.pak" : "GLQUAKE.EXE"));
        const std::string path = "c:\\g\\" + number + (isEngine ? "\\quakespasm" : "\\glquake.exe");
        if (isEngine) {
            run.System.Disk.StandIn(path, "c:\\bin\\quakespasm");
        }
        list += (list.empty() ? "G" : ";G") + number + ";" + path;
    }
    return list;
}

void BM_ListOfFiveHundredExecutables(benchmark::State& state) {
    const fs::path root = fs::path(LV_BINARY_DIR) / "bench_executables";
    fs::remove_all(root);
    fs::create_directories(root / "drives/c:");
    lv::MemoryPlatform memory;
    lv::LinuxFiles disk({root / "drives", root / "wine", root});
    lv::Platform system{memory.Settings, memory.Registry, disk, memory.Programs, memory.Clip, memory.Time};
    lv::NoUser user;
    lv::Run run{system, user};
    lv::Launcher launcher{run};
    launcher.Engines = ShippedEngines();
    lv::Save(run, lv::kOptions, "Executables", MakeExecutables(run, root / "drives/c:"));
    double longest = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        lv::LoadExes(run, launcher.Lists);
        const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.SetIterationTime(took);
        longest = std::max(longest, took * 1000);
    }
    if (launcher.Window.Exe_Cbo.Items.size() != kExecutables || user.Questions) {
        state.SkipWithError("the list is not whole");
        return;
    }
    fs::remove_all(root);
    lv::SetLimit(state, longest, 100);
}

BENCHMARK(BM_ListOfFiveHundredExecutables)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(20);

}  // namespace

BENCHMARK_MAIN();
