// tests/support/host_files.h
//
// Drives over real directories, as little as starting programs needs: reading, and paths there and back. Blind to case.

#pragma once

#include <filesystem>
#include <map>

#include "platform/files.h"

namespace lv {

class HostFiles : public Files {
  public:
    /// 'C' and its directory.
    void AddDrive(char letter, const std::filesystem::path& root) { drives_[letter] = root; }

    std::vector<std::string> Drives() override;
    Error ProbeDrive(std::string_view drive) override;
    bool FileExists(std::string_view path) override;
    bool DirectoryExists(std::string_view path) override;
    bool IsPlainFile(std::string_view path) override;
    Result<std::vector<DirectoryEntry>> List(std::string_view directory) override;
    Result<std::string> Read(std::string_view path) override;
    Result<std::unique_ptr<RandomAccessFile>> Open(std::string_view path) override;
    Error Replace(std::string_view path, std::string_view bytes) override;
    Error Copy(std::string_view from, std::string_view to) override;
    Error ReplaceOwn(std::string_view path, std::string_view bytes) override { return Replace(path, bytes); }
    Error CopyOwn(std::string_view from, std::string_view to) override { return Copy(from, to); }
    std::string LeadsAway(std::string_view, std::string_view) override { return {}; }
    bool CanWrite(std::string_view directory) override;
    Error Link(std::string_view target, std::string_view path) override;
    bool IsLinkTo(std::string_view path, std::string_view target) override;
    std::string LeadsInto(std::string_view path, std::string_view tree) override;
    Error Delete(std::string_view path) override;
    Error MakeDirectory(std::string_view path) override;
    Error RemoveDirectory(std::string_view path) override;
    std::string CurrentDirectory() override { return "C:\\"; }
    Error ChangeDrive(std::string_view drive) override;
    Error ChangeDirectory(std::string_view path) override;
    std::string ProgramDirectory() override { return "C:\\LORVANE"; }
    std::string ToHost(std::string_view path) override;
    std::string FromHost(std::string_view hostPath) override;
    std::string UserHome() override { return "C:\\"; }

  private:
    std::map<char, std::filesystem::path> drives_;
};

}  // namespace lv
