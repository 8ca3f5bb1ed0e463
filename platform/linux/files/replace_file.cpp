#include "platform/linux/files/replace_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/linux/files/errno_error.h"
#include "platform/linux/files/file_descriptor.h"
#include "platform/linux/files/host_links.h"
#include "platform/linux/files/new_file.h"

namespace lv {

namespace {

std::string DirectoryOf(const std::string& path) {
    const std::size_t at = path.rfind('/');
    if (at == std::string::npos) {
        return ".";
    }
    return at == 0 ? "/" : path.substr(0, at);
}

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

bool MayBeReplaced(const std::string& path, const struct stat& old) {
    return S_ISREG(old.st_mode) && faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

// For a file of the program's own.
bool MayBeRemoved(const std::string& path, const struct stat& old) {
    return !S_ISDIR(old.st_mode) && (!S_ISREG(old.st_mode) || MayBeReplaced(path, old));
}

// The new file at exactly this name, with the old one's owner and mode if there is one to take after.
Error Put(const std::string& target, unsigned mode, const struct stat* old, const FileFiller& fill) {
    const std::string directory = DirectoryOf(target);
    RemoveLeftovers(directory);
    NewFile made(directory, mode);
    if (!made.IsOpen()) {
        return ErrorOfDirectory(errno);
    }
    int failed = fill(made.Number());
    if (failed == 0 && old != nullptr) {
        failed = KeepOwnerAndMode(made.Number(), *old);
    }
    if (failed == 0 && fsync(made.Number()) != 0) {
        failed = errno;
    }
    if (failed == 0) {
        failed = made.MoveTo(target);
    }
    return ErrorOf(failed != 0 ? failed : SyncDirectory(directory));
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
    if (exists && !MayBeReplaced(*target, old)) {
        return MakeError(error::kPathFileAccess);
    }
    // What nobody else could read is not shown to them while it is written either.
    return Put(*target, exists ? mode & old.st_mode : mode, exists ? &old : nullptr, fill);
}

Error ReplaceOwnHostFile(const std::string& hostPath, const std::vector<std::string>& others, const FileFiller& fill) {
    for (const std::string& other : others) {
        struct stat old {};
        if (lstat(other.c_str(), &old) == 0 && !MayBeRemoved(other, old)) {
            return MakeError(error::kPathFileAccess);
        }
    }
    if (Error failed = ReplaceOwnHostFile(hostPath, fill)) {
        return failed;
    }
    for (const std::string& other : others) {
        if (unlink(other.c_str()) != 0 && errno != ENOENT) {
            return ErrorOf(errno);
        }
    }
    return {};
}

Error ReplaceOwnHostFile(const std::string& hostPath, const FileFiller& fill) {
    struct stat old {};
    const bool exists = lstat(hostPath.c_str(), &old) == 0;
    if (exists && !MayBeRemoved(hostPath, old)) {
        return MakeError(error::kPathFileAccess);
    }
    return Put(hostPath, 0600, nullptr, fill);
}

}  // namespace lv
