// platform/memory/memory_platform.h
//
// A whole platform in memory, for tests and benchmarks: it keeps the promises of the interfaces and lets a test
// refuse what it wants refused.

#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/memory/memory_desktop.h"
#include "platform/memory/memory_files.h"
#include "platform/memory/memory_known_places.h"
#include "platform/memory/memory_shortcuts.h"
#include "platform/platform.h"

namespace lv {

class MemorySettings : public SettingsBacking {
  public:
    std::optional<std::string> Read(std::string_view application, std::string_view section,
                                    std::string_view key) override;
    Error Write(std::string_view application, std::string_view section, std::string_view key,
                std::string_view value) override;
    Error Remove(std::string_view application, std::string_view section, std::string_view key) override;
    Result<std::vector<StoredValue>> All(std::string_view application) override;
    void BeginGroup() override;
    Error BeginAlone() override;
    Error EndGroup() override;
    void WhenLocked(LockedQuestion question) override { question_ = std::move(question); }

    /// Each write, as "section|key|value", in order; of what is taken away "-section|key".
    std::vector<std::string> Log;
    Error RefuseWrites;
    Error RefuseGroups;  // at their end
    Error RefuseReads;   // of all values at once
    Error RefuseAlone;
    std::function<void()> WhenAlone = [] {};  // called once nobody else writes
    Error Locked;  // another program holds the store: each write asks, and a question may clear this
    [[nodiscard]] std::size_t Count() const { return values_.size(); }

  private:
    Error FaultOfWrite();

    struct Stored {
        std::string Application;
        StoredValue Value;
    };
    using Map = std::map<std::string, Stored>;  // by application, section and key in lower case

    Map values_;
    Map before_;  // the outermost group
    int depth_ = 0;
    Error groupFault_;
    LockedQuestion question_;
};

class MemoryRegistry : public UserRegistry {
  public:
    Result<RegistryValue> Query(std::string_view path, std::string_view name) override;
    Error Set(std::string_view path, std::string_view name, const RegistryValue& value) override;
    Error SetAll(std::span<const RegistryEntry> entries) override;

    std::map<std::string, RegistryValue> Values;  // by the lower-case "path|name"
    std::vector<std::size_t> Bursts;              // how many values each SetAll was given
    Error RefuseQueries;
    Error RefuseWrites;
};

class MemoryProcesses : public Processes {
  public:
    using Processes::StartBatch;
    LineReader ReaderOf(std::string_view, std::string_view, std::string_view) override { return Reader; }
    Error StartBatch(std::string_view directory, std::string_view name, const BatchCommand& known) override;
    Error StartProgram(std::string_view program, const std::vector<std::string>& arguments) override;

    bool WatchesGame() override { return Watching; }
    std::optional<GameEnd> EndOfLastGame() override;
    bool HasRunnerFor(std::string_view program) override { return !WithoutRunner.contains(std::string(program)); }
    std::optional<std::string> LastOutput() override { return Output; }

    Error StartHelpViewer(std::string_view path) override;

    std::vector<std::string> Started;  // "C:\QUAKE\lv_666.bat", or the program and its arguments joined by "|"
    BatchCommand Known;                // of the last batch
    LineReader Reader = LineReader::kNobody;
    Error Refuse;
    std::set<std::string> WithoutRunner;  // programs, as they are asked for
    bool HasHelpViewer = false;           // then it is "winhlp32.exe"

    bool Watching = false;       // from the start of a game to the telling of its end, where a test sets it
    std::optional<GameEnd> End;  // told once
    int LooksForEnd = 0;
    std::optional<std::string> Output;
};

class MemoryClipboard : public Clipboard {
  public:
    Error SetText(std::string_view text) override {
        Held = text;
        return {};
    }
    std::string GetText() override { return Held; }

    std::string Held;
};

class MemoryClock : public Clock {
  public:
    LocalTime Now() override { return Is; }
    double Seconds() override { return Elapsed += Step; }
    void Sleep(int milliseconds) override { Elapsed += milliseconds / 1000.0; }
    std::string MonthName(int month) override;
    char DecimalSeparator() override { return Separator; }
    bool IsWin9x() override { return Win9x; }

    LocalTime Is{1999, 11, 21, 12, 30, 0};
    double Elapsed = 0;
    double Step = 0;  // how far time has gone at each look
    char Separator = '.';
    bool Win9x = false;
};

struct MemoryPlatform {
    MemorySettings Settings;
    MemoryRegistry Registry;
    MemoryFiles Disk;
    MemoryProcesses Programs;
    MemoryClipboard Clip;
    MemoryClock Time;
    MemoryDesktop Windows;
    MemoryKnownPlaces Places;
    MemoryShortcuts Launchers;
    Platform Services{Settings, Registry, Disk,    Programs, Clip,    Time,
                      nullptr,  &Windows, &Places, nullptr,  nullptr, &Launchers};
};

}  // namespace lv
