// platform/files.h
//
// Files and drives under the games' own paths: "C:\QUAKE\ID1", "\" between the components, letter case without
// meaning, names in code page 1252. A path without a drive is taken from the current directory. A name is never a
// pattern: "*" and "?" stand for themselves, or are error 52 in what makes, reads, or deletes a file, if the system has
// no such names.

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

namespace lv {

/// A link counts as what it leads to.
struct DirectoryEntry {
    std::string Name;
    bool IsDirectory = false;
    bool IsDevice = false;  // or a pipe, or a socket: nothing that could be read as a file
};

/// The largest file that is read or copied whole.
constexpr std::uint64_t kLargestWholeFile = 256U << 20U;

/// An open file that is read from any place.
class RandomAccessFile {
  public:
    virtual ~RandomAccessFile() = default;
    [[nodiscard]] virtual std::uint64_t Size() const = 0;
    /// Up to `count` bytes from `offset`; fewer at the end of the file, none behind it.
    virtual Result<std::string> Read(std::uint64_t offset, std::size_t count) = 0;
};

/// A directory as a walk over a whole disk meets it.
struct WalkedDirectory {
    std::uint64_t Identity = 0;  // the same by whichever path or link the directory is reached
    std::vector<DirectoryEntry> Entries;
    std::size_t Nameless =
        0;  // directories left out, as code page 1252 cannot say their names; hidden ones don't count
};

/// An entry of a directory of links.
struct LinkedEntry : DirectoryEntry {
    std::string LeadsInto;     // as Files::LeadsInto
    bool IsGone = false;       // no directory, and what it leads to is no file now
    bool IsElsewhere = false;  // lies elsewhere, and is here by a link
};

class Files {
  public:
    virtual ~Files() = default;

    /// The drives there are, as "C:", sorted.
    virtual std::vector<std::string> Drives() = 0;

    /// Whether the drive can be read now: 68 device unavailable, 71 disk not ready.
    virtual Error ProbeDrive(std::string_view drive) = 0;

    /// A directory is no file, and the other way round. A device, a pipe or a socket is neither.
    virtual bool FileExists(std::string_view path) = 0;
    virtual bool DirectoryExists(std::string_view path) = 0;

    /// Whether the name itself is a file's, and no link's.
    virtual bool IsPlainFile(std::string_view path) = 0;

    /// All entries in the file system's order, "." and ".." first. Names that have no code page 1252 form are left
    /// out, or there by another name that the disk keeps for them. Error 76 if there is no such directory, 75 if it may
    /// not be read.
    virtual Result<std::vector<DirectoryEntry>> List(std::string_view directory) = 0;

    /// As List, for a walk over a whole disk. Error 75 also for what such a walk has no business in: file systems that
    /// hold no files of a user's, and those of other machines. Where nothing better is known, the path is the identity.
    virtual Result<WalkedDirectory> ListForWalk(std::string_view directory);

    /// The whole file. Errors: 53 no such file, 76 no such directory, 75 a directory or a device, 70 no access, 7 more
    /// than kLargestWholeFile. Waits for nobody: a pipe is a device. No size that a file claims costs memory before it
    /// has been looked at, and memory that there is not is error 7 as well, from an open file too.
    virtual Result<std::string> Read(std::string_view path) = 0;
    virtual Result<std::unique_ptr<RandomAccessFile>> Open(std::string_view path) = 0;

    /// Makes the file hold exactly these bytes, in one step: afterwards, and after a crash at any moment, there is the
    /// old file or the new one. A name that exists in another letter case keeps its spelling; a link stays a link, and
    /// what it leads to is replaced. Errors: 76 no such directory, 75 or 70 no access, 61 disk full.
    virtual Error Replace(std::string_view path, std::string_view bytes) = 0;

    /// Byte copy, in one step like Replace. Error 7 for more than kLargestWholeFile.
    virtual Error Copy(std::string_view from, std::string_view to) = 0;

    /// As Replace and Copy, for a file of the program's own making: a link, a pipe or a device of that name is replaced
    /// and never followed or opened, and the file is new each time, for its owner alone to read and write. Where names
    /// differ by letter case it is spelled as the path says, and what has another spelling of the name goes.
    virtual Error ReplaceOwn(std::string_view path, std::string_view bytes) = 0;
    virtual Error CopyOwn(std::string_view from, std::string_view to) = 0;

    /// Where a write to `path`, or into it if it is a directory, would end if links lead it out of both the user's home
    /// and the directory `tree`, as the host says it, in code page 1252. Empty if they don't, or if there is no link on
    /// the way.
    virtual std::string LeadsAway(std::string_view path, std::string_view tree) = 0;

    /// Whether files can be made in the directory, as far as its rights say. False if there is none.
    virtual bool CanWrite(std::string_view directory) = 0;

    /// Makes `path`, spelled as it is said, read like the file `target`, which costs no room: a link, or a second name
    /// where the system has that. Errors: 53 no such target, 76 no such directory, 75 the target is no file, `path` is
    /// there already in whatever spelling, or the two lie on disks that know no link from one to the other, 70 no
    /// access.
    virtual Error Link(std::string_view target, std::string_view path) = 0;

    /// Whether `path` is what Link makes of `target`.
    virtual bool IsLinkTo(std::string_view path, std::string_view target) = 0;

    /// Where a link leads that Link has made to a file below the directory `tree`, as the path below that,
    /// "id1\pak0.pak", whether or not the file is still there. Empty for anything else, and for what does not tell:
    /// links of other makers that get there by a road of their own, and second names.
    virtual std::string LeadsInto(std::string_view path, std::string_view tree) = 0;

    /// As List, without "." and "..", with what there is to know of links to files below the directory `tree`.
    virtual Result<std::vector<LinkedEntry>> ListLinks(std::string_view directory, std::string_view tree);

    /// From now on the program `real` is asked for, opened and started as `path` too, unless a file lies there: a
    /// program that lies elsewhere, as a game's directory knows it. What lists, writes, links or deletes does not know
    /// it. An empty `real` ends that. False if this system cannot start a program in that way.
    virtual bool StandIn(std::string_view, std::string_view) { return false; }

    virtual Error Delete(std::string_view path) = 0;
    virtual Error MakeDirectory(std::string_view path) = 0;
    virtual Error RemoveDirectory(std::string_view path) = 0;

    /// The current directory with its drive, without a trailing "\" but for a drive's root.
    virtual std::string CurrentDirectory() = 0;

    /// Makes the drive current ("C:" or the start of a longer path). 68 if there is none.
    virtual Error ChangeDrive(std::string_view drive) = 0;

    /// Makes the directory current. 76 if there is none.
    virtual Error ChangeDirectory(std::string_view path) = 0;

    /// The directory that the program and its data lie in.
    virtual std::string ProgramDirectory() = 0;

    /// The host's own form of a path (UTF-8), and the way back: the path on the drive that lies deepest above it.
    /// Empty if no drive holds it.
    virtual std::string ToHost(std::string_view path) = 0;
    virtual std::string FromHost(std::string_view hostPath) = 0;

    /// Why FromHost has nothing for a path that there could be, in words for the user.
    virtual Error WhyNotFromHost(std::string_view) {
        return {error::kPathNotFound, "this file lies on none of the drives"};
    }

    /// The user's own directory, a path on the drives. Empty if no drive holds it.
    virtual std::string UserHome() = 0;

    /// A path as the user typed it, in code page 1252: one that only the host would know ("~", "~/games", "/srv/games")
    /// as the path on the drives. Anything else stays as it is, and so does what no drive holds.
    virtual std::string FromTyped(std::string_view typed) { return std::string(typed); }
};

}  // namespace lv
