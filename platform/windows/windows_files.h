// platform/windows/windows_files.h
//
// Files under the system's own paths: drives, and the shares of a network.

#pragma once

#include <optional>
#include <string>

#include "platform/files.h"
#include "platform/windows/full_path.h"
#include "platform/windows/said_path.h"

namespace lv {

/// The current directory is the program's own: it starts as the process's, which is never changed; as "C:\" if that
/// cannot be said.
class WindowsFiles : public Files {
  public:
    WindowsFiles();
    /// The same for a program in that directory, on disks with these short names.
    WindowsFiles(std::wstring programDirectory, ShortNames names);

    std::vector<std::string> Drives() override;
    Error ProbeDrive(std::string_view drive) override;
    bool FileExists(std::string_view path) override;
    bool DirectoryExists(std::string_view path) override;
    bool IsPlainFile(std::string_view path) override;
    Result<std::vector<DirectoryEntry>> List(std::string_view directory) override;
    Result<WalkedDirectory> ListForWalk(std::string_view directory) override;
    Result<std::string> Read(std::string_view path) override;
    Result<std::unique_ptr<RandomAccessFile>> Open(std::string_view path) override;
    Error Replace(std::string_view path, std::string_view bytes) override;
    Error Copy(std::string_view from, std::string_view to) override;
    /// The user's rights to the directory are what keeps others from reading the file.
    Error ReplaceOwn(std::string_view path, std::string_view bytes) override;
    Error CopyOwn(std::string_view from, std::string_view to) override;
    std::string LeadsAway(std::string_view path, std::string_view tree) override;
    bool CanWrite(std::string_view directory) override;
    /// A hard link: both names are the file's own, and it goes with the last of them.
    Error Link(std::string_view target, std::string_view path) override;
    bool IsLinkTo(std::string_view path, std::string_view target) override;
    /// Always empty: neither of a file's names is the first.
    std::string LeadsInto(std::string_view, std::string_view) override { return {}; }
    Error Delete(std::string_view path) override;
    Error MakeDirectory(std::string_view path) override;
    Error RemoveDirectory(std::string_view path) override;
    std::string CurrentDirectory() override { return PutTogether(current_); }
    Error ChangeDrive(std::string_view drive) override;
    Error ChangeDirectory(std::string_view path) override;
    /// If it cannot be said, by a name that is only known here: "\\\\?\\lorvane3d".
    std::string ProgramDirectory() override;

    /// The whole path; nothing is looked up.
    std::string ToHost(std::string_view path) override;

    /// With short names for those that have no code page 1252 form; empty if one has none.
    std::string FromHost(std::string_view hostPath) override;
    Error WhyNotFromHost(std::string_view hostPath) override;
    std::string UserHome() override;

  private:
    struct Place {
        FullPath Path;
        std::wstring System;
    };
    [[nodiscard]] std::wstring System(const FullPath& path) const;
    [[nodiscard]] std::optional<Place> Find(std::string_view path) const;
    [[nodiscard]] Result<Place> FindNamed(std::string_view path) const;
    [[nodiscard]] Result<Place> FindToWrite(std::string_view path) const;

    std::wstring program_;  // the directory, without the prefix of long paths
    ShortNames names_;
    FullPath current_;
};

}  // namespace lv
