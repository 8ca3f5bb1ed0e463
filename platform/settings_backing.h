// platform/settings_backing.h
//
// The per-user store of text values by application, section and key.

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

namespace lv {

/// A value of an application's, its names as they are spelled in the store.
struct StoredValue {
    std::string Section;
    std::string Key;
    std::string Value;

    bool operator==(const StoredValue&) const = default;
};

class SettingsBacking {
  public:
    virtual ~SettingsBacking() = default;

    /// The stored text; nothing if there is none or it cannot be read. Look-ups are blind to letter case.
    virtual std::optional<std::string> Read(std::string_view application, std::string_view section,
                                            std::string_view key) = 0;

    /// Stores the text. When it returns without error the value outlives a kill of the program. All 256 byte values
    /// survive, character 0 included. Errors: 61 disk full, 70 permission denied, 55 another program holds the store,
    /// 57 anything else of the device.
    virtual Error Write(std::string_view application, std::string_view section, std::string_view key,
                        std::string_view value) = 0;

    /// Takes the value away, and what is not there is no error. In a group it goes with the others. Errors as Write.
    virtual Error Remove(std::string_view application, std::string_view section, std::string_view key) = 0;

    /// All values of the application, in no particular order; in a group, those that it has written as well. Names that
    /// Read could not be asked for, as code page 1252 has not all of their characters, are left out. Errors: 70
    /// permission denied, 55 another program holds the store, 57 anything else of the device.
    virtual Result<std::vector<StoredValue>> All(std::string_view application) = 0;

    /// Writes between BeginGroup and EndGroup become durable together, or not at all. Groups nest. For the hundreds of
    /// keys of a fresh profile.
    virtual void BeginGroup() {}
    virtual Error EndGroup() { return {}; }

    /// As BeginGroup, and until that group's end no other program writes a group: what is read in it is still so when
    /// it becomes durable. Waits for another's as Write does. Errors as Write; then no group has begun.
    virtual Error BeginAlone() {
        BeginGroup();
        return {};
    }

    /// Asked when another program has held the store for a second; the reason names it. True waits once more. After a
    /// false what was to be done fails with 55, and so does all that follows, without a wait and without a question,
    /// until the store is free again.
    using LockedQuestion = std::function<bool(const Error& reason)>;
    virtual void WhenLocked(LockedQuestion /*question*/) {}  // NOLINT(performance-unnecessary-value-param): it is kept
};

/// Groups the writes of a scope.
class SettingsGroup {
  public:
    explicit SettingsGroup(SettingsBacking& store) : store_(store) { store_.BeginGroup(); }
    ~SettingsGroup() { (void)store_.EndGroup(); }
    SettingsGroup(const SettingsGroup&) = delete;
    SettingsGroup& operator=(const SettingsGroup&) = delete;

  private:
    SettingsBacking& store_;
};

}  // namespace lv
