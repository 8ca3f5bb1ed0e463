// bench/quick_look_bench.cpp
//
// The quick look for games over a home of 50,000 directories on a memory file system (limit: 1 second): as homes are,
// and with all of them below the directory for games. The process's own cache of the directories is warm.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "bench/limit.h"
#include "games/trees/tree_search.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/linux_known_places.h"

namespace {

namespace fs = std::filesystem;

constexpr double kLimitSeconds = 1;

const fs::path kRoot = "/dev/shm/lorvane_quick_look_bench";
const fs::path kHome = kRoot / "home/me";

void AddDirectories(const fs::path& below, int count) {
    constexpr int kInEach = 40;
    for (int i = 0; i < count; ++i) {
        fs::create_directories(below / ("a" + std::to_string(i / (kInEach * kInEach))) /
                               ("b" + std::to_string(i / kInEach % kInEach)) / ("c" + std::to_string(i % kInEach)));
    }
}

void AddGame(const fs::path& directory, const std::string& base) {
    fs::create_directories(directory / base);
    std::ofstream(directory / base / "pak0.pak") << "PACK";
}

void AddSteamLibrary(const fs::path& root) {
    AddGame(root / "steamapps/common/Quake", "Id1");
    AddGame(root / "steamapps/common/Quake/rerelease", "id1");
    for (int i = 0; i < 100; ++i) {
        const fs::path drive = root / "steamapps/compatdata" / std::to_string(i) / "pfx/drive_c";
        fs::create_directories(drive / "Program Files/Common Files");
        fs::create_directories(drive / "Program Files (x86)");
        fs::create_directories(drive / "windows/system32");
        fs::create_directories(drive / "users");
    }
}

// A home with 50,000 directories, `inGames` of them where games are looked for.
void MakeHome(int inGames) {
    fs::remove_all(kRoot);
    AddDirectories(kHome / "games/collection", inGames);
    AddDirectories(kHome / "Documents", 50000 - inGames);
    AddGame(kHome / "games/quake", "id1");
    AddGame(kHome / "Games/quake2", "baseq2");
    AddSteamLibrary(kHome / ".local/share/Steam");
    fs::create_directories(kHome / ".wine/drive_c/Program Files");
    AddGame(kHome / ".wine/drive_c/GOG Games/Hexen II", "data1");
    setenv("HOME", kHome.c_str(), 1);
    unsetenv("XDG_CONFIG_HOME");
    unsetenv("XDG_DATA_HOME");
    unsetenv("WINEPREFIX");
}

void BM_QuickLook(benchmark::State& state) {
    MakeHome(static_cast<int>(state.range(0)));
    lv::LinuxFiles files({kRoot / "data/drives", kHome / ".wine", kRoot});
    lv::LinuxKnownPlaces places(files, kRoot / "system");
    double longest = 0;
    std::size_t found = 0;
    std::size_t listed = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        lv::TreeSearch search(files, &places);
        while (search.Step()) {
        }
        const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.SetIterationTime(took);
        longest = std::max(longest, took);
        found = search.Found().size();
        listed = search.Listed();
    }
    fs::remove_all(kRoot);
    lv::SetLimit(state, longest, kLimitSeconds);
    state.counters["trees"] = static_cast<double>(found);
    state.counters["listed"] = static_cast<double>(listed);
}

BENCHMARK(BM_QuickLook)->Arg(1000)->Arg(50000)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
