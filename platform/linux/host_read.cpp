#include "platform/linux/host_read.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <utility>

#include "platform/linux/errno_error.h"
#include "platform/linux/host_names.h"

namespace lv {

namespace {

class HostFile : public RandomAccessFile {
  public:
    HostFile(std::unique_ptr<FileDescriptor> file, std::uint64_t size) : file_(std::move(file)), size_(size) {}
    [[nodiscard]] std::uint64_t Size() const override { return size_; }

    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        if (offset >= size_) {
            return std::string();
        }
        std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset)), '\0');
        std::size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t got =
                pread(file_->Number(), bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
            if (got < 0 && errno != EINTR) {
                return ErrorOf(errno);
            }
            if (got == 0) {
                break;
            }
            done += got < 0 ? 0 : static_cast<std::size_t>(got);
        }
        bytes.resize(done);
        return bytes;
    }

  private:
    std::unique_ptr<FileDescriptor> file_;
    std::uint64_t size_;
};

bool IsDirectoryAt(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

Error ErrorOfFile(int number, const std::string& path) {
    const std::string directory = path.substr(0, path.rfind('/') + 1);
    return number == ENOENT && !IsDirectoryAt(directory) ? MakeError(error::kPathNotFound) : ErrorOf(number);
}

Error ErrorOfDirectory(int number) {
    switch (number) {
        case ENOENT:
            return MakeError(error::kPathNotFound);
        case EACCES:
        case EPERM:
            return MakeError(error::kPathFileAccess);
        default:
            return ErrorOf(number);
    }
}

bool IsDirectoryEntry(int directory, const dirent& entry) {
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) {
        return entry.d_type == DT_DIR;
    }
    struct stat info {};
    return fstatat(directory, entry.d_name, &info, 0) == 0 && S_ISDIR(info.st_mode);
}

}  // namespace

Result<std::unique_ptr<FileDescriptor>> OpenHostFile(const std::string& hostPath) {
    struct stat info {};
    if (stat(hostPath.c_str(), &info) != 0) {
        return ErrorOfFile(errno, hostPath);
    }
    if (!S_ISREG(info.st_mode)) {
        return MakeError(error::kPathFileAccess);
    }
    // Somebody may have put a pipe there since: O_NONBLOCK does not wait for its other end.
    auto file = std::make_unique<FileDescriptor>(open(hostPath.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (!file->IsOpen()) {
        return ErrorOfFile(errno, hostPath);
    }
    if (fstat(file->Number(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return MakeError(error::kPathFileAccess);
    }
    return file;
}

Result<std::string> ReadToEnd(int descriptor) {
    struct stat info {};
    std::string bytes;
    std::size_t done = 0;
    if (fstat(descriptor, &info) == 0 && info.st_size > 0) {
        bytes.resize(static_cast<std::size_t>(info.st_size) + 1);
    }
    while (true) {
        if (done == bytes.size()) {
            bytes.resize(done + std::max<std::size_t>(done, 4096));
        }
        const ssize_t got = read(descriptor, bytes.data() + done, bytes.size() - done);
        if (got < 0 && errno != EINTR) {
            return ErrorOf(errno);
        }
        if (got == 0) {
            bytes.resize(done);
            return bytes;
        }
        done += got < 0 ? 0 : static_cast<std::size_t>(got);
    }
}

Result<std::unique_ptr<RandomAccessFile>> OpenHostFileAnywhere(const std::string& hostPath) {
    auto file = OpenHostFile(hostPath);
    if (!file.Ok()) {
        return file.Fault;
    }
    struct stat info {};
    if (fstat(file.Value->Number(), &info) != 0) {
        return ErrorOf(errno);
    }
    return std::unique_ptr<RandomAccessFile>(
        std::make_unique<HostFile>(std::move(file.Value), static_cast<std::uint64_t>(info.st_size)));
}

Result<std::vector<DirectoryEntry>> ListHostDirectory(const std::string& hostPath) {
    const DirectoryStream open(opendir(hostPath.c_str()));
    if (!open) {
        return ErrorOfDirectory(errno);
    }
    std::vector<DirectoryEntry> entries = {{".", true}, {"..", true}};
    while (true) {
        errno = 0;
        const dirent* entry = readdir(open.get());
        if (entry == nullptr) {
            break;
        }
        const std::string_view hostName = entry->d_name;
        const auto name = NameFromHost(hostName);
        if (name && hostName != "." && hostName != "..") {
            entries.push_back({*name, IsDirectoryEntry(dirfd(open.get()), *entry)});
        }
    }
    if (errno != 0) {
        return ErrorOf(errno);
    }
    return entries;
}

}  // namespace lv
