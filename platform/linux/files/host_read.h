// platform/linux/files/host_read.h
//
// Files and directories of the host, read: only regular files, and never in a way that could wait for somebody.

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/error.h"
#include "platform/files.h"
#include "platform/linux/files/file_descriptor.h"

namespace lv {

/// Whether a directory is there. Links are followed.
bool IsDirectoryAt(const std::string& hostPath);

/// 53 no such file, 76 no such directory, 75 a directory, a pipe or a device, 70 no access.
Result<std::unique_ptr<FileDescriptor>> OpenHostFile(const std::string& hostPath);

/// The rest of the file. 7 if that is more than kLargestWholeFile.
Result<std::string> ReadToEnd(int descriptor);

/// A file that is read from any place.
Result<std::unique_ptr<RandomAccessFile>> OpenHostFileAnywhere(const std::string& hostPath);

/// "." and ".." first, then the entries in the file system's order; those without a name in code page 1252 are left
/// out. A link to a directory is a directory. 76 if there is none, 75 if it may not be read.
/// `nameless` takes how many directories were left out so; hidden ones don't count.
Result<std::vector<DirectoryEntry>> ListHostDirectory(const std::string& hostPath, std::size_t* nameless = nullptr);

/// The same without "." and "..", with where its links lead below the host directory `tree`.
Result<std::vector<LinkedEntry>> ListHostLinks(const std::string& hostPath, const std::string& tree);

}  // namespace lv
