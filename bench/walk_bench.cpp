// bench/walk_bench.cpp
//
// The wizard's walk over 200,000 directories on a memory file system, beside `find -type d` over the same tree (limit:
// find's time), and what the process grows by for each directory (limit 100 bytes).

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "bench/limit.h"
#include "platform/linux/files/linux_files.h"
#include "wizard/disk_walk.h"

namespace {

namespace fs = std::filesystem;

constexpr int kDirectories = 200000;
constexpr int kInEach = 58;  // children: three levels hold them all

fs::path MakeTree() {
    const fs::path root = "/dev/shm/lorvane_walk_bench";
    fs::remove_all(root);
    fs::create_directories(root / "drives/c:");
    int made = 0;
    for (int a = 0; a < kInEach && made < kDirectories; ++a) {
        for (int b = 0; b < kInEach && made < kDirectories; ++b) {
            const fs::path parent = root / "drives/c:" / ("games" + std::to_string(a)) / ("disk" + std::to_string(b));
            fs::create_directories(parent);
            for (int c = 0; c < kInEach && made < kDirectories; ++c, ++made) {
                fs::create_directory(parent / ("level" + std::to_string(c)));
            }
        }
    }
    return root;
}

double ResidentBytes() {
    std::ifstream status("/proc/self/statm");
    double size = 0;
    double resident = 0;
    status >> size >> resident;
    return resident * 4096;
}

template <class Work>
double SecondsOf(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void BM_WalkBesideFind(benchmark::State& state) {
    const fs::path root = MakeTree();
    const std::string find = "find '" + (root / "drives/c:").string() + "' -type d | wc -l >/dev/null";
    double walkSeconds = 0;
    double findSeconds = 0;
    double grown = 0;
    int met = 0;
    for (auto _ : state) {
        lv::LinuxFiles files({root / "drives", root / "wine", root});
        const double before = ResidentBytes();
        met = 0;
        const double took = SecondsOf([&] {
            lv::DiskWalk walk(files);
            walk.Enter("C:");
            while (walk.Next()) {
                ++met;
            }
            grown = ResidentBytes() - before;
        });
        state.SetIterationTime(took);
        walkSeconds += took;
        findSeconds += SecondsOf([&] { (void)!std::system(find.c_str()); });  // NOLINT: the yardstick
    }
    fs::remove_all(root);
    lv::SetLimit(state, walkSeconds, findSeconds);
    state.counters["directories"] = met;
    state.counters["bytes_each"] = grown / met;
    state.counters["bytes_limit"] = 100;
}

BENCHMARK(BM_WalkBesideFind)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
