// bench/scan_bench.cpp
//
// The change to a game with four archives of 5,000 entries each, on the real disk (limit 20 ms), and the scan of an
// archive that claims to be more than it is, or holds more maps than any game has (limit 100 ms).

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "bench/limit.h"
#include "bench/no_user.h"
#include "catalogs/map_scan.h"
#include "foundation/settings.h"
#include "launcher/start/main_window_load.h"
#include "launcher/window/lv_events.h"
#include "platform/linux/files/linux_files.h"
#include "platform/memory/memory_platform.h"

namespace {

namespace fs = std::filesystem;

constexpr int kArchives = 4;
constexpr int kEntries = 5000;
constexpr int kMapEvery = 100;  // one entry in so many is a map

void AppendNumber(std::string& out, std::size_t number) {
    for (int i = 0; i < 4; ++i) {
        out += static_cast<char>(number >> (8 * i) & 0xFF);
    }
}

std::string Archive(int number) {
    std::string pak = "PACK";
    AppendNumber(pak, 12);
    AppendNumber(pak, kEntries * 64);
    for (int i = 0; i < kEntries; ++i) {
        const std::string id = std::to_string(number) + "_" + std::to_string(i);
        std::string name = i % kMapEvery == 0 ? "maps/m" + id + ".bsp" : "textures/wall_" + id + ".tga";
        name.resize(56, '\0');
        pak += name + std::string(8, '\0');
    }
    return pak;
}

fs::path MakeDrive() {
    const fs::path root = fs::path(LV_BINARY_DIR) / "bench_archives";
    fs::remove_all(root);
    fs::create_directories(root / "drives/c:/QUAKE2/BASEQ2");
    std::ofstream(root / "drives/c:/QUAKE2/QUAKE2.EXE") << "MZ";
    for (int i = 0; i < kArchives; ++i) {
        std::ofstream(root / ("drives/c:/QUAKE2/BASEQ2/pak" + std::to_string(i) + ".pak"), std::ios::binary)
            << Archive(i);
    }
    return root;
}

void BM_ChangeOfGameWithFourArchives(benchmark::State& state) {
    const fs::path root = MakeDrive();
    lv::MemoryPlatform memory;
    lv::LinuxFiles disk({root / "drives", root / "wine", root});
    lv::Platform system{memory.Settings, memory.Registry, disk, memory.Programs, memory.Clip, memory.Time};
    lv::NoUser user;
    lv::Run run{system, user};
    lv::Launcher launcher{run};
    lv::Save(run, "LV-Stuff", "FirstTime", 0);
    lv::Save(run, lv::kOptions, "Executables", "Quake 2;c:\\quake2\\quake2.exe");
    if (!lv::LV_Frm_Load(launcher) || launcher.Window.Map_Cbo.Items.size() != kArchives * kEntries / kMapEvery) {
        state.SkipWithError("the game was not found, or not its maps");
        return;
    }
    double seconds = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        lv::Exe_Cbo_Click(launcher);
        const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.SetIterationTime(took);
        seconds += took;
    }
    lv::SetLimit(state, seconds * 1000 / static_cast<double>(state.iterations()), 20);
}

std::string HeaderOf(std::size_t directoryLength) {
    std::string header = "PACK";
    AppendNumber(header, 12);
    AppendNumber(header, directoryLength);
    return header;
}

/// Scans a directory whose one archive begins with these bytes and is as long as that.
void ScanOneArchive(benchmark::State& state, const std::string& bytes, std::uintmax_t size) {
    const fs::path root = fs::path(LV_BINARY_DIR) / "bench_hostile_archive";
    const fs::path pak = root / "drives/c:/QUAKE/ID1/pak0.pak";
    fs::remove_all(root);
    fs::create_directories(pak.parent_path());
    std::ofstream(pak, std::ios::binary) << bytes;
    fs::resize_file(pak, size);
    lv::MemoryPlatform memory;
    lv::LinuxFiles disk({root / "drives", root / "wine", root});
    lv::Platform system{memory.Settings, memory.Registry, disk, memory.Programs, memory.Clip, memory.Time};
    lv::NoUser user;
    lv::Run run{system, user};
    lv::Launcher launcher{run};
    run.GameKind = lv::Game::Quake;
    run.DefaultGameDirectory = "c:\\quake";
    run.BaseGameDir = run.CurrentGameDir = "ID1";
    double seconds = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        lv::ScanForMaps(run, launcher.Lists);
        const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.SetIterationTime(took);
        seconds += took;
    }
    lv::SetLimit(state, seconds * 1000 / static_cast<double>(state.iterations()), 100);
}

void BM_ArchiveThatClaimsFourGigabytes(benchmark::State& state) {
    ScanOneArchive(state, HeaderOf(0xFFFFFFF0), std::uintmax_t{4} << 30U);
}

void BM_ArchiveOfMoreMapsThanAnyGameHas(benchmark::State& state) {
    constexpr int kMaps = 200'000;
    std::string pak = HeaderOf(kMaps * 64);
    for (int i = 0; i < kMaps; ++i) {
        std::string name = "maps/" + std::to_string(1'000'000 + i) + std::string(38, 'x') + ".bsp";
        name.resize(64, '\0');
        pak += name;
    }
    ScanOneArchive(state, pak, pak.size());
}

BENCHMARK(BM_ArchiveThatClaimsFourGigabytes)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(20);
BENCHMARK(BM_ArchiveOfMoreMapsThanAnyGameHas)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(20);
BENCHMARK(BM_ChangeOfGameWithFourArchives)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(100);

}  // namespace

BENCHMARK_MAIN();
