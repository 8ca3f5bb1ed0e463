// transfer/backups.h
//
// Copies of the settings in the directory for the programs' data, one file each: at every start where they have
// changed since the last copy, and before anything replaces them as a whole.

#pragma once

#include "transfer/settings_file.h"

namespace lv {

constexpr std::size_t kMostBackups = 10;

struct Backup {
    Text Path;
    std::uint32_t Number = 0;  // counts up, whatever the clock says
    Text When;                 // "2026-11-23 08:52:11"
};

/// Newest first. Files of other names in their directory are nobody's business.
std::vector<Backup> Backups(Run& run);

/// The path of a copy of the settings as they are now: a new one, or the newest if that holds the same. Empty where
/// nothing has been stored yet. The oldest of more than kMostBackups go; no copy goes before the new one is there.
/// Errors as ExportSettings, and those of a directory that cannot be made.
Result<Text> KeepBackup(Run& run);

}  // namespace lv
