#include "platform/linux/files/host_read.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <string_view>
#include <utility>

#include "platform/linux/files/errno_error.h"
#include "platform/linux/files/host_names.h"
#include "platform/linux/files/host_places.h"

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
        try {
            return ReadAt(offset, static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset)));
        } catch (const std::exception& thrown) {
            return ErrorOfException(thrown);
        }
    }

  private:
    Result<std::string> ReadAt(std::uint64_t offset, std::size_t count) {
        std::string bytes(count, '\0');
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

    std::unique_ptr<FileDescriptor> file_;
    std::uint64_t size_;
};

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

// A link that leads nowhere is taken for a file.
DirectoryEntry EntryOf(int directory, const dirent& entry, std::string name) {
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) {
        const bool isDirectory = entry.d_type == DT_DIR;
        return {std::move(name), isDirectory, !isDirectory && entry.d_type != DT_REG};
    }
    struct stat info {};
    if (fstatat(directory, entry.d_name, &info, 0) != 0) {
        return {std::move(name)};
    }
    return {std::move(name), S_ISDIR(info.st_mode), !S_ISDIR(info.st_mode) && !S_ISREG(info.st_mode)};
}

// Gives each entry that has a name here to `take`: the directory, the entry, the name.
Error ReadHostDirectory(const std::string& hostPath, const auto& take) {
    const DirectoryStream open(opendir(hostPath.c_str()));
    if (!open) {
        return ErrorOfDirectory(errno);
    }
    while (true) {
        errno = 0;
        const dirent* entry = readdir(open.get());
        if (entry == nullptr) {
            return errno == 0 ? Error() : ErrorOf(errno);
        }
        const std::string_view hostName = entry->d_name;
        auto name = NameFromHost(hostName);
        if (name && hostName != "." && hostName != "..") {
            take(dirfd(open.get()), *entry, *std::move(name));
        }
    }
}

constexpr std::size_t kFirstBlock = 4096;

Result<std::string> ReadInSteps(int descriptor) {
    struct stat info {};
    const bool sized = fstat(descriptor, &info) == 0 && info.st_size > 0;
    const auto size = sized ? static_cast<std::uint64_t>(info.st_size) : 0;
    std::string bytes;
    std::size_t done = 0;
    while (size <= kLargestWholeFile && done <= kLargestWholeFile) {
        if (done == bytes.size()) {
            bytes.resize(done == 0 && sized ? static_cast<std::size_t>(size) + 1 : done + std::max(done, kFirstBlock));
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
    return MakeTooLarge(kLargestWholeFile);
}

}  // namespace

bool IsDirectoryAt(const std::string& hostPath) {
    struct stat info {};
    return stat(hostPath.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

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
    try {
        return ReadInSteps(descriptor);
    } catch (const std::exception& thrown) {
        return ErrorOfException(thrown);
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
    std::vector<DirectoryEntry> entries = {{".", true}, {"..", true}};
    const Error failed = ReadHostDirectory(hostPath, [&](int directory, const dirent& entry, std::string name) {
        entries.push_back(EntryOf(directory, entry, std::move(name)));
    });
    return failed ? Result<std::vector<DirectoryEntry>>(failed) : entries;
}

Result<std::vector<LinkedEntry>> ListHostLinks(const std::string& hostPath, const std::string& tree) {
    std::array<char, PATH_MAX> room{};
    std::vector<LinkedEntry> entries;
    const Error failed = ReadHostDirectory(hostPath, [&](int directory, const dirent& entry, std::string name) {
        const bool mayBeLink = entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN;
        const ssize_t length = mayBeLink ? readlinkat(directory, entry.d_name, room.data(), room.size()) : -1;
        LinkedEntry& linked = entries.emplace_back(LinkedEntry{EntryOf(directory, entry, std::move(name)), {}});
        linked.IsElsewhere = length >= 0 && linked.IsDirectory;
        if (length >= 0 && !linked.IsDirectory) {
            linked.LeadsInto = PathInside({room.data(), static_cast<std::size_t>(length)}, tree);
            linked.IsGone = faccessat(directory, entry.d_name, F_OK, 0) != 0;
        }
    });
    return failed ? Result<std::vector<LinkedEntry>>(failed) : entries;
}

}  // namespace lv
