// bench/write_script_bench.cpp
//
// Writing a script of 10,000 lines (limit 25 ms, half of what reading and writing may take together), and what a line
// costs in one of ten times that (limit twice as much: the time grows with the lines and no faster).

#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/limit.h"
#include "foundry/writing/compose_script.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/linux_clock.h"

namespace {

namespace fs = std::filesystem;

constexpr int kLines = 10000;

/// Half aliases, half lines of the player's own; a few hundred more are settings, bindings and banners.
lv::ScriptDocument DocumentOf(int lines) {
    lv::ScriptDocument document = lv::MakeScriptDocument({lv::Game::Quake2, lv::Dialect::Quake2, false, false, ','});
    for (lv::Text& command : document.KeyBinding) {
        command = "echo a command of some length; wait; +attack";
    }
    document.gamma_Cbo.ListIndex = 0;
    document.Sections.resize(1);
    for (int i = 0; i < lines / 2; ++i) {
        const lv::Text number = std::to_string(i);
        document.AliasTable.Insert({false, "alias_" + number, "echo one;wait;echo two;fov " + number});
        document.Sections[0].Text += "\r\nseta some_variable_" + number + " \"its value\"";
    }
    return document;
}

double SecondsOf(const lv::ScriptDocument& document, lv::LinuxClock& clock) {
    const double start = clock.Seconds();
    benchmark::DoNotOptimize(lv::ComposeScript(document, {1999, 11, 21, 0, 0, 0}));
    return clock.Seconds() - start;
}

void BM_WriteScript(benchmark::State& state) {
    const fs::path root = fs::path(LV_BINARY_DIR) / "bench_scripts";
    fs::remove_all(root);
    fs::create_directories(root / "drives/c:");
    lv::LinuxFiles disk({root / "drives", root / "wine", root});
    lv::LinuxClock clock;
    const lv::ScriptDocument document = DocumentOf(kLines);
    double seconds = 0;
    for (auto _ : state) {
        const double start = clock.Seconds();
        if (disk.Replace("C:\\my.cfg", lv::ComposeScript(document, {1999, 11, 21, 0, 0, 0}))) {
            state.SkipWithError("the script was not written");
            return;
        }
        const double took = clock.Seconds() - start;
        state.SetIterationTime(took);
        seconds += took;
    }
    lv::SetLimit(state, seconds * 1000 / static_cast<double>(state.iterations()), 25);
}

void BM_CostOfALineInALongScript(benchmark::State& state) {
    lv::LinuxClock clock;
    const lv::ScriptDocument shortOne = DocumentOf(kLines);
    const lv::ScriptDocument longOne = DocumentOf(10 * kLines);
    double shortSeconds = 0;
    double longSeconds = 0;
    for (auto _ : state) {
        shortSeconds += SecondsOf(shortOne, clock);
        const double took = SecondsOf(longOne, clock);
        state.SetIterationTime(took);
        longSeconds += took;
    }
    lv::SetLimit(state, longSeconds / 10 / shortSeconds, 2);
}

BENCHMARK(BM_WriteScript)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(100);
BENCHMARK(BM_CostOfALineInALongScript)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(50);

}  // namespace

BENCHMARK_MAIN();
