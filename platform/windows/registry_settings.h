// platform/windows/registry_settings.h
//
// The settings store where the platform's own GetSetting and SaveSetting keep it:
// HKEY_CURRENT_USER\Software\VB and VBA Program Settings\<application>\<section>, one text value a key.

#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/settings_backing.h"

namespace lv {

/// The registry keeps each write by itself. A group is held back until its end; then what it changes is noted as it
/// was, in one value "Unfinished Group" of the application's own key, the group is written, and the note is taken away.
/// A note that is there at the start is of a group that was cut off, and is taken back. Other programs may see a part
/// of a group while it is being written.
class RegistrySettings : public SettingsBacking {
  public:
    /// `application` is the one whose key holds the note, whatever applications a group writes.
    explicit RegistrySettings(std::string_view application);

    /// A name with a character 0 in it, which the registry cannot hold, is nowhere.
    std::optional<std::string> Read(std::string_view application, std::string_view section,
                                    std::string_view key) override;

    /// Error 57 for such a name, and for one longer than the registry's (255 characters a section, 16,383 a key); in a
    /// group the latter comes at its end.
    Error Write(std::string_view application, std::string_view section, std::string_view key,
                std::string_view value) override;

    Error Remove(std::string_view application, std::string_view section, std::string_view key) override;

    /// A section with a "\" in its name is a key in a key.
    Result<std::vector<StoredValue>> All(std::string_view application) override;

    void BeginGroup() override;
    /// An error that a write of the group met, or meets now: then nothing of the group is there. 57 too if another
    /// instance has been writing a group for seconds.
    Error EndGroup() override;
    /// Single writes of others are not held up.
    Error BeginAlone() override;
    ~RegistrySettings() override;
    RegistrySettings(const RegistrySettings&) = delete;
    RegistrySettings& operator=(const RegistrySettings&) = delete;

    /// Called before each change that the end of a group makes. For tests, which end the program there.
    std::function<void()> BeforeEachStep = [] {};

  private:
    class GroupLock;
    struct Held {
        StoredValue Names;  // their value is empty
        std::wstring Path;
        std::wstring Name;
        std::optional<std::wstring> Value;  // nothing: it goes
    };

    Error Change(std::string_view application, std::string_view section, std::string_view key,
                 std::optional<std::string_view> value);
    Error WriteHeld();
    void DropUnchanged();

    std::wstring notePath_;
    std::map<std::string, Held> held_;  // by application, section and key in lower case
    int depth_ = 0;
    Error groupFault_;
    std::unique_ptr<GroupLock> alone_;  // of a group that began so
};

}  // namespace lv
