// platform/linux/files/linux_files.h
//
// Files under the games' own paths on a system that has neither drives nor names blind to letter case.

#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/files.h"
#include "platform/linux/files/drives.h"
#include "platform/linux/files/host_places.h"
#include "platform/linux/files/host_write.h"
#include "platform/linux/files/walkable.h"
#include "platform/linux/files/walked_drive.h"
#include "platform/stand_ins.h"

namespace lv {

/// The current directory is the program's own: the process's is never changed, and starts as "C:\".
/// A file without permission to write is as good as read-only: it is neither replaced nor deleted (75), though the
/// host would allow that to the owner of its directory.
class LinuxFiles : public Files {
  public:
    /// Makes the first drives if need be, and mends what a start needs of them, if they are to be made.
    explicit LinuxFiles(DriveDirectories directories);

    /// What kept the drives from being made or mended, if anything did. The text names their directory.
    [[nodiscard]] const Error& DrivesFault() const { return drivesFault_; }

    std::vector<std::string> Drives() override;
    Error ProbeDrive(std::string_view drive) override;
    bool FileExists(std::string_view path) override;
    bool DirectoryExists(std::string_view path) override;
    bool IsPlainFile(std::string_view path) override;
    Result<std::vector<DirectoryEntry>> List(std::string_view directory) override;
    Result<WalkedDirectory> ListForWalk(std::string_view directory) override;
    Result<std::string> Read(std::string_view path) override;
    Result<std::unique_ptr<RandomAccessFile>> Open(std::string_view path) override;
    Error Replace(std::string_view path, std::string_view bytes) override;
    Error Copy(std::string_view from, std::string_view to) override;
    Error ReplaceOwn(std::string_view path, std::string_view bytes) override;
    Error CopyOwn(std::string_view from, std::string_view to) override;
    std::string LeadsAway(std::string_view path, std::string_view tree) override;
    bool CanWrite(std::string_view directory) override;
    Error Link(std::string_view target, std::string_view path) override;
    bool IsLinkTo(std::string_view path, std::string_view target) override;
    std::string LeadsInto(std::string_view path, std::string_view tree) override;
    Result<std::vector<LinkedEntry>> ListLinks(std::string_view directory, std::string_view tree) override;
    bool StandIn(std::string_view path, std::string_view real) override;
    Error Delete(std::string_view path) override;
    Error MakeDirectory(std::string_view path) override;
    Error RemoveDirectory(std::string_view path) override;
    std::string CurrentDirectory() override { return PutTogether(current_); }
    Error ChangeDrive(std::string_view drive) override;
    Error ChangeDirectory(std::string_view path) override;
    std::string ProgramDirectory() override;

    /// The drive's own directory with all links of it followed, and below it the names as they are found.
    std::string ToHost(std::string_view path) override;

    /// Links on the way are followed, and so is a link to a directory at the end; a link to a file stays, for a game
    /// lies where its link lies.
    std::string FromHost(std::string_view hostPath) override;
    std::string UserHome() override;

    /// "/" is the host's root here; that of a drive is typed "\" or "C:/".
    std::string FromTyped(std::string_view typed) override;

  private:
    [[nodiscard]] std::optional<HostPlace> Find(std::string_view path) const;
    /// Of a file that is asked for or opened: that of the program that stands in for it, if there is one.
    [[nodiscard]] std::optional<HostPlace> FindFile(std::string_view path) const;
    Error PutFile(std::string_view path, Whose whose, std::string_view bytes) const;
    Error CopyFile(std::string_view from, std::string_view to, Whose whose) const;

    DriveDirectories directories_;
    Error drivesFault_;
    DrivePath current_;
    WalkableDevices walkable_;
    WalkedDrive walkedDrive_;
    StandIns standIns_;
};

}  // namespace lv
