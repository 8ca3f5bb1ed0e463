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

struct DirectoryEntry {
    std::string Name;
    bool IsDirectory = false;
};

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
};

class Files {
  public:
    virtual ~Files() = default;

    /// The drives there are, as "C:", sorted.
    virtual std::vector<std::string> Drives() = 0;

    /// Whether the drive can be read now: 68 device unavailable, 71 disk not ready.
    virtual Error ProbeDrive(std::string_view drive) = 0;

    /// A directory is no file, and the other way round.
    virtual bool FileExists(std::string_view path) = 0;
    virtual bool DirectoryExists(std::string_view path) = 0;

    /// All entries in the file system's order, "." and ".." first. Names that have no code page 1252 form are left
    /// out. Error 76 if there is no such directory, 75 if it may not be read.
    virtual Result<std::vector<DirectoryEntry>> List(std::string_view directory) = 0;

    /// As List, for a walk over a whole disk. Error 75 also for what such a walk has no business in: file systems that
    /// hold no files of a user's, and those of other machines. Where nothing better is known, the path is the identity.
    virtual Result<WalkedDirectory> ListForWalk(std::string_view directory);

    /// The whole file. Errors: 53 no such file, 76 no such directory, 75 a directory or a device, 70 no access.
    virtual Result<std::string> Read(std::string_view path) = 0;
    virtual Result<std::unique_ptr<RandomAccessFile>> Open(std::string_view path) = 0;

    /// Makes the file hold exactly these bytes, in one step: afterwards, and after a crash at any moment, there is the
    /// old file or the new one. A name that exists in another letter case keeps its spelling. Errors: 76 no such
    /// directory, 75 or 70 no access, 61 disk full.
    virtual Error Replace(std::string_view path, std::string_view bytes) = 0;

    /// Byte copy, in one step like Replace.
    virtual Error Copy(std::string_view from, std::string_view to) = 0;

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
};

}  // namespace lv
