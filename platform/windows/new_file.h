// platform/windows/new_file.h
//
// The name that a file has while it is made, ".lv_666_<process>_<number>" beside its place, and what becomes of those
// whose process was ended over them.

#pragma once

#include <optional>
#include <string>

#include "platform/windows/file_handle.h"

namespace lv {

/// Nobody else opens or deletes it while it is open; gone when the object goes, unless it has moved.
class NewFile {
  public:
    /// `directory` ends in "\".
    explicit NewFile(const std::wstring& directory);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    [[nodiscard]] bool IsOpen() const { return handle_.has_value(); }
    [[nodiscard]] DWORD Failed() const { return failed_; }
    [[nodiscard]] HANDLE Get() const { return handle_->Get(); }
    [[nodiscard]] const std::wstring& Path() const { return path_; }
    bool Close() { return handle_->Close(); }

    /// One step: the file system replaces the name in one of its own transactions.
    DWORD MoveTo(const std::wstring& target);

  private:
    std::wstring path_;
    std::optional<FileHandle> handle_;
    DWORD failed_ = ERROR_SUCCESS;
};

/// Removes the directory's new files of processes that are gone.
void RemoveLeftovers(const std::wstring& directory);

}  // namespace lv
