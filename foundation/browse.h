// foundation/browse.h
//
// Browsing for a file, and what is told when the toolkit's dialog fails.

#pragma once

#include <optional>

#include "foundation/run.h"

namespace lv {

constexpr TextView kExecutableFilter = "Quake Executables (*.exe, *.bat)|*.exe;*.bat|All Files (*.*)|*.*";
constexpr TextView kAllFilesFilter = "All Files (*.*)|*.*";

/// Numbers of the file dialog.
constexpr int kDialogCancelled = 32755;
constexpr int kDialogOutdated = 20476;

/// What is told of a failed dialog.
Text DialogFailureText(const Error& failed);

/// Where a choice of a file or a directory begins: at the path in the box, as far as it is there; else in `usual`, if
/// that is there; else where the last choice ended; else at home.
Text BrowseStart(const Run& run, TextView inBox, TextView usual = "");

/// What the dialog gives, asked with no window of ours on top of it. A path longer than MaxFileSize is the error
/// kDialogOutdated: room for it is what the newer dialog has.
Result<std::optional<Text>> AskForFile(Run& run, const FileRequest& request);

/// The chosen path; nothing if the user cancelled or the dialog failed, which the user was told then.
std::optional<Text> BrowseForFile(Run& run, TextView filter, TextView directory, int filterIndex = 0);

/// The same for a program. Where the system's own have no ending the filter's last choice, all files, comes up.
std::optional<Text> BrowseForProgram(Run& run, TextView filter, TextView directory);

}  // namespace lv
