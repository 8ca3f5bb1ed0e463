// platform/linux/files/host_write.h
//
// Files of the host made and copied at a place of the drives.

#pragma once

#include "platform/error.h"
#include "platform/linux/files/host_places.h"
#include "platform/linux/files/replace_file.h"

namespace lv {

/// What is the user's keeps its links and its mode bits; what is the program's own is for the user's eyes alone.
enum class Whose { kUsers, kOurs };

/// Makes the file at the place hold what `fill` writes; a new file of the user's gets `mode` less the user's mask.
/// Errors: those of replace_file.h, and 75 for a drive's root.
Error PutHostFile(const HostPlace& place, Whose whose, unsigned mode, const FileFiller& fill);

/// A copied program can be run; a copy of what is read-only can be written again. A file of holes takes no more of the
/// disk than its bytes do. Errors: those of OpenHostFile and of PutHostFile, and 7 beyond kLargestWholeFile.
Error CopyHostFile(const HostPlace& from, const HostPlace& to, Whose whose);

/// A link at `place`, spelled as that says, to the file. Errors: 53 and 76 nothing there, 75 no file, or `place` is
/// taken in whatever spelling, 70 no access.
Error LinkHostFile(const HostPlace& file, const HostPlace& place);

}  // namespace lv
