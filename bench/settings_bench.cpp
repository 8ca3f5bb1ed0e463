// bench/settings_bench.cpp
//
// 10,000 settings written durably one by one, and read back. Both rates are printed.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "platform/linux/settings/sqlite_settings.h"

namespace {

constexpr int kSettings = 10000;

std::unique_ptr<lv::SqliteSettings> FreshStore() {
    const std::filesystem::path folder = std::filesystem::path(LV_BINARY_DIR) / "bench_store";
    std::filesystem::remove_all(folder);
    return std::move(lv::SqliteSettings::Open(folder / "settings.sqlite").Value);
}

std::string KeyOf(int number) {
    return "key " + std::to_string(number);
}

void BM_WriteDurably(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const auto store = FreshStore();
        state.ResumeTiming();
        for (int i = 0; i < kSettings; ++i) {
            if (store->Write("Lorvane 3D", "Options", KeyOf(i), "value " + std::to_string(i))) {
                state.SkipWithError("a write failed");
                return;
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * kSettings);
}

void BM_ReadBack(benchmark::State& state) {
    const auto store = FreshStore();
    store->BeginGroup();
    for (int i = 0; i < kSettings; ++i) {
        (void)store->Write("Lorvane 3D", "Options", KeyOf(i), "value " + std::to_string(i));
    }
    (void)store->EndGroup();
    for (auto _ : state) {
        for (int i = 0; i < kSettings; ++i) {
            benchmark::DoNotOptimize(store->Read("Lorvane 3D", "Options", KeyOf(i)));
        }
    }
    state.SetItemsProcessed(state.iterations() * kSettings);
}

BENCHMARK(BM_WriteDurably)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();
BENCHMARK(BM_ReadBack)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
