#include "platform/linux/linux_files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/code_page.h"
#include "platform/linux/errno_error.h"
#include "platform/linux/host_read.h"
#include "platform/linux/replace_file.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

bool IsDirectoryAt(const std::string& hostPath) {
    struct stat info {};
    return stat(hostPath.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool EndsInSeparator(std::string_view path) {
    return path.ends_with('\\') || path.ends_with('/');
}

std::string DirectoryOf(const std::string& hostPath) {
    return hostPath.substr(0, hostPath.rfind('/') + 1);
}

// The parts of `path` below `directory`; nothing if it does not lie there.
std::optional<std::vector<fs::path>> PartsBelow(const fs::path& directory, const fs::path& path) {
    const auto [left, right] = std::mismatch(directory.begin(), directory.end(), path.begin(), path.end());
    if (left != directory.end()) {
        return std::nullopt;
    }
    return std::vector<fs::path>(right, path.end());
}

fs::path FollowAll(const fs::path& path) {
    std::error_code failed;
    const fs::path followed = fs::weakly_canonical(path, failed);
    const fs::path whole = failed ? path.lexically_normal() : followed;
    return whole.has_filename() || whole == whole.root_path() ? whole : whole.parent_path();
}

fs::path FollowButForAFile(const fs::path& path) {
    std::error_code failed;
    if (!path.has_filename() || fs::is_directory(path, failed)) {
        return FollowAll(path);
    }
    return FollowAll(path.parent_path()) / path.filename();
}

int CopyAll(int from, int to) {
    std::array<char, 65536> buffer{};
    while (true) {
        const ssize_t got = read(from, buffer.data(), buffer.size());
        if (got == 0) {
            return 0;
        }
        if (got < 0 && errno != EINTR) {
            return errno;
        }
        if (const int failed = WriteAll(to, {buffer.data(), got < 0 ? 0 : static_cast<std::size_t>(got)})) {
            return failed;
        }
    }
}

}  // namespace

LinuxFiles::LinuxFiles(DriveDirectories directories) : directories_(std::move(directories)) {
    Error failed = MakeFirstDrives(directories_);
    if (!failed) {
        failed = MendDrives(directories_);
    }
    if (failed) {
        drivesFault_ = MakeError(failed.Number, FromUtf8Lossy(directories_.drives.string()));
    }
}

std::optional<LinuxFiles::Place> LinuxFiles::Find(std::string_view path) const {
    auto taken = TakeApart(path, current_);
    if (!taken) {
        return std::nullopt;
    }
    auto root = DriveEntry(directories_, taken->Letter);
    if (!root) {
        return std::nullopt;
    }
    std::string host = HostPathBelow(*root, taken->Parts);
    return Place{*std::move(taken), *std::move(root), std::move(host)};
}

std::vector<std::string> LinuxFiles::Drives() {
    std::vector<std::string> drives;
    for (const char letter : DriveLetters(directories_)) {
        drives.push_back({letter, ':'});
    }
    return drives;
}

Error LinuxFiles::ProbeDrive(std::string_view drive) {
    if (drive.size() < 2 || drive[1] != ':') {
        return MakeError(error::kDeviceUnavailable);
    }
    const auto entry = DriveEntry(directories_, drive[0]);
    if (!entry) {
        return MakeError(error::kDeviceUnavailable);
    }
    const bool ready = IsDirectoryAt(*entry) && access(entry->c_str(), R_OK | X_OK) == 0;
    return ready ? Error() : MakeError(error::kDiskNotReady);
}

bool LinuxFiles::FileExists(std::string_view path) {
    const auto place = Find(path);
    struct stat info {};
    return place && !EndsInSeparator(path) && stat(place->Host.c_str(), &info) == 0 && !S_ISDIR(info.st_mode);
}

bool LinuxFiles::DirectoryExists(std::string_view path) {
    const auto place = Find(path);
    return place && IsDirectoryAt(place->Host);
}

Result<std::vector<DirectoryEntry>> LinuxFiles::List(std::string_view directory) {
    const auto place = Find(directory);
    return place ? ListHostDirectory(place->Host) : MakeError(error::kPathNotFound);
}

Result<WalkedDirectory> LinuxFiles::ListForWalk(std::string_view directory) {
    const auto place = Find(directory);
    struct stat info {};
    if (!place || stat(place->Host.c_str(), &info) != 0 || !S_ISDIR(info.st_mode)) {
        return MakeError(error::kPathNotFound);
    }
    if (!walkable_.MayWalk(info.st_dev, place->Host)) {
        return MakeError(error::kPathFileAccess);
    }
    auto listed = ListHostDirectory(place->Host);
    if (!listed.Ok()) {
        return listed.Fault;
    }
    return WalkedDirectory{IdentityOf(info.st_dev, info.st_ino), std::move(listed.Value)};
}

Result<std::string> LinuxFiles::Read(std::string_view path) {
    const auto place = Find(path);
    if (!place) {
        return MakeError(error::kPathNotFound);
    }
    const auto file = OpenHostFile(place->Host);
    return file.Ok() ? ReadToEnd(file.Value->Number()) : file.Fault;
}

Result<std::unique_ptr<RandomAccessFile>> LinuxFiles::Open(std::string_view path) {
    const auto place = Find(path);
    if (!place) {
        return MakeError(error::kPathNotFound);
    }
    return OpenHostFileAnywhere(place->Host);
}

Error LinuxFiles::Replace(std::string_view path, std::string_view bytes) {
    const auto place = Find(path);
    if (!place) {
        return MakeError(error::kPathNotFound);
    }
    if (EndsInSeparator(path)) {
        return MakeError(error::kPathFileAccess);
    }
    return ReplaceHostFile(place->Host, 0666, [bytes](int file) { return WriteAll(file, bytes); });
}

Error LinuxFiles::Copy(std::string_view from, std::string_view to) {
    const auto source = Find(from);
    const auto target = Find(to);
    if (!source || !target) {
        return MakeError(error::kPathNotFound);
    }
    if (EndsInSeparator(to)) {
        return MakeError(error::kPathFileAccess);
    }
    const auto file = OpenHostFile(source->Host);
    if (!file.Ok()) {
        return file.Fault;
    }
    struct stat info {};
    if (fstat(file.Value->Number(), &info) != 0) {
        return ErrorOf(errno);
    }
    // A copied program can be run; a copy of what is read-only can be written again.
    const unsigned mode = 0666 | (info.st_mode & 0111);
    return ReplaceHostFile(target->Host, mode, [&](int made) { return CopyAll(file.Value->Number(), made); });
}

Error LinuxFiles::Delete(std::string_view path) {
    const auto place = Find(path);
    if (!place) {
        return MakeError(error::kPathNotFound);
    }
    struct stat info {};
    if (lstat(place->Host.c_str(), &info) != 0) {
        const bool inDirectory = IsDirectoryAt(DirectoryOf(place->Host));
        return MakeError(inDirectory ? error::kFileNotFound : error::kPathNotFound);
    }
    if (IsDirectoryAt(place->Host)) {
        return MakeError(error::kFileNotFound);
    }
    if (S_ISREG(info.st_mode) && access(place->Host.c_str(), W_OK) != 0) {
        return MakeError(error::kPathFileAccess);
    }
    return unlink(place->Host.c_str()) == 0 ? Error() : ErrorOf(errno);
}

Error LinuxFiles::MakeDirectory(std::string_view path) {
    const auto place = Find(path);
    if (!place) {
        return MakeError(error::kPathNotFound);
    }
    if (mkdir(place->Host.c_str(), 0777) == 0) {
        return {};
    }
    return errno == ENOENT ? MakeError(error::kPathNotFound) : ErrorOf(errno);
}

Error LinuxFiles::RemoveDirectory(std::string_view path) {
    const auto place = Find(path);
    if (!place || !IsDirectoryAt(place->Host)) {
        return MakeError(error::kPathNotFound);
    }
    if (place->Path.Parts.empty()) {
        return MakeError(error::kPathFileAccess);
    }
    if (rmdir(place->Host.c_str()) == 0) {
        return {};
    }
    // A link to a directory is not the directory; it is for its owner to remove.
    return errno == ENOTDIR ? MakeError(error::kPathFileAccess) : ErrorOf(errno);
}

Error LinuxFiles::ChangeDrive(std::string_view drive) {
    if (Error failed = ProbeDrive(drive)) {
        return failed;
    }
    const char letter = UpperCase(drive[0]);
    if (letter != current_.Letter) {
        current_ = {letter, {}};
    }
    return {};
}

Error LinuxFiles::ChangeDirectory(std::string_view path) {
    const auto place = Find(path);
    if (!place || !IsDirectoryAt(place->Host)) {
        return MakeError(error::kPathNotFound);
    }
    current_ = {place->Path.Letter, PartsAsFound(place->Root, place->Path.Parts)};
    return {};
}

std::string LinuxFiles::ProgramDirectory() {
    return FromHost(directories_.programDirectory.string());
}

std::string LinuxFiles::ToHost(std::string_view path) {
    const auto place = Find(path);
    if (!place) {
        return {};
    }
    std::error_code failed;
    const fs::path root = fs::canonical(place->Root, failed);
    if (failed) {
        return place->Host;
    }
    const std::string below = place->Host.substr(place->Root.size());
    if (below.empty()) {
        return root.string();
    }
    return root == root.root_path() ? below : root.string() + below;
}

std::string LinuxFiles::FromHost(std::string_view hostPath) {
    const fs::path given(hostPath);
    if (!given.is_absolute() || hostPath.find('\0') != std::string_view::npos) {
        return {};
    }
    const fs::path path = FollowButForAFile(given);
    std::size_t deepest = 0;
    std::optional<DrivePath> best;
    for (const char letter : DriveLetters(directories_)) {
        std::error_code failed;
        const fs::path root = fs::canonical(*DriveEntry(directories_, letter), failed);
        const auto depth = static_cast<std::size_t>(std::distance(root.begin(), root.end()));
        const auto below = failed ? std::nullopt : PartsBelow(root, path);
        if (!below || depth <= deepest) {
            continue;
        }
        deepest = depth;
        best = DrivePath{letter, {}};
        for (const fs::path& part : *below) {
            const auto name = NameFromHost(part.string());
            if (!name) {
                return {};
            }
            best->Parts.push_back(*name);
        }
    }
    return best ? PutTogether(*best) : std::string();
}

}  // namespace lv
