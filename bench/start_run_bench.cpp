// Which file wins: a start of 50 scripts of 200 lines each, one executing the next, in a game with ten archives of
// 2,000 files (limit 100 ms); and all of them checked (200 ms).

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>

#include "bench/limit.h"
#include "console/checks/run_check.h"
#include "platform/memory/memory_files.h"

namespace {

constexpr int kScripts = 50;

void PutNumber(std::string& bytes, std::size_t number) {
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(number >> shift & 0xFFU);
    }
}

std::string Archive(int number) {
    std::string directory;
    for (int i = 0; i < 2000; ++i) {
        std::string name = "progs/model" + std::to_string(number) + "_" + std::to_string(i) + ".mdl";
        name.resize(56, '\0');
        directory += name;
        PutNumber(directory, 12);
        PutNumber(directory, 0);
    }
    std::string bytes = "PACK";
    PutNumber(bytes, 12);
    PutNumber(bytes, directory.size());
    return bytes + directory;
}

std::string Script(int number) {
    std::string script;
    for (int i = 0; i < 66; ++i) {
        const std::string name = std::to_string(number) + "_" + std::to_string(i);
        script += "bind F" + std::to_string(1 + i % 12) + " \"impulse " + std::to_string(i) + "; wait\" // a key\n";
        script += "alias a" + name + " \"echo " + name + "; +attack; wait; -attack\"\n";
        script += "gl_setting_" + name + " \"" + std::to_string(i) + "\"\n";
    }
    return script + "exec s" + std::to_string(number + 1) + ".cfg\n";
}

lv::StartRequest MakeGame(lv::MemoryFiles& disk) {
    for (int i = 0; i < 10; ++i) {
        disk.AddFile("C:\\Q\\ID1\\pak" + std::to_string(i) + ".pak", Archive(i));
    }
    for (int i = 0; i < kScripts; ++i) {
        disk.AddFile("C:\\Q\\ID1\\s" + std::to_string(i) + ".cfg", Script(i));
    }
    disk.AddFile("C:\\Q\\ID1\\quake.rc", "exec s0.cfg\nstuffcmds\n");
    lv::StartRequest request;
    request.Played.Of = lv::Console::Ironwail;
    request.Played.Directory = "C:\\Q";
    request.Played.Base = "ID1";
    return request;
}

template <class Work>
void Measure(benchmark::State& state, double limit, Work work) {
    lv::MemoryFiles disk;
    const lv::StartRequest request = MakeGame(disk);
    double seconds = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        const bool whole = work(disk, request);
        const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        if (!whole) {
            state.SkipWithError("not all has been run");
            return;
        }
        state.SetIterationTime(took);
        seconds += took;
    }
    lv::SetLimit(state, seconds * 1000 / static_cast<double>(state.iterations()), limit);
}

void BM_RunAStart(benchmark::State& state) {
    Measure(state, 100, [](lv::MemoryFiles& disk, const lv::StartRequest& request) {
        const lv::StartRun run = lv::RunStart(disk, request);
        return run.Scripts.size() == kScripts + 2 && run.Set.SetterCount() == std::size_t{kScripts} * 198;
    });
}

void BM_CheckAStart(benchmark::State& state) {
    Measure(state, 200, [](lv::MemoryFiles& disk, const lv::StartRequest& request) {
        return lv::CheckScriptsOf(disk, request).size() == 1;  // the one that the last would execute
    });
}

BENCHMARK(BM_RunAStart)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(BM_CheckAStart)->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace

BENCHMARK_MAIN();
