// transfer/setting_changes.h
//
// What differs between two sets of settings, in plain counts.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/settings_backing.h"

namespace lv {

struct SettingChanges {
    std::size_t Entries = 0;   // of the main window's lists that the one has and the other has not
    std::size_t Profiles = 0;  // video profiles of which any value differs, beside the base profile
    std::size_t Settings = 0;  // all other values that differ

    [[nodiscard]] bool Any() const { return Entries + Profiles + Settings > 0; }
};

/// Both as CarriedOf gives them. A value that only one has differs.
SettingChanges ChangesBetween(const std::vector<StoredValue>& before, const std::vector<StoredValue>& after);

/// "3 list entries, 1 video profile and 12 settings"; "nothing" for none.
Text ChangesText(const SettingChanges& changes);

}  // namespace lv
