// platform/windows/replace_file.h
//
// A file replaced in one step: written beside its place, brought to the disk, and moved there.

#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/error.h"
#include "platform/windows/system.h"

namespace lv {

/// Writes the new content. Returns the system's error number, 0 for success.
using FileFiller = std::function<DWORD(HANDLE)>;

/// Afterwards, and after a crash at any moment, there is the old file or the new one. The name keeps the spelling, and
/// the file the attributes and the access rights, of what was there; a link is followed. What an ended process has left
/// in the directory goes. Errors: 76 no such directory, 75 a directory or a read-only file, 70 no access, 61 disk full.
Error ReplaceSystemFile(const std::wstring& path, const FileFiller& fill);

/// The same for a file of the program's own making: a link of that name is replaced and never followed, and the new
/// file's rights are those that its directory gives.
Error ReplaceOwnSystemFile(const std::wstring& path, const FileFiller& fill);

/// All bytes, in as many writes as it takes.
DWORD WriteAll(HANDLE file, std::string_view bytes);

}  // namespace lv
