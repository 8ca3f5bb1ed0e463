#include "platform/linux/replace_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <optional>

#include "platform/linux/errno_error.h"
#include "platform/linux/file_descriptor.h"

namespace lv {

namespace {

constexpr int kMostLinks = 40;  // as many as the system itself follows

std::string DirectoryOf(const std::string& path) {
    const std::size_t at = path.rfind('/');
    if (at == std::string::npos) {
        return ".";
    }
    return at == 0 ? "/" : path.substr(0, at);
}

// Where the links at the end of the path lead, whether or not anything is there.
std::optional<std::string> FollowLinks(std::string path) {
    for (int i = 0; i < kMostLinks; ++i) {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = readlink(path.c_str(), target.data(), target.size());
        if (length < 0) {
            return path;
        }
        const std::string_view text(target.data(), static_cast<std::size_t>(length));
        path = text.starts_with('/') ? std::string(text) : DirectoryOf(path) + "/" + std::string(text);
    }
    return std::nullopt;
}

// The name that the new file has until it takes its place.
class NewFile {
  public:
    NewFile(const std::string& directory, unsigned mode) {
        const std::string start = directory + "/.lv_666_" + std::to_string(getpid()) + "_";
        for (int i = 0; i < 1000 && number_ < 0; ++i) {
            path_ = start + std::to_string(i);
            number_ = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
            if (number_ < 0 && errno != EEXIST) {
                break;
            }
        }
        if (number_ < 0) {
            path_.clear();
        }
    }
    ~NewFile() {
        if (number_ >= 0) {
            close(number_);
        }
        if (!path_.empty()) {
            unlink(path_.c_str());
        }
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    [[nodiscard]] bool IsOpen() const { return number_ >= 0; }
    [[nodiscard]] int Number() const { return number_; }

    int MoveTo(const std::string& target) {
        const int closed = close(number_);
        number_ = -1;
        if (closed != 0 || rename(path_.c_str(), target.c_str()) != 0) {
            return errno;
        }
        path_.clear();
        return 0;
    }

  private:
    std::string path_;
    int number_ = -1;
};

int KeepOwnerAndMode(int descriptor, const struct stat& old) {
    // Another's file that may be written stays theirs if the system lets it.
    if (fchown(descriptor, old.st_uid, old.st_gid) != 0 && errno != EPERM && errno != EINVAL) {
        return errno;
    }
    return fchmod(descriptor, old.st_mode & 07777) == 0 || errno == EPERM ? 0 : errno;
}

// Some file systems cannot sync a directory; they have said all they can say.
int SyncDirectory(const std::string& directory) {
    const FileDescriptor open_(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return open_.IsOpen() && fsync(open_.Number()) != 0 && errno == EIO ? EIO : 0;
}

Error ErrorOfDirectory(int number) {
    return number == ENOENT ? MakeError(error::kPathNotFound) : ErrorOf(number);
}

}  // namespace

int WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return 0;
}

Error ReplaceHostFile(const std::string& hostPath, unsigned mode, const FileFiller& fill) {
    const auto target = FollowLinks(hostPath);
    if (!target) {
        return MakeError(error::kPathNotFound);
    }
    struct stat old {};
    const bool exists = stat(target->c_str(), &old) == 0;
    if (exists && (!S_ISREG(old.st_mode) || faccessat(AT_FDCWD, target->c_str(), W_OK, AT_EACCESS) != 0)) {
        return MakeError(error::kPathFileAccess);
    }
    const std::string directory = DirectoryOf(*target);
    NewFile made(directory, mode);
    if (!made.IsOpen()) {
        return ErrorOfDirectory(errno);
    }
    int failed = fill(made.Number());
    if (failed == 0 && exists) {
        failed = KeepOwnerAndMode(made.Number(), old);
    }
    if (failed == 0 && fsync(made.Number()) != 0) {
        failed = errno;
    }
    if (failed == 0) {
        failed = made.MoveTo(*target);
    }
    return ErrorOf(failed != 0 ? failed : SyncDirectory(directory));
}

}  // namespace lv
