// bench/read_script_bench.cpp
//
// Opening a script in the editor: 10,000 lines of all that scripts hold (limit 25 ms), and ten times as many (250 ms);
// 100,000 lines that nobody understands (250 ms); and a file of 100 MB in one line (4 times its size in memory).

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "bench/limit.h"
#include "bench/long_script.h"
#include "bench/no_user.h"
#include "foundry/reading/open_script.h"
#include "foundry/reading/script_reader.h"
#include "platform/memory/memory_platform.h"

namespace {

constexpr const char* kPath = "C:\\QUAKE\\ID1\\long.cfg";
constexpr const char* kOurs = "//* Setup Foundry   *//\r\n";

std::string FreeFormScript(long lines) {
    std::string script = kOurs;
    for (long i = 1; i < lines; ++i) {
        script += "r_setting_" + std::to_string(i) + " 1\r\n";
    }
    return script;
}

void Open(benchmark::State& state, const std::string& script, double limit) {
    lv::MemoryPlatform memory;
    memory.Disk.AddFile(kPath, script);
    lv::NoUser user;
    lv::Run run{memory.Services, user};
    run.GameKind = lv::Game::Quake2;
    run.ScriptFamily = lv::Dialect::Quake2;
    lv::ScriptView view;
    lv::ScriptDocument document;
    double seconds = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        const bool opened = lv::OpenScript(run, document, view, kPath);
        const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        if (!opened || document.Sections.at(0).Text.empty() || user.Questions) {
            state.SkipWithError("the script was not read, or something was asked");
            return;
        }
        state.SetIterationTime(took);
        seconds += took;
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(script.size()) * state.iterations());
    lv::SetLimit(state, seconds * 1000 / static_cast<double>(state.iterations()), limit);
}

void BM_OpenAScript(benchmark::State& state) {
    Open(state, lv::MixedScript(state.range(0)), static_cast<double>(state.range(0)) / 400);
}

void BM_OpenFreeForm(benchmark::State& state) {
    Open(state, FreeFormScript(state.range(0)), static_cast<double>(state.range(0)) / 400);
}

/// A file that is no more in memory than what is read of it.
class EndlessLine : public lv::RandomAccessFile {
  public:
    [[nodiscard]] std::uint64_t Size() const override { return kSize; }
    lv::Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        if (offset >= kSize) {
            return std::string();
        }
        std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(count, kSize - offset)), 'x');
        bytes.replace(0, offset == 0 ? kStart.size() : 0, offset == 0 ? kStart : "");
        return bytes;
    }
    static constexpr std::uint64_t kSize = 100'000'000;
    static constexpr std::string_view kStart = "bind a ";
};

double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1000;
}

void BM_MemoryOfAHugeLine(benchmark::State& state) {
    EndlessLine file;
    lv::ScriptView view;
    const double before = PeakMegabytes();
    for (auto _ : state) {
        lv::ScriptDocument document =
            lv::MakeScriptDocument({.GameKind = lv::Game::Quake, .ScriptFamily = lv::Dialect::Quake});
        const std::uint64_t full = lv::ReadAliases(file, document);
        lv::ReadLines(file, document, view, full, [] {});
        if (document.KeyBinding[1].size() < 90'000'000) {
            state.SkipWithError("the line was not read");
            return;
        }
    }
    lv::SetLimit(state, PeakMegabytes() - before, 4 * static_cast<double>(EndlessLine::kSize) / 1e6);
}

// First, for the peak is that of the program's life.
BENCHMARK(BM_MemoryOfAHugeLine)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_OpenAScript)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(BM_OpenFreeForm)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace

BENCHMARK_MAIN();
