// bench/compare_scripts_bench.cpp
//
// Comparing two scripts of 10,000 lines: both run as a game runs them, their effects compared, and their texts side by
// side (limit 50 ms); the same where no line is like another, and with the list of what a save would lose.

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>

#include "bench/limit.h"
#include "bench/long_script.h"
#include "console/script_comparison.h"
#include "console/text_difference.h"
#include "foundry/losses/save_losses.h"

namespace {

constexpr long kLines = 10000;
constexpr double kLimit = 50;  // ms

template <class Work>
void Time(benchmark::State& state, const Work& work) {
    double seconds = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        if (!work()) {
            state.SkipWithError("nothing was found");
            return;
        }
        const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.SetIterationTime(took);
        seconds += took;
    }
    lv::SetLimit(state, seconds * 1000 / static_cast<double>(state.iterations()), kLimit);
}

bool Compare(const std::string& left, const std::string& right, lv::Console console) {
    const auto differences = lv::CompareScripts(lv::EffectsOf(left, console), lv::EffectsOf(right, console));
    return !differences.empty() && lv::CompareTexts(left, right).size() >= kLines;
}

/// Every seventh line is another one.
std::string Changed(const std::string& script) {
    std::string changed;
    std::size_t line = 0;
    for (std::size_t at = 0; at < script.size();) {
        const std::size_t end = script.find('\n', at) + 1;
        changed +=
            ++line % 7 == 0 ? "bind x \"impulse " + std::to_string(line) + "\"\r\n" : script.substr(at, end - at);
        at = end;
    }
    return changed;
}

void BM_CompareTwoScripts(benchmark::State& state) {
    const std::string left = lv::MixedScript(kLines);
    const std::string right = Changed(left);
    const auto console = static_cast<lv::Console>(state.range(0));
    Time(state, [&] { return Compare(left, right, console); });
}

void BM_CompareWithoutALineInCommon(benchmark::State& state) {
    std::string left;
    std::string right;
    for (long i = 0; i < kLines; ++i) {
        left += "gl_left_" + std::to_string(i) + " 1\r\n";
        right += "gl_right_" + std::to_string(i) + " 1\r\n";
    }
    Time(state, [&] { return Compare(left, right, lv::Console::DarkPlaces); });
}

void BM_CompareShuffledLines(benchmark::State& state) {
    std::string left;
    std::string right;
    for (long i = 0; i < kLines; ++i) {
        left += "gl_" + std::to_string(i * 7919 % kLines) + " 1\r\n";
        right += "gl_" + std::to_string(i * 104729 % kLines) + " 2\r\ngl_" + std::to_string(i * 31 % 100) + " 1\r\n";
    }
    Time(state, [&] { return Compare(left, right, lv::Console::DarkPlaces); });
}

void BM_ListWhatASaveLoses(benchmark::State& state) {
    const std::string left = lv::MixedScript(kLines);
    const std::string right = Changed(left);
    const lv::ScriptDialect dialect{.GameKind = lv::Game::Quake2, .ScriptFamily = lv::Dialect::Quake2};
    Time(state, [&] { return !lv::ReportSave({left, right}, {}, dialect, lv::Console::Yamagi).Losses.empty(); });
}

BENCHMARK(BM_CompareTwoScripts)
    ->Arg(static_cast<long>(lv::Console::Quake))
    ->Arg(static_cast<long>(lv::Console::Yamagi))
    ->Arg(static_cast<long>(lv::Console::DarkPlaces))
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();
BENCHMARK(BM_CompareWithoutALineInCommon)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(BM_CompareShuffledLines)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(BM_ListWhatASaveLoses)->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace

BENCHMARK_MAIN();
