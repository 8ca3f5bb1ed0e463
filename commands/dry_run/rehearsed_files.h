// commands/dry_run/rehearsed_files.h
//
// The disk of a dry run: what is written, linked and deleted is kept in memory and read back from there, and the disk
// below stays as it is.

#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace lv {

/// One change that was not made, by its file.
struct RehearsedChange {
    enum class Sort { Written, Linked, Deleted, DirectoryMade, DirectoryRemoved };
    Sort What = Sort::Written;
    std::string Path;  // as it was spelled
    std::string Bytes{};
};

class RehearsedFiles : public Files {
  public:
    /// `below` outlives it. Its current directory is put back at the end.
    explicit RehearsedFiles(Files& below);
    ~RehearsedFiles() override;
    RehearsedFiles(const RehearsedFiles&) = delete;
    RehearsedFiles& operator=(const RehearsedFiles&) = delete;

    /// The last change of each file, in the order of the first ones.
    [[nodiscard]] std::vector<RehearsedChange> Changes() const;

    std::vector<std::string> Drives() override { return below_.Drives(); }
    Error ProbeDrive(std::string_view drive) override { return below_.ProbeDrive(drive); }
    bool FileExists(std::string_view path) override;
    bool DirectoryExists(std::string_view path) override;
    bool IsPlainFile(std::string_view path) override;
    Result<std::vector<DirectoryEntry>> List(std::string_view directory) override { return below_.List(directory); }
    Result<WalkedDirectory> ListForWalk(std::string_view directory) override { return below_.ListForWalk(directory); }
    Result<std::string> Read(std::string_view path) override;
    Result<std::unique_ptr<RandomAccessFile>> Open(std::string_view path) override;
    Error Replace(std::string_view path, std::string_view bytes) override { return Write(path, bytes); }
    Error Copy(std::string_view from, std::string_view to) override;
    Error ReplaceOwn(std::string_view path, std::string_view bytes) override { return Write(path, bytes); }
    Error CopyOwn(std::string_view from, std::string_view to) override { return Copy(from, to); }
    std::string LeadsAway(std::string_view path, std::string_view tree) override {
        return below_.LeadsAway(path, tree);
    }
    bool CanWrite(std::string_view directory) override { return below_.CanWrite(directory); }
    Error Link(std::string_view target, std::string_view path) override;
    bool IsLinkTo(std::string_view path, std::string_view target) override;
    std::string LeadsInto(std::string_view path, std::string_view tree) override {
        return below_.LeadsInto(path, tree);
    }
    Result<std::vector<LinkedEntry>> ListLinks(std::string_view directory, std::string_view tree) override {
        return below_.ListLinks(directory, tree);
    }
    bool StandIn(std::string_view path, std::string_view real) override { return below_.StandIn(path, real); }
    Error Delete(std::string_view path) override;
    Error MakeDirectory(std::string_view path) override;
    Error RemoveDirectory(std::string_view path) override;
    std::string CurrentDirectory() override { return below_.CurrentDirectory(); }
    Error ChangeDrive(std::string_view drive) override { return below_.ChangeDrive(drive); }
    Error ChangeDirectory(std::string_view path) override { return below_.ChangeDirectory(path); }
    std::string ProgramDirectory() override { return below_.ProgramDirectory(); }
    std::string ToHost(std::string_view path) override { return below_.ToHost(path); }
    std::string FromHost(std::string_view hostPath) override { return below_.FromHost(hostPath); }
    Error WhyNotFromHost(std::string_view hostPath) override { return below_.WhyNotFromHost(hostPath); }
    std::string UserHome() override { return below_.UserHome(); }
    std::string FromTyped(std::string_view typed) override { return below_.FromTyped(typed); }

  private:
    struct Kept {
        RehearsedChange Change;
        std::size_t Order = 0;
    };

    [[nodiscard]] std::string KeyOf(std::string_view path);
    const RehearsedChange* Find(std::string_view path);
    Error Write(std::string_view path, std::string_view bytes);
    void Keep(RehearsedChange change);

    Files& below_;
    std::string current_;
    std::map<std::string, Kept> changes_;  // by the full path in lower case
};

}  // namespace lv
