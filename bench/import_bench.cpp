// bench/import_bench.cpp
//
// A file of 1,000 records read and imported into a store on the disk, with the backup of what was there (limit: 200
// ms). The same for 1,000 records into an empty store, as on a new machine.

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "bench/limit.h"
#include "bench/no_user.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/settings/sqlite_settings.h"
#include "platform/memory/memory_platform.h"
#include "transfer/import_settings.h"

namespace {

namespace fs = std::filesystem;

constexpr int kRecords = 1000;
constexpr const char* kFile = "C:\\settings.txt";

/// A machine with a store and a drive of its own on the disk.
struct Machine {
    explicit Machine(const char* name) : Root(fs::path(LV_BINARY_DIR) / "bench_import" / name) {
        fs::remove_all(Root);
        fs::create_directories(Root / "drives/c:");
        Store = std::move(lv::SqliteSettings::Open(Root / "settings.sqlite").Value);
        Disk = std::make_unique<lv::LinuxFiles>(lv::LinuxFiles({Root / "drives", Root / "wine", Root}));
        Memory.Places.IsData = "C:\\data";
        System =
            std::make_unique<lv::Platform>(lv::Platform{*Store, Memory.Registry, *Disk, Memory.Programs, Memory.Clip,
                                                        Memory.Time, nullptr, nullptr, &Memory.Places});
        Run = std::make_unique<lv::Run>(*System, User);
    }

    /// Lists of 200 records each and 200 remembered scripts, all told apart by `mark`.
    void Fill(const std::string& mark) {
        std::string executables;
        std::string scripts;
        std::string games;
        std::string servers;
        Store->BeginGroup();
        for (int i = 0; i < kRecords / 5; ++i) {
            const std::string number = std::to_string(i) + mark;
            const std::string between = i == 0 ? "" : ";";
            executables += between + "Quake " + number + ";c:\\g" + number + "\\glquake.exe";
            scripts += between + number + ".cfg;c:\\g" + number + "\\id1\\" + number + ".cfg";
            games += between + "Mod " + number + ";-game mod" + number;
            servers += between + "Server " + number + ";host" + number + ".example;26000;0;";
            (void)Store->Write("Lorvane 3D", "DefaultScript", "c:\\g" + number + "\\\xC9t\xE9",
                               "c:\\g" + number + "\\id1\\autoexec.cfg");
        }
        (void)Store->Write("Lorvane 3D", "Options", "Executables", executables);
        (void)Store->Write("Lorvane 3D", "Options", "Scripts", scripts);
        (void)Store->Write("Lorvane 3D", "Options", "Games", games);
        (void)Store->Write("Lorvane 3D", "Options", "NetServers", servers);
        (void)Store->EndGroup();
    }

    fs::path Root;
    std::unique_ptr<lv::SqliteSettings> Store;
    std::unique_ptr<lv::LinuxFiles> Disk;
    lv::MemoryPlatform Memory;
    std::unique_ptr<lv::Platform> System;
    lv::NoUser User;
    std::unique_ptr<lv::Run> Run;
};

void Import(benchmark::State& state, bool isNew) {
    Machine from("from");
    from.Fill("a");
    double longest = 0;
    for (auto _ : state) {
        Machine here("here");
        if (!isNew) {
            here.Fill("b");
        }
        if (lv::ExportSettings(*from.Run, kFile).Fault) {
            state.SkipWithError("the file could not be written");
            return;
        }
        fs::copy_file(from.Root / "drives/c:/settings.txt", here.Root / "drives/c:/settings.txt");
        const auto start = std::chrono::steady_clock::now();
        const auto imported = lv::ImportSettings(*here.Run, kFile, [](const lv::MovedPlace& place, std::string_view) {
            return std::optional<std::string>("d:\\play" + place.Directory.substr(2));
        });
        const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.SetIterationTime(took);
        longest = std::max(longest, took * 1000);
        if (!imported.Ok() || imported.Value.Moved.size() != kRecords / 5) {
            state.SkipWithError("the import is not whole");
            return;
        }
    }
    fs::remove_all(fs::path(LV_BINARY_DIR) / "bench_import");
    lv::SetLimit(state, longest, 200);
}

void BM_ImportInPlaceOfOthers(benchmark::State& state) {
    Import(state, false);
}

void BM_ImportOnANewMachine(benchmark::State& state) {
    Import(state, true);
}

BENCHMARK(BM_ImportInPlaceOfOthers)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(10);
BENCHMARK(BM_ImportOnANewMachine)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(10);

}  // namespace

BENCHMARK_MAIN();
