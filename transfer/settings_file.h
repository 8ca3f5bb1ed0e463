// transfer/settings_file.h
//
// The settings that go, out of the store and in a file of the format of settings_text.

#pragma once

#include "foundation/run.h"
#include "transfer/carried_values.h"
#include "transfer/export_place.h"

namespace lv {

/// What goes of the stored settings now, as CarriedOf gives it. Errors as SettingsBacking::All.
Result<std::vector<StoredValue>> CarriedNow(Run& run, std::vector<Text>* leftOut = nullptr);

/// What goes of what stands in the file. Errors as Files::Open; 7 for a file that is too large, 75 for one that is
/// damaged, of a newer program's, no such file at all, or with a list in it that no start would get over.
Result<std::vector<StoredValue>> ReadSettingsFile(Run& run, TextView path);

struct ExportedSettings {
    std::size_t Values = 0;
    std::vector<Text> LeftOut;  // "section\key" of what such a file cannot hold
};

/// Writes what goes into the file, which its owner alone may read: passwords of servers are in it. Errors as
/// FaultOfExport, SettingsBacking::All and Files::ReplaceOwn; then all is as it was.
Result<ExportedSettings> ExportSettings(Run& run, TextView path, MayReplace mayReplace = MayReplace::kExportsAlone);

}  // namespace lv
