#include "platform/linux/files/host_write.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/code_page.h"
#include "platform/linux/files/errno_error.h"
#include "platform/linux/files/host_names.h"
#include "platform/linux/files/host_read.h"

namespace lv {

namespace {

bool IsZero(std::string_view bytes) {
    return bytes.empty() || (bytes.front() == '\0' && bytes.substr(1) == bytes.substr(0, bytes.size() - 1));
}

// A file of holes takes no more of the disk, and hardly more time, than its bytes do.
int CopyAll(int from, int to) {
    std::array<char, 65536> buffer{};
    for (std::uint64_t most = kLargestWholeFile; most >= buffer.size(); most -= buffer.size()) {
        const ssize_t got = read(from, buffer.data(), buffer.size());
        if (got == 0) {
            const off_t end = lseek(to, 0, SEEK_CUR);
            return end >= 0 && ftruncate(to, end) == 0 ? 0 : errno;
        }
        if (got < 0 && errno != EINTR) {
            return errno;
        }
        const std::string_view bytes(buffer.data(), got < 0 ? 0 : static_cast<std::size_t>(got));
        if (bytes.size() == buffer.size() && IsZero(bytes)) {
            if (lseek(to, got, SEEK_CUR) < 0) {
                return errno;
            }
        } else if (const int failed = WriteAll(to, bytes)) {
            return failed;
        }
    }
    return EFBIG;  // it grows while it is read
}

}  // namespace

Error PutHostFile(const HostPlace& place, Whose whose, unsigned mode, const FileFiller& fill) {
    if (place.EndsInSeparator || place.Path.Parts.empty()) {
        return MakeError(error::kPathFileAccess);
    }
    if (whose == Whose::kUsers) {
        return ReplaceHostFile(place.Host, mode, fill);
    }
    const std::string& name = place.Path.Parts.back();
    const std::string directory = place.Host.substr(0, place.Host.rfind('/'));
    return ReplaceOwnHostFile(directory + "/" + ToUtf8(name), OtherSpellings(directory, name), fill);
}

Error CopyHostFile(const HostPlace& from, const HostPlace& to, Whose whose) {
    const auto file = OpenHostFile(from.Host);
    if (!file.Ok()) {
        return file.Fault;
    }
    struct stat info {};
    if (fstat(file.Value->Number(), &info) != 0) {
        return ErrorOf(errno);
    }
    if (static_cast<std::uint64_t>(info.st_size) > kLargestWholeFile) {
        return MakeTooLarge(kLargestWholeFile);
    }
    const unsigned mode = 0666 | (info.st_mode & 0111);
    return PutHostFile(to, whose, mode, [&](int made) { return CopyAll(file.Value->Number(), made); });
}

Error LinkHostFile(const HostPlace& file, const HostPlace& place) {
    struct stat info {};
    if (stat(file.Host.c_str(), &info) != 0) {
        return ErrorOf(errno);
    }
    if (!S_ISREG(info.st_mode) || place.EndsInSeparator || place.Path.Parts.empty()) {
        return MakeError(error::kPathFileAccess);
    }
    if (lstat(place.Host.c_str(), &info) == 0) {
        return MakeError(error::kPathFileAccess);
    }
    // What is not there keeps its spelling.
    if (symlink(LinkedHostPath(file).c_str(), place.Host.c_str()) == 0) {
        return {};
    }
    return errno == ENOENT ? MakeError(error::kPathNotFound) : ErrorOf(errno);
}

}  // namespace lv
