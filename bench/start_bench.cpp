// bench/start_bench.cpp
//
// Start of the program, beside an empty window of the toolkit: the splash (limit 1.5 times the empty window's time),
// the main window behind the splash's end (limit once that time), and the memory then held (limit 64 MB resident). The
// two are started turn about, and each figure is the median. The start is one that asks nothing: a second run with one
// game that is there. Needs a display with nothing else on it: run it by scripts/virtual_display.

#include <benchmark/benchmark.h>
#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <vector>

#include "bench/limit.h"
#include "bench/real_program.h"
#include "bench/screen_watch.h"

namespace {

using Clock = lv::ScreenWatch::Clock;
using Pixels = lv::ScreenWatch::Pixels;

constexpr int kRounds = 9;
constexpr useconds_t kUntilDrawn = 200000;  // the splash, once its window is seen

double Milliseconds(Clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

double Median(std::vector<double> figures) {
    std::nth_element(figures.begin(), figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2), figures.end());
    return figures[figures.size() / 2];
}

struct StartTimes {
    double Splash = 0;     // milliseconds from the start of the program
    double Main = 0;       // milliseconds from the splash's going
    double Whole = 0;      // milliseconds from the start of the program to the main window
    double Megabytes = 0;  // resident
};

class Starts {
  public:
    Starts() : bare_(screen_.IsOpen() ? screen_.Look() : Pixels()) {}

    [[nodiscard]] bool Ready() const { return screen_.IsOpen(); }

    std::optional<double> OfEmptyWindow() {
        const auto start = Clock::now();
        const pid_t program = lv::Spawn(std::filesystem::path(LV_BINARY_DIR) / "bench/empty_window");
        const auto shown = Changed();
        End(program);
        return shown == Clock::time_point() ? std::nullopt : std::optional(Milliseconds(shown - start));
    }

    std::optional<StartTimes> OfProgram() {
        const auto start = Clock::now();
        const pid_t program = lv::Spawn(std::filesystem::path(LV_BINARY_DIR) / "lorvane3d");
        const auto splash = Changed();
        usleep(kUntilDrawn);
        const Pixels logo = screen_.Look();
        const auto gone = screen_.Await([&logo](const Pixels& now) { return now != logo; });
        const auto shown = Changed();
        std::optional<StartTimes> times;
        if (std::ranges::none_of(std::array{splash, gone, shown}, [](auto at) { return at == Clock::time_point(); })) {
            usleep(300000);
            times = StartTimes{Milliseconds(splash - start), Milliseconds(shown - gone), Milliseconds(shown - start),
                               lv::ResidentMegabytes(program)};
        }
        End(program);
        return times;
    }

  private:
    [[nodiscard]] Clock::time_point Changed() const {
        return screen_.Await([this](const Pixels& now) { return now != bare_; });
    }

    void End(pid_t program) const {
        lv::End(program);
        (void)screen_.Await([this](const Pixels& now) { return now == bare_; });
    }

    lv::ScreenWatch screen_;
    Pixels bare_;
};

void BM_Start(benchmark::State& state) {
    Starts starts;
    if (!starts.Ready() || !lv::PrepareHome("")) {
        state.SkipWithError("no display, or the settings could not be made");
        return;
    }
    (void)starts.OfProgram();  // stores what every later start finds
    std::vector<double> empty;
    std::vector<double> splash;
    std::vector<double> main;
    std::vector<double> whole;
    double memory = 0;
    for (auto _ : state) {
        for (int round = 0; round < kRounds; ++round) {
            const auto bare = starts.OfEmptyWindow();
            const auto ours = starts.OfProgram();
            if (!bare || !ours) {
                state.SkipWithError("a window did not come up");
                return;
            }
            empty.push_back(*bare);
            splash.push_back(ours->Splash);
            main.push_back(ours->Main);
            whole.push_back(ours->Whole);
            memory = ours->Megabytes;
        }
        state.SetIterationTime(Median(whole) / 1000);
    }
    state.counters["empty_ms"] = Median(empty);
    state.counters["splash_ms"] = Median(splash);
    state.counters["splash_ratio"] = Median(splash) / (1.5 * Median(empty));
    state.counters["main_ms"] = Median(main);
    state.counters["main_ratio"] = Median(main) / Median(empty);
    state.counters["resident_MB"] = memory;
    state.counters["resident_limit_MB"] = 64;
}

BENCHMARK(BM_Start)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
