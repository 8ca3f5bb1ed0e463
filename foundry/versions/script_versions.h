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
/// kMostVersions goes. Error 7 for a script of more than kLargestVersion bytes. A file of versions that is damaged is
/// kept aside, and what is intact of it goes on: the value is where it is kept then, and empty else. One that is there
/// and cannot be read stays as it is: the error says why.
Result<Text> KeepVersion(Run& run, TextView script);

/// What can be read of them, newest first.
VersionFile ReadVersions(Run& run, TextView script);
std::vector<ScriptVersion> VersionsOf(Run& run, TextView script);

/// The damaged files that have been kept aside, the oldest first: "....txt.damaged", "....txt.damaged2".
std::vector<Text> DamagedVersionFiles(Run& run, TextView script);

/// Puts the version in the place of the script, which becomes a version itself. The value is KeepVersion's.
Result<Text> BringBack(Run& run, TextView script, const ScriptVersion& version);

/// For the user, once: that a damaged file was kept aside.
Text KeptAsideText(TextView path);

}  // namespace lv
