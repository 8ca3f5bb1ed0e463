// foundry/versions/script_versions.h
//
// The older versions of each script: what a save has replaced, kept in a file of the program's own that no other user
// reads.

#pragma once

#include "foundation/run.h"
#include "foundry/versions/version_file.h"

namespace lv {

/// Where the versions of that script are kept: one file a script, in the directory for the programs' data; beside this
/// program where the system has none.
Text VersionFilePathOf(const Run& run, TextView script);

/// Keeps the script as it is on disk, as the newest version. Nothing to keep if there is no such file, or it is the
/// newest version already; a text that is an older one is kept once, as the newest. The oldest of more than
/// kMostVersions goes. Error 7 for a script of more than kLargestVersion bytes. What is damaged of the file of versions
/// is kept aside, as
/// "...damaged".
Error KeepVersion(Run& run, TextView script);

/// Newest first; what can be read of them.
std::vector<ScriptVersion> VersionsOf(Run& run, TextView script);

/// Puts the version in the place of the script, which becomes a version itself.
Error BringBack(Run& run, TextView script, const ScriptVersion& version);

}  // namespace lv
