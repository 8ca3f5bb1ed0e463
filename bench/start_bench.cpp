// bench/start_bench.cpp
//
// Start of the program to its main window on the screen (limit 150 ms), and the memory it then holds (limit 64 MB
// resident). The start holds its splash for one second on purpose; that second is taken off the figure. The start is
// one that asks nothing: a second run with one game that is there. Needs a display and xdotool: run it by
// scripts/virtual_display.

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
#include "platform/linux/sqlite_settings.h"

namespace {

namespace fs = std::filesystem;

constexpr double kSplashSeconds = 1;

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

// The splash is called "Lorvane 3D"; only the main window's title starts with three blanks.
bool WindowIsThere() {
    return std::system("xdotool search --onlyvisible --name '^   Lorvane 3D$' >/dev/null 2>&1") == 0;  // NOLINT
}

/// Settings and a game with which a start asks nothing; false if they cannot be made.
bool PrepareHome(const fs::path& home) {
    fs::remove_all(home);
    const fs::path ours = home / "data/lorvane3d";
    fs::create_directories(ours / "drives");
    fs::create_directories(ours / "drive_c/quake/id1");
    fs::create_directory_symlink("../drive_c", ours / "drives/c:");
    fs::create_directory_symlink("/", ours / "drives/z:");
    std::ofstream(ours / "drive_c/quake/quake.exe") << "a game in name only";
    auto store = lv::SqliteSettings::Open(home / "config/lorvane3d/settings.sqlite");
    return store.Ok() && !store.Value->Write("Lorvane 3D", "LV-Stuff", "FirstTime", "0") &&
           !store.Value->Write("Lorvane 3D", "LV-Stuff", "VP_Version", "1") &&
           !store.Value->Write("Lorvane 3D", "LV-Stuff", "NVC_Version", "1") &&
           !store.Value->Write("Lorvane 3D", "Options", "Executables", "Quake;c:\\quake\\quake.exe");
}

/// Seconds from the start of the program to its main window; below 0 if none came.
double StartToWindow(pid_t& program) {
    const auto start = std::chrono::steady_clock::now();
    program = Spawn(fs::path(LV_BINARY_DIR) / "lorvane3d");
    while (!WindowIsThere()) {
        if (std::chrono::steady_clock::now() - start > std::chrono::seconds(20)) {
            return -1;
        }
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
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
    setenv("XDG_CACHE_HOME", (home / "cache").c_str(), 1);
    if (!PrepareHome(home)) {
        state.SkipWithError("the settings could not be made");
        return;
    }
    pid_t program = -1;
    (void)StartToWindow(program);  // stores what every later start finds
    End(program);
    double total = 0;
    double memory = 0;
    for (auto _ : state) {
        const double took = StartToWindow(program) - kSplashSeconds;
        if (took < 0) {
            End(program);
            state.SkipWithError("no window came up behind the splash");
            return;
        }
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
