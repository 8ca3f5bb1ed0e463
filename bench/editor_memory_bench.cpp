// bench/editor_memory_bench.cpp
//
// What the program holds with the editor open and all of its pages made (limit 80 MB resident), with a short script and
// with one of 10,000 lines. Needs a display and xdotool: run it by scripts/virtual_display.

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>

#include "bench/limit.h"
#include "bench/long_script.h"
#include "bench/real_program.h"

namespace {

constexpr int kPageMilliseconds = 3000;  // in which the pages behind the first one are made

bool WaitFor(const char* title) {
    const auto start = std::chrono::steady_clock::now();
    while (!lv::WindowIsThere(title)) {
        if (std::chrono::steady_clock::now() - start > std::chrono::seconds(20)) {
            return false;
        }
        usleep(50000);
    }
    return true;
}

void BM_MemoryOfTheEditor(benchmark::State& state) {
    if (!lv::PrepareHome(lv::MixedScript(state.range(0)))) {
        state.SkipWithError("the settings could not be made");
        return;
    }
    double memory = 0;
    for (auto _ : state) {
        const pid_t program = lv::Spawn(std::filesystem::path(LV_BINARY_DIR) / "lorvane3d");
        const bool started = WaitFor(lv::kMainTitle);
        usleep(1000000);
        lv::Shell("xdotool key F3");
        const bool opened = started && WaitFor("^Setup Foundry - ");
        usleep(kPageMilliseconds * 1000);
        memory = lv::ResidentMegabytes(program);
        lv::End(program);
        if (!opened) {
            state.SkipWithError("the editor did not come up");
            return;
        }
    }
    lv::SetLimit(state, memory, 80);
}

BENCHMARK(BM_MemoryOfTheEditor)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
