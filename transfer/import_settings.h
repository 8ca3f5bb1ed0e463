// transfer/import_settings.h
//
// The settings of a file in the place of this machine's own.

#pragma once

#include <functional>
#include <optional>

#include "transfer/moved_places.h"
#include "transfer/setting_changes.h"
#include "transfer/settings_file.h"

namespace lv {

struct ImportedSettings {
    std::size_t Values = 0;        // of the file
    std::size_t Changed = 0;       // of the store, that are others now
    std::vector<Text> Kept;        // what is as it was, in words: what the file names for it is not on this machine, or
                                   // no backup could hold it
    std::vector<PathMove> Moved;   // the places that are elsewhere here
    std::vector<Text> LeftPlaces;  // the ones that stay as they are, and are not here
    Text Backup;                   // the path of a copy of what was there before; empty if that was nothing
};

/// What is asked of each directory of games that is not on this machine, once: where it lies here. `likely` is a
/// directory that is here and may be it, or empty. Nothing leaves the paths as they are.
using MovedPlaceQuestion = std::function<std::optional<Text>(const MovedPlace& place, TextView likely)>;

/// Puts the values in the place of those that are stored, all of them or none, while no other program writes. What is
/// stored and does not stand among them becomes what it is where it was never stored, or goes; what does not go along
/// to other machines stays. The first start is over then. Before that there is a backup, or nothing is done. Errors as
/// SettingsBacking::BeginAlone and Write, and as KeepBackup; 5 for moves that MoveValues refuses.
Result<ImportedSettings> ImportValues(Run& run, const std::vector<StoredValue>& values,
                                      const std::vector<PathMove>& moves);

/// What ImportValues would change of the settings, without moves. Errors as SettingsBacking::All.
Result<SettingChanges> ChangesOfImport(Run& run, const std::vector<StoredValue>& values);

/// The places of these values that are not here, each asked for. Error 5 for an answer that FaultOfPlace is against.
/// `left` gets the ones that stay.
Result<std::vector<PathMove>> AskForMovedPlaces(Run& run, const std::vector<StoredValue>& values,
                                                const MovedPlaceQuestion& ask, std::vector<Text>& left);

/// Reads the file, asks for the places, and imports. Errors as ReadSettingsFile and those above; then all is as it was.
Result<ImportedSettings> ImportSettings(Run& run, TextView path, const MovedPlaceQuestion& ask);

}  // namespace lv
