// What linux_files.h promises of writing.

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/code_page.h"
#include "platform/linux/errno_error.h"
#include "platform/linux/host_links.h"
#include "platform/linux/host_read.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/user_directories.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

bool IsDirectoryAt(const std::string& hostPath) {
    struct stat info {};
    return stat(hostPath.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

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

Error LinuxFiles::Replace(std::string_view path, std::string_view bytes) {
    return PutFile(path, Whose::kUsers, 0666, [bytes](int file) { return WriteAll(file, bytes); });
}

Error LinuxFiles::ReplaceOwn(std::string_view path, std::string_view bytes) {
    return PutFile(path, Whose::kOurs, 0600, [bytes](int file) { return WriteAll(file, bytes); });
}

Error LinuxFiles::Copy(std::string_view from, std::string_view to) {
    return CopyFile(from, to, Whose::kUsers);
}

Error LinuxFiles::CopyOwn(std::string_view from, std::string_view to) {
    return CopyFile(from, to, Whose::kOurs);
}

Error LinuxFiles::PutFile(std::string_view path, Whose whose, unsigned mode, const FileFiller& fill) const {
    const auto place = Find(path);
    if (!place) {
        return MakeError(error::kPathNotFound);
    }
    if (EndsInSeparator(path) || place->Path.Parts.empty()) {
        return MakeError(error::kPathFileAccess);
    }
    if (whose == Whose::kUsers) {
        return ReplaceHostFile(place->Host, mode, fill);
    }
    const std::string& name = place->Path.Parts.back();
    const std::string directory = place->Host.substr(0, place->Host.rfind('/'));
    return ReplaceOwnHostFile(directory + "/" + ToUtf8(name), OtherSpellings(directory, name), fill);
}

Error LinuxFiles::CopyFile(std::string_view from, std::string_view to, Whose whose) const {
    const auto source = Find(from);
    if (!source || !Find(to)) {
        return MakeError(error::kPathNotFound);
    }
    const auto file = OpenHostFile(source->Host);
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
    // A copied program can be run; a copy of what is read-only can be written again.
    const unsigned mode = 0666 | (info.st_mode & 0111);
    return PutFile(to, whose, mode, [&](int made) { return CopyAll(file.Value->Number(), made); });
}

std::string LinuxFiles::LeadsAway(std::string_view path, std::string_view tree) {
    const auto place = Find(path);
    const auto end = place ? FollowLinks(place->Host) : std::nullopt;
    if (!end) {
        return {};
    }
    const fs::path target = FollowAll(*end);
    const auto liesIn = [&target](const fs::path& directory) {
        const fs::path real = FollowAll(directory);
        return real != real.root_path() && PartsBelow(real, target);
    };
    // What the user has linked in the home is a file of the same kind; an archive's link to ".bashrc" is none.
    const bool sameKind = IsDirectoryAt(target.string()) || LowerCase(target.extension().string()) ==
                                                                LowerCase(fs::path(place->Host).extension().string());
    const auto tree_ = Find(tree);
    const bool stays =
        target == ToHost(path) || (sameKind && liesIn(HomeDirectory())) || (tree_ && liesIn(tree_->Host));
    return stays ? std::string() : FromUtf8Lossy(target.string());
}

}  // namespace lv
