// bench/links_bench.cpp
//
// What a launch spends on the links of a game with 5,000 files in 200 directories, all of them as they were, on a
// memory file system (limit: 100 ms).

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include "bench/limit.h"
#include "games/trees/linked_tree.h"
#include "platform/linux/files/linux_files.h"

namespace {

namespace fs = std::filesystem;

constexpr int kDirectories = 200;
constexpr int kInEach = 25;

const fs::path kRoot = "/dev/shm/lorvane_links_bench";

void MakeTree(const fs::path& tree) {
    fs::remove_all(kRoot);
    fs::create_directories(tree / "id1");
    std::ofstream(tree / "id1/pak0.pak") << "PACK";
    for (int i = 0; i < kDirectories; ++i) {
        const fs::path directory = tree / ("mod" + std::to_string(i / 10)) / ("part" + std::to_string(i % 10));
        fs::create_directories(directory);
        for (int file = 0; file < kInEach; ++file) {
            std::ofstream(directory / ("sound" + std::to_string(file) + ".wav")) << "RIFF";
        }
    }
}

double MillisecondsOf(const auto& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void BM_LinksThatAreUpToDate(benchmark::State& state) {
    const fs::path tree = kRoot / "usr/share/games/quake";
    MakeTree(tree);
    lv::LinuxFiles files({kRoot / "data/drives", kRoot / "wine", kRoot});
    const std::string source = files.FromHost(tree.string());
    const auto link = [&] { return lv::LinkTree(files, *lv::TreeIn(files, source), "c:\\lorvane3d\\quake-1"); };
    std::size_t made = 0;
    const double first = MillisecondsOf([&] { made = link().Made; });
    double longest = 0;
    for (auto _ : state) {
        const double took = MillisecondsOf([&] { benchmark::DoNotOptimize(link()); });
        state.SetIterationTime(took / 1000);
        longest = std::max(longest, took);
    }
    fs::remove_all(kRoot);
    lv::SetLimit(state, longest, 100);
    state.counters["links"] = static_cast<double>(made);
    state.counters["first_ms"] = first;
}

BENCHMARK(BM_LinksThatAreUpToDate)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

}  // namespace

BENCHMARK_MAIN();
