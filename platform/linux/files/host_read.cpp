#include "platform/linux/files/host_read.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <climits>
#include <string_view>
#include <utility>

#include "platform/file_bytes.h"
#include "platform/linux/files/errno_error.h"
#include "platform/linux/files/host_names.h"
#include "platform/linux/files/host_places.h"

namespace lv {

namespace {

/// What the call gave, made again after a signal.
Result<std::size_t> BytesRead(const auto& call) {
    while (true) {
        const ssize_t got = call();
        if (got >= 0) {
            return static_cast<std::size_t>(got);
        }
        if (errno != EINTR) {
            return ErrorOf(errno);
        }
    }
}

class HostFile : public RandomAccessFile {
  public:
    HostFile(std::unique_ptr<FileDescriptor> file, std::uint64_t size) : file_(std::move(file)), size_(size) {}
    [[nodiscard]] std::uint64_t Size() const override { return size_; }

    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        return ReadRange(size_, offset, count, [this](char* room, std::size_t most, std::uint64_t at) {
            return BytesRead([&] { return pread(file_->Number(), room, most, static_cast<off_t>(at)); });
        });
    }

  private:
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

// Gives each entry that has a name here to `take`: the directory, the entry, the name; the others to `passOver`.
Error ReadHostDirectory(const std::string& hostPath, const auto& take, const auto& passOver) {
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
        } else if (!name) {
            passOver(*entry);
        }
    }
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
    struct stat info {};
    const bool sized = fstat(descriptor, &info) == 0 && info.st_size > 0;
    return ReadWhole(sized ? static_cast<std::uint64_t>(info.st_size) : 0,
                     [descriptor](char* room, std::size_t most, std::uint64_t) {
                         return BytesRead([&] { return read(descriptor, room, most); });
                     });
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

Result<std::vector<DirectoryEntry>> ListHostDirectory(const std::string& hostPath, std::size_t* nameless) {
    std::vector<DirectoryEntry> entries = {{".", true}, {"..", true}};
    std::size_t passedOver = 0;
    const Error failed = ReadHostDirectory(
        hostPath,
        [&](int directory, const dirent& entry, std::string name) {
            entries.push_back(EntryOf(directory, entry, std::move(name)));
        },
        [&](const dirent& entry) { passedOver += entry.d_type == DT_DIR && entry.d_name[0] != '.' ? 1 : 0; });
    if (nameless != nullptr) {
        *nameless = passedOver;
    }
    return failed ? Result<std::vector<DirectoryEntry>>(failed) : entries;
}

Result<std::vector<LinkedEntry>> ListHostLinks(const std::string& hostPath, const std::string& tree) {
    std::array<char, PATH_MAX> room{};
    std::vector<LinkedEntry> entries;
    const Error failed = ReadHostDirectory(
        hostPath,
        [&](int directory, const dirent& entry, std::string name) {
            const bool mayBeLink = entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN;
            const ssize_t length = mayBeLink ? readlinkat(directory, entry.d_name, room.data(), room.size()) : -1;
            LinkedEntry& linked = entries.emplace_back(LinkedEntry{EntryOf(directory, entry, std::move(name)), {}});
            linked.IsElsewhere = length >= 0;
            if (length >= 0 && !linked.IsDirectory) {
                linked.LeadsInto = PathInside({room.data(), static_cast<std::size_t>(length)}, tree);
                linked.IsGone = faccessat(directory, entry.d_name, F_OK, 0) != 0;
            }
        },
        [](const dirent&) {});
    return failed ? Result<std::vector<LinkedEntry>>(failed) : entries;
}

}  // namespace lv
