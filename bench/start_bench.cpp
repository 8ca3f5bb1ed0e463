// bench/start_bench.cpp
//
// Start of the program to its window on the screen (limit 150 ms), and the memory it then holds (limit 64 MB
// resident). Needs a display and xdotool: run it by scripts/virtual_display.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "bench/limit.h"

namespace {

namespace fs = std::filesystem;

pid_t Spawn(const fs::path& program) {
    const pid_t child = fork();
    if (child == 0) {
        const int nothing = open("/dev/null", O_RDWR);
        dup2(nothing, 1);
        dup2(nothing, 2);
        execl(program.c_str(), program.c_str(), nullptr);
        _exit(127);
    }
    return child;
}

bool WindowIsThere() {
    return std::system("xdotool search --onlyvisible --name 'Lorvane 3D' >/dev/null 2>&1") == 0;  // NOLINT
}

double ResidentMegabytes(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    std::string word;
    while (status >> word) {
        if (word == "VmRSS:") {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes / 1024;
        }
    }
    return 0;
}

void End(pid_t process) {
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
}

void BM_StartToWindow(benchmark::State& state) {
    const fs::path home = fs::path(LV_BINARY_DIR) / "bench_home";
    setenv("XDG_CONFIG_HOME", (home / "config").c_str(), 1);
    setenv("XDG_DATA_HOME", (home / "data").c_str(), 1);
    double total = 0;
    double memory = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        const pid_t program = Spawn(fs::path(LV_BINARY_DIR) / "lorvane3d");
        while (!WindowIsThere()) {
            if (std::chrono::steady_clock::now() - start > std::chrono::seconds(20)) {
                End(program);
                state.SkipWithError("no window came up");
                return;
            }
        }
        const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.SetIterationTime(took);
        total += took;
        usleep(300000);
        memory = ResidentMegabytes(program);
        End(program);
    }
    lv::SetLimit(state, total * 1000 / static_cast<double>(state.iterations()), 150);
    state.counters["resident_MB"] = memory;
    state.counters["resident_limit_MB"] = 64;
}

BENCHMARK(BM_StartToWindow)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

}  // namespace

BENCHMARK_MAIN();
