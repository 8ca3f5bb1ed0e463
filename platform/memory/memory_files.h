// platform/memory/memory_files.h
//
// Drives, directories and files in memory, with links, devices and refusals where a test wants them.

#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/stand_ins.h"

namespace lv {

/// A tree of files. Entries are listed in the order they were made.
class MemoryFiles : public Files {
  public:
    /// Makes the drive, and below it each directory of the path.
    void AddDirectory(std::string_view path);
    void AddFile(std::string_view path, std::string_view bytes = "");
    void AddDrive(std::string_view drive);
    /// A directory that is another one by a second path.
    void AddLink(std::string_view path, std::string_view target);
    /// The same for a file, which need not be there.
    void AddFileLink(std::string_view path, std::string_view target);
    /// A pipe, a socket or a device.
    void AddDevice(std::string_view path);
    /// A file that begins with these bytes, and goes on with zeros to its size.
    void AddSparseFile(std::string_view path, std::string_view bytes, std::uint64_t size);

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
    bool StandIn(std::string_view path, std::string_view real) override;
    Error Delete(std::string_view path) override;
    Error MakeDirectory(std::string_view path) override;
    Error RemoveDirectory(std::string_view path) override;
    std::string CurrentDirectory() override { return current_; }
    Error ChangeDrive(std::string_view drive) override;
    Error ChangeDirectory(std::string_view path) override;
    std::string ProgramDirectory() override { return "C:\\LORVANE"; }
    std::string ToHost(std::string_view path) override;
    std::string FromHost(std::string_view hostPath) override;
    std::string UserHome() override { return Home; }
    std::string FromTyped(std::string_view typed) override;

    /// The bytes of a file that a test knows to be there; "(none)" if it is not.
    std::string Bytes(std::string_view path);

    std::string Home = "C:\\HOME";
    bool KnowsStandIns = true;
    std::set<std::string> Private;                // by lower-case path: what its owner alone may read
    std::set<std::string> DrivesNotReady;         // "D:"
    std::set<std::string> Unreadable;             // by lower-case path: listing the directory is error 75
    std::map<std::string, std::size_t> Nameless;  // by lower-case path: directories that a walk leaves out there
    std::set<std::string> ReadOnly;               // by lower-case path: no file can be made in the directory
    std::set<std::string> RefusedDeletes;         // by lower-case path: deleting the file is error 70
    std::vector<std::string> Listed;              // each directory that was listed, in order
    std::map<std::string, Error> Refused;         // by lower-case path: Replace and Copy onto it fail with this
    std::map<std::string, Error> RefusedReads;    // by lower-case path: Read, Open and Copy of it fail with this
    std::vector<std::string> Log;                 // "replace C:\...", "delete C:\...", "copy A -> B", in order

  private:
    struct Node {
        std::string Name;  // full path as spelled when made
        std::string Bytes;
        bool IsDirectory = false;
        std::size_t Order = 0;
        bool IsDevice = false;
        std::uint64_t Size = 0;  // where it is more than there are bytes
    };
    [[nodiscard]] std::string Key(std::string_view path) const;
    [[nodiscard]] std::string KeyOfLink(std::string_view path) const;
    Error Put(const std::string& key, std::string_view path, std::string_view bytes);
    Result<const Node*> FindFile(std::string_view path);
    Result<const Node*> FindReadable(std::string_view path);
    Node* Find(std::string_view path);
    /// Of a file that is asked for or opened.
    std::string_view Real(std::string_view path);

    std::map<std::string, Node> nodes_;
    std::map<std::string, std::string> links_;
    StandIns standIns_;
    std::string current_ = "C:\\";
    std::size_t made_ = 0;
};

}  // namespace lv
