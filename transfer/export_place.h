// transfer/export_place.h
//
// Where exported settings may not be written, because something is there that would be lost.

#pragma once

#include "foundation/run.h"

namespace lv {

/// What of plain files an export may take the place of. What is no plain file it never does.
enum class MayReplace {
    kExportsAlone,  // an earlier export's
    kAnyFile,       // the user has said so
};

/// Why no file can have the name, whatever is there: it ends in a separator, or is "." or "..". Error 75.
Error FaultOfFileName(TextView path);

/// Why the path is refused, in a sentence; no error if it is not. Refused are names of directories, the directories
/// that this program keeps settings and their copies in, links, pipes and devices, other spellings of what is there,
/// and plain files that may not be replaced. Errors: 75, and those of Files::List and Files::Open.
Error FaultOfExport(Run& run, TextView path, MayReplace mayReplace);

}  // namespace lv
