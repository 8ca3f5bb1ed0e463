#include "platform/linux/files/linux_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "platform/code_page.h"
#include "platform/linux/files/errno_error.h"
#include "platform/linux/files/host_read.h"
#include "platform/linux/user_directories.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

std::string DirectoryOf(const std::string& hostPath) {
    return hostPath.substr(0, hostPath.rfind('/') + 1);
}

}  // namespace

LinuxFiles::LinuxFiles(DriveDirectories directories) : directories_(std::move(directories)) {
    if (!directories_.areMade) {
        return;
    }
    Error failed = MakeFirstDrives(directories_);
    if (!failed) {
        failed = MendDrives(directories_);
    }
    if (failed) {
        drivesFault_ = MakeError(failed.Number, FromUtf8Lossy(directories_.drives.string()));
    }
}

std::optional<HostPlace> LinuxFiles::Find(std::string_view path) const {
    return FindPlace(directories_, path, current_);
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

std::optional<HostPlace> LinuxFiles::FindFile(std::string_view path) const {
    auto place = Find(path);
    const std::string* const real = standIns_.Of(path);
    struct stat info {};
    // A program may make a directory of its own name where it plays.
    const bool isThere = place && lstat(place->Host.c_str(), &info) == 0 && !S_ISDIR(info.st_mode);
    return real == nullptr || isThere ? place : Find(*real);
}

bool LinuxFiles::StandIn(std::string_view path, std::string_view real) {
    standIns_.Set(path, real);
    return true;
}

bool LinuxFiles::FileExists(std::string_view path) {
    const auto place = FindFile(path);
    struct stat info {};
    return place && !EndsInSeparator(path) && stat(place->Host.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

bool LinuxFiles::DirectoryExists(std::string_view path) {
    const auto place = Find(path);
    return place && IsDirectoryAt(place->Host);
}

bool LinuxFiles::IsPlainFile(std::string_view path) {
    const auto place = Find(path);
    struct stat info {};
    return place && !EndsInSeparator(path) && lstat(place->Host.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

Result<std::vector<DirectoryEntry>> LinuxFiles::List(std::string_view directory) {
    const auto place = Find(directory);
    return place ? ListHostDirectory(place->Host) : MakeError(error::kPathNotFound);
}

Result<WalkedDirectory> LinuxFiles::ListForWalk(std::string_view directory) {
    std::string host = walkedDrive_.HostPathOf(directory);
    struct stat info {};
    if (host.empty() || stat(host.c_str(), &info) != 0) {
        const auto place = Find(directory);
        if (!place || stat(place->Host.c_str(), &info) != 0) {
            return MakeError(error::kPathNotFound);
        }
        host = place->Host;
        if (place->Path.Parts.empty()) {
            walkedDrive_.Enter(place->Path.Letter, place->Root);
        }
    }
    if (!S_ISDIR(info.st_mode)) {
        return MakeError(error::kPathNotFound);
    }
    if (!walkable_.MayWalk(info.st_dev, host)) {
        return MakeError(error::kPathFileAccess);
    }
    std::size_t nameless = 0;
    auto listed = ListHostDirectory(host, &nameless);
    if (!listed.Ok()) {
        return listed.Fault;
    }
    return WalkedDirectory{IdentityOf(info.st_dev, info.st_ino), std::move(listed.Value), nameless};
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
    const auto place = FindFile(path);
    if (!place) {
        return MakeError(error::kPathNotFound);
    }
    return OpenHostFileAnywhere(place->Host);
}

Error LinuxFiles::Replace(std::string_view path, std::string_view bytes) {
    return PutFile(path, Whose::kUsers, bytes);
}

Error LinuxFiles::ReplaceOwn(std::string_view path, std::string_view bytes) {
    return PutFile(path, Whose::kOurs, bytes);
}

Error LinuxFiles::Copy(std::string_view from, std::string_view to) {
    return CopyFile(from, to, Whose::kUsers);
}

Error LinuxFiles::CopyOwn(std::string_view from, std::string_view to) {
    return CopyFile(from, to, Whose::kOurs);
}

Error LinuxFiles::PutFile(std::string_view path, Whose whose, std::string_view bytes) const {
    const auto place = Find(path);
    return place ? PutHostFile(*place, whose, 0666, [bytes](int file) { return WriteAll(file, bytes); })
                 : MakeError(error::kPathNotFound);
}

Error LinuxFiles::CopyFile(std::string_view from, std::string_view to, Whose whose) const {
    const auto source = Find(from);
    const auto target = Find(to);
    return source && target ? CopyHostFile(*source, *target, whose) : MakeError(error::kPathNotFound);
}

std::string LinuxFiles::LeadsAway(std::string_view path, std::string_view tree) {
    const auto place = Find(path);
    return place ? lv::LeadsAway(*place, Find(tree)) : std::string();
}

bool LinuxFiles::CanWrite(std::string_view directory) {
    const auto place = Find(directory);
    return place && IsDirectoryAt(place->Host) &&
           faccessat(AT_FDCWD, place->Host.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

Error LinuxFiles::Link(std::string_view target, std::string_view path) {
    const auto file = Find(target);
    const auto place = Find(path);
    return file && place ? LinkHostFile(*file, *place) : MakeError(error::kPathNotFound);
}

bool LinuxFiles::IsLinkTo(std::string_view path, std::string_view target) {
    const auto place = Find(path);
    const auto file = Find(target);
    std::error_code failed;
    return place && file && fs::read_symlink(place->Host, failed) == LinkedHostPath(*file) && !failed;
}

std::string LinuxFiles::LeadsInto(std::string_view path, std::string_view tree) {
    const auto place = Find(path);
    const auto above = Find(tree);
    return place && above ? lv::LeadsInto(*place, *above) : std::string();
}

Result<std::vector<LinkedEntry>> LinuxFiles::ListLinks(std::string_view directory, std::string_view tree) {
    const auto place = Find(directory);
    const auto above = Find(tree);
    return place && above ? ListHostLinks(place->Host, LinkedHostPath(*above)) : MakeError(error::kPathNotFound);
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
    const auto place = FindFile(path);
    return place ? LinkedHostPath(*place) : std::string();
}

std::string LinuxFiles::FromHost(std::string_view hostPath) {
    return DrivePathOf(directories_, hostPath);
}

std::string LinuxFiles::UserHome() {
    return FromHost(HomeDirectory().string());
}

std::string LinuxFiles::FromTyped(std::string_view typed) {
    const bool atHome = typed == "~" || typed.starts_with("~/");
    if (!atHome && !typed.starts_with('/')) {
        return std::string(typed);
    }
    const std::string host = atHome ? HomeDirectory().string() + ToUtf8(typed.substr(1)) : ToUtf8(typed);
    std::string path = FromHost(host);
    return path.empty() ? std::string(typed) : path;
}

}  // namespace lv
