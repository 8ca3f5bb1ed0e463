// launcher/start/start_directories.h
//
// The directories of a start: the program's own, and an older install that may go.

#pragma once

#include "foundation/run.h"

namespace lv {

/// A directory as it is kept: without a "\" at its end.
void CutTrailingBackslash(Text& directory);

/// Makes the program's directory current and fixes AppDirectory; a network path stays as it stands and nothing becomes
/// current. False if that failed: the user was told and the program ends.
bool AlignDirectories(Run& run);

constexpr TextView kOldInstall = "C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D";
constexpr TextView kOldMaker = "C:\\Program Files\\Ostrand Digital, LLC";
constexpr TextView kOldProgram = "C:\\Program Files\\Ostrand Digital, LLC\\Lorvane 3D\\Lorvane3D.exe";

/// Asks whether an older install at its fixed place is to go, and removes it, up to the first failure.
void OfferRemovalOfOlderInstall(Run& run);

}  // namespace lv
