// platform/linux/wine_registry.h
//
// The registry of Windows games on Linux: Wine's own, read and written through its "reg"; without Wine, the settings
// store.

#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/reg_file.h"
#include "platform/settings_backing.h"
#include "platform/user_registry.h"

namespace lv {

struct WineSetup {
    std::filesystem::path Command;  // empty: there is no Wine
    std::filesystem::path Prefix;
    std::chrono::milliseconds Patience{60000};  // with a Wine that does not end
};

/// The wine found on PATH, with this user's prefix.
WineSetup FindWine();

/// Reading never makes a prefix: before there is one, nothing is in it. Writing makes it. A key that was read is
/// remembered for two seconds or until a Set, so that hundreds of values in a row cost one run of Wine.
/// Without Wine a value is kept under the application "User Registry", the key's path as the section and its name as
/// the key, as "1:text" or "4:number". Error 57 if Wine does not answer.
class WineRegistry : public UserRegistry {
  public:
    WineRegistry(SettingsBacking& store, WineSetup wine);

    Result<RegistryValue> Query(std::string_view path, std::string_view name) override;

    /// Error 5 also for a value that is neither text nor a number, and for control characters in the names.
    Error Set(std::string_view path, std::string_view name, const RegistryValue& value) override;

    /// One run of Wine for all. If Wine itself fails, each value has that error.
    std::vector<Result<RegistryValue>> QueryAll(std::span<const RegistryPlace> places) override;

    /// One run of Wine for all. One value that would be refused keeps all from being written.
    Error SetAll(std::span<const RegistryEntry> entries) override;

  private:
    struct Remembered {
        std::chrono::steady_clock::time_point At;
        std::optional<RegistryKey> Key;
    };
    Result<RegistryValue> QueryStore(std::string_view path, std::string_view name);
    Error SetInStore(std::string_view path, std::string_view name, const RegistryValue& value);
    Error RememberKeys(std::span<const RegistryPlace> places);
    [[nodiscard]] Result<RegistryValue> Recall(const RegistryPlace& place) const;
    /// A registry file of the key and all below it; empty if there is no such key.
    Result<std::string> Export(std::string_view path);
    Error Import(std::string_view bytes);
    Result<int> RunReg(const std::filesystem::path& directory, std::vector<std::string> arguments);

    SettingsBacking& store_;
    WineSetup wine_;
    std::map<std::string, Remembered> remembered_;  // by the path in lower case
};

}  // namespace lv
