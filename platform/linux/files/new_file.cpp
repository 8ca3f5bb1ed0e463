#include "platform/linux/files/new_file.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <optional>
#include <string_view>

#include "platform/linux/files/file_descriptor.h"

namespace lv {

namespace {

constexpr std::string_view kStart = ".lv_666_";
constexpr int kMostNames = 1000;  // of one process in one directory

// The process that such a name tells of.
std::optional<pid_t> WriterOf(std::string_view name) {
    if (!name.starts_with(kStart)) {
        return std::nullopt;
    }
    name.remove_prefix(kStart.size());
    const char* const end = name.data() + name.size();
    pid_t writer = 0;
    unsigned number = 0;
    const auto [at, failed] = std::from_chars(name.data(), end, writer);
    if (failed != std::errc() || writer <= 0 || at == end || *at != '_') {
        return std::nullopt;
    }
    const auto [rest, unread] = std::from_chars(at + 1, end, number);
    return unread == std::errc() && rest == end ? std::optional(writer) : std::nullopt;
}

// This process makes one file at a time: one of its number that is there before it begins is an older process's.
bool IsGone(pid_t writer) {
    return writer == getpid() || (kill(writer, 0) != 0 && errno == ESRCH);
}

bool MayGo(int directory, const char* name) {
    struct stat info {};
    if (fstatat(directory, name, &info, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(info.st_mode) ||
        info.st_uid != geteuid()) {
        return false;
    }
    const FileDescriptor file(openat(directory, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return file.IsOpen() && flock(file.Number(), LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

NewFile::NewFile(const std::string& directory, unsigned mode) {
    const std::string start = directory + "/" + std::string(kStart) + std::to_string(getpid()) + "_";
    for (int i = 0; i < kMostNames && number_ < 0; ++i) {
        path_ = start + std::to_string(i);
        number_ = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
        if (number_ < 0 && errno != EEXIST) {
            break;
        }
    }
    if (number_ < 0) {
        path_.clear();
        return;
    }
    (void)flock(number_, LOCK_EX | LOCK_NB);  // some file systems have no locks
}

NewFile::~NewFile() {
    if (number_ >= 0) {
        close(number_);
    }
    if (!path_.empty()) {
        unlink(path_.c_str());
    }
}

int NewFile::MoveTo(const std::string& target) {
    const int closed = close(number_);
    number_ = -1;
    if (closed != 0 || rename(path_.c_str(), target.c_str()) != 0) {
        return errno;
    }
    path_.clear();
    return 0;
}

void RemoveLeftovers(const std::string& directory) {
    const DirectoryStream open_(opendir(directory.c_str()));
    if (!open_) {
        return;
    }
    while (const dirent* entry = readdir(open_.get())) {
        const auto writer = WriterOf(entry->d_name);
        if (writer && IsGone(*writer) && MayGo(dirfd(open_.get()), entry->d_name)) {
            unlinkat(dirfd(open_.get()), entry->d_name, 0);
        }
    }
}

}  // namespace lv
