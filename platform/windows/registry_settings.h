// platform/windows/registry_settings.h
//
// The settings store where the platform's own GetSetting and SaveSetting keep it:
// HKEY_CURRENT_USER\Software\VB and VBA Program Settings\<application>\<section>, one text value a key.

#pragma once

#include "platform/settings_backing.h"

namespace lv {

/// The registry keeps each write by itself, in the order of the writes: a group is not held back, and of one that is
/// cut off the first writes are there.
class RegistrySettings : public SettingsBacking {
  public:
    /// A name with a character 0 in it, which the registry cannot hold, is nowhere.
    std::optional<std::string> Read(std::string_view application, std::string_view section,
                                    std::string_view key) override;

    /// Error 57 for such a name, and for one longer than the registry's (255 characters a section, 16,383 a key).
    Error Write(std::string_view application, std::string_view section, std::string_view key,
                std::string_view value) override;
};

}  // namespace lv
