// bench/command_line_bench.cpp
//
// The words of the command line without a display: the list of games (limit 30 ms) and a launch, from the start of the
// program to the started game (limit 60 ms). The game is a program that does nothing. Each figure is the median.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

#include "bench/limit.h"
#include "bench/real_program.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRounds = 25;

/// Milliseconds until the program has ended; below 0 if it failed.
double Run(const std::vector<const char*>& words) {
    const std::string program = std::string(LV_BINARY_DIR) + "/lorvane3d";
    std::vector<char*> arguments = {const_cast<char*>(program.c_str())};  // NOLINT: execv takes them so
    for (const char* word : words) {
        arguments.push_back(const_cast<char*>(word));  // NOLINT
    }
    arguments.push_back(nullptr);
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        const int nothing = open("/dev/null", O_RDWR);
        dup2(nothing, 1);
        dup2(nothing, 2);
        unsetenv("DISPLAY");
        execv(program.c_str(), arguments.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    const double time = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? time : -1;
}

bool PrepareGame() {
    namespace fs = std::filesystem;
    if (!lv::PrepareHome("sensitivity 3\n")) {
        return false;
    }
    const fs::path game = fs::path(std::getenv("XDG_DATA_HOME")) / "lorvane3d/drive_c/quake/quake.exe";
    fs::remove(game);
    return fs::copy_file("/bin/true", game);
}

void Measure(benchmark::State& state, const std::vector<const char*>& words, double limit) {
    if (!PrepareGame()) {
        state.SkipWithError("no home could be made");
        return;
    }
    std::vector<double> times;
    for (auto _ : state) {
        for (int round = 0; round < kRounds; ++round) {
            const double time = Run(words);
            if (time < 0) {
                state.SkipWithError("the program failed");
                return;
            }
            times.push_back(time);
        }
    }
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
    lv::SetLimit(state, times[times.size() / 2], limit);
}

void List(benchmark::State& state) {
    Measure(state, {"--list"}, 30);
}

void Launch(benchmark::State& state) {
    Measure(state, {"--launch", "Quake"}, 60);
}

BENCHMARK(List)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(Launch)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
