// platform/linux/files/replace_file.h
//
// Files of the host replaced in one step: written beside the old one, synced and renamed.

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

namespace lv {

/// Puts bytes into the file that is being made; an `errno`, or 0.
using FileFiller = std::function<int(int descriptor)>;

/// Makes the file at `hostPath` hold what `fill` writes. After a crash at any moment there is the old file or the new
/// one; when it returns without error the new one outlives a loss of power. An old file's mode bits stay, and its owner
/// where that is allowed; a new file gets `mode` less the user's mask. A link stays a link: what it leads to is
/// replaced. A failure leaves the old file and nothing beside it; what a killed process has left in the directory goes.
/// Errors: 76 no such directory, 75 a directory, a device or a file without permission to write, 70 no access, 61 disk
/// full, 57 device.
Error ReplaceHostFile(const std::string& hostPath, unsigned mode, const FileFiller& fill);

/// The same for a file of the program's own making: a link, a pipe or a device of that name is replaced and never
/// followed or opened, and whatever was there, the new file has the mode 0600.
Error ReplaceOwnHostFile(const std::string& hostPath, const FileFiller& fill);

/// And then removes the `others`, which are files that would be taken for this one. Error 75 ahead of any change if one
/// of them may not be removed: a directory, or a file without permission to write.
Error ReplaceOwnHostFile(const std::string& hostPath, const std::vector<std::string>& others, const FileFiller& fill);

/// Writes all of it; an `errno`, or 0.
int WriteAll(int descriptor, std::string_view bytes);

}  // namespace lv
