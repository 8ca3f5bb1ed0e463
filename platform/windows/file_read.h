// platform/windows/file_read.h
//
// Files and directories read by their system paths.

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/windows/file_handle.h"

namespace lv {

/// A plain file, open for reading. Errors: 53 no such file, 76 no such directory, 75 a directory or a device, 70 no
/// access.
Result<std::unique_ptr<FileHandle>> OpenPlainFile(const std::wstring& path);

/// All that is still unread. 7 if that is more than kLargestWholeFile.
Result<std::string> ReadToEnd(HANDLE file);

Result<std::unique_ptr<RandomAccessFile>> OpenPlainFileAnywhere(const std::wstring& path);

/// "." and ".." first, also at a drive's root, which has none of its own. A name that has no code page 1252 form is
/// there by the short name that the disk keeps beside it, and left out without one. Error 76 or 75.
Result<std::vector<DirectoryEntry>> ListSystemDirectory(const std::wstring& path);

/// The same number by whichever path or link the directory is reached.
Result<std::uint64_t> IdentityOfDirectory(const std::wstring& path);

/// Whether both are names of one plain file.
bool IsSameFile(const std::wstring& path, const std::wstring& other);

/// The last component as the directory spells it; as given if it is not there.
std::wstring NameAsFound(const std::wstring& path);

}  // namespace lv
