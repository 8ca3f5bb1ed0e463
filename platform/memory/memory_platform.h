// platform/memory/memory_platform.h
//
// A whole platform in memory, for tests and benchmarks: it keeps the promises of the interfaces and lets a test
// refuse what it wants refused.

#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "platform/platform.h"

namespace lv {

class MemorySettings : public SettingsBacking {
  public:
    std::optional<std::string> Read(std::string_view application, std::string_view section,
                                    std::string_view key) override;
    Error Write(std::string_view application, std::string_view section, std::string_view key,
                std::string_view value) override;
    Error EndGroup() override { return RefuseGroups; }
    void WhenLocked(LockedQuestion question) override { question_ = std::move(question); }

    /// Each write, as "section|key|value", in order.
    std::vector<std::string> Log;
    Error RefuseWrites;
    Error RefuseGroups;  // at their end
    Error Locked;        // another program holds the store: each write asks, and a question may clear this
    [[nodiscard]] std::size_t Count() const { return values_.size(); }

  private:
    std::map<std::string, std::string> values_;
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

/// A tree of files. Entries are listed in the order they were made.
class MemoryFiles : public Files {
  public:
    /// Makes the drive, and below it each directory of the path.
    void AddDirectory(std::string_view path);
    void AddFile(std::string_view path, std::string_view bytes = "");
    void AddDrive(std::string_view drive);
    /// A directory that is another one by a second path.
    void AddLink(std::string_view path, std::string_view target);
    /// The same for a file, which need not be there.
    void AddFileLink(std::string_view path, std::string_view target);
    /// A pipe, a socket or a device.
    void AddDevice(std::string_view path);
    /// A file that begins with these bytes, and goes on with zeros to its size.
    void AddSparseFile(std::string_view path, std::string_view bytes, std::uint64_t size);

    std::vector<std::string> Drives() override;
    Error ProbeDrive(std::string_view drive) override;
    bool FileExists(std::string_view path) override;
    bool DirectoryExists(std::string_view path) override;
    Result<std::vector<DirectoryEntry>> List(std::string_view directory) override;
    Result<WalkedDirectory> ListForWalk(std::string_view directory) override;
    Result<std::string> Read(std::string_view path) override;
    Result<std::unique_ptr<RandomAccessFile>> Open(std::string_view path) override;
    Error Replace(std::string_view path, std::string_view bytes) override;
    Error Copy(std::string_view from, std::string_view to) override;
    Error ReplaceOwn(std::string_view path, std::string_view bytes) override;
    Error CopyOwn(std::string_view from, std::string_view to) override;
    std::string LeadsAway(std::string_view path, std::string_view tree) override;
    Error Delete(std::string_view path) override;
    Error MakeDirectory(std::string_view path) override;
    Error RemoveDirectory(std::string_view path) override;
    std::string CurrentDirectory() override { return current_; }
    Error ChangeDrive(std::string_view drive) override;
    Error ChangeDirectory(std::string_view path) override;
    std::string ProgramDirectory() override { return "C:\\LORVANE"; }
    std::string ToHost(std::string_view path) override;
    std::string FromHost(std::string_view hostPath) override;
    std::string UserHome() override { return Home; }
    std::string FromTyped(std::string_view typed) override;

    /// The bytes of a file that a test knows to be there; "(none)" if it is not.
    std::string Bytes(std::string_view path);

    std::string Home = "C:\\HOME";
    std::set<std::string> Private;         // by lower-case path: what its owner alone may read
    std::set<std::string> DrivesNotReady;  // "D:"
    std::set<std::string> Unreadable;      // by lower-case path: listing the directory is error 75
    std::set<std::string> RefusedDeletes;  // by lower-case path: deleting the file is error 70
    std::vector<std::string> Listed;       // each directory that was listed, in order
    std::map<std::string, Error> Refused;  // by lower-case path: Replace and Copy onto it fail with this
    std::vector<std::string> Log;          // "replace C:\...", "delete C:\...", "copy A -> B", in order

  private:
    struct Node {
        std::string Name;  // full path as spelled when made
        std::string Bytes;
        bool IsDirectory = false;
        std::size_t Order = 0;
        bool IsDevice = false;
        std::uint64_t Size = 0;  // where it is more than there are bytes
    };
    [[nodiscard]] std::string Key(std::string_view path) const;
    [[nodiscard]] std::string KeyOfLink(std::string_view path) const;
    Error Put(const std::string& key, std::string_view path, std::string_view bytes);
    Result<const Node*> FindFile(std::string_view path);
    Node* Find(std::string_view path);

    std::map<std::string, Node> nodes_;
    std::map<std::string, std::string> links_;
    std::string current_ = "C:\\";
    std::size_t made_ = 0;
};

class MemoryProcesses : public Processes {
  public:
    using Processes::StartBatch;
    LineReader ReaderOf(std::string_view, std::string_view, std::string_view) override { return Reader; }
    Error StartBatch(std::string_view directory, std::string_view name, const BatchCommand& known) override;
    Error StartProgram(std::string_view program, const std::vector<std::string>& arguments) override;

    Error StartHelpViewer(std::string_view path) override;

    std::vector<std::string> Started;  // "C:\QUAKE\lv_666.bat", or the program and its arguments joined by "|"
    BatchCommand Known;                // of the last batch
    LineReader Reader = LineReader::kNobody;
    Error Refuse;
    bool HasHelpViewer = false;  // then it is "winhlp32.exe"
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

/// Windows that a test puts there.
class MemoryDesktop : public Desktop {
  public:
    struct Window {
        std::string Title;
        std::string Class;
        bool Iconic = false;
        bool ClassKnown = true;
    };

    std::vector<TopWindow> EnumWindows() override;
    std::string WindowTitle(WindowHandle window) override;
    bool IsIconic(WindowHandle window) override;
    void OpenIcon(WindowHandle window) override;
    bool SetForegroundWindow(WindowHandle window) override;
    void CloseWindow(WindowHandle window) override;
    Error SendKeys(std::string_view keys) override;

    std::map<WindowHandle, Window> Windows;  // enumerated in the order of the handles
    bool RefuseForeground = false;
    Error RefuseKeys;
    std::function<void(std::string_view keys)> OnKeys;  // the program that has the keys

    /// What was done, in order: "open 7", "front 7", "keys %s", "close 7".
    std::vector<std::string> Log;
};

struct MemoryPlatform {
    MemorySettings Settings;
    MemoryRegistry Registry;
    MemoryFiles Disk;
    MemoryProcesses Programs;
    MemoryClipboard Clip;
    MemoryClock Time;
    MemoryDesktop Windows;
    Platform Services{Settings, Registry, Disk, Programs, Clip, Time, nullptr, &Windows};
};

}  // namespace lv
