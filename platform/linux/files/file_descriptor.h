// platform/linux/files/file_descriptor.h
//
// Open files and directories of the system, closed with their owner.

#pragma once

#include <dirent.h>
#include <unistd.h>

#include <memory>
#include <utility>

namespace lv {

class FileDescriptor {
  public:
    explicit FileDescriptor(int number) : number_(number) {}
    ~FileDescriptor() {
        if (number_ >= 0) {
            close(number_);
        }
    }
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor& operator=(FileDescriptor&&) = delete;

    [[nodiscard]] bool IsOpen() const { return number_ >= 0; }
    [[nodiscard]] int Number() const { return number_; }

  private:
    int number_;
};

struct DirectoryCloser {
    void operator()(DIR* directory) const { closedir(directory); }
};
using DirectoryStream = std::unique_ptr<DIR, DirectoryCloser>;

}  // namespace lv
