// platform/windows/file_handle.h
//
// A system handle that closes itself.

#pragma once

#include "platform/windows/system.h"

namespace lv {

class FileHandle {
  public:
    explicit FileHandle(HANDLE handle) : handle_(handle) {}
    ~FileHandle() { Close(); }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    [[nodiscard]] bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }
    [[nodiscard]] HANDLE Get() const { return handle_; }

    bool Close() {
        const bool closed = !IsOpen() || CloseHandle(handle_) != 0;
        handle_ = INVALID_HANDLE_VALUE;
        return closed;
    }

  private:
    HANDLE handle_;
};

}  // namespace lv
