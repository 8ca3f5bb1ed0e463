// platform/user_registry.h
//
// The part of the registry that other programs keep for this user: Half-Life's and GameSpy 3D's settings.
// Paths lie below HKEY_CURRENT_USER, with "\" between the keys: "Software\Valve\Half-Life\Settings".

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

namespace lv {

constexpr std::uint32_t kRegistryText = 1;    // REG_SZ
constexpr std::uint32_t kRegistryNumber = 4;  // REG_DWORD

struct RegistryValue {
    std::uint32_t Type = 0;  // kRegistryText, kRegistryNumber, or a type that this program does not use
    std::string Text;        // for kRegistryText, without its terminator
    std::uint32_t Number = 0;
};

struct RegistryPlace {
    std::string Path;
    std::string Name;
};

struct RegistryEntry {
    RegistryPlace Place;
    RegistryValue Value;
};

class UserRegistry {
  public:
    virtual ~UserRegistry() = default;

    /// The value `name` of the key `path`. Error 2 if the key or the value is not there.
    virtual Result<RegistryValue> Query(std::string_view path, std::string_view name) = 0;

    /// Writes the value; a key that is not there is made first. Error 5 if access is denied.
    virtual Error Set(std::string_view path, std::string_view name, const RegistryValue& value) = 0;

    /// Query for each place, in their order; for hundreds of values, where one access is dear.
    virtual std::vector<Result<RegistryValue>> QueryAll(std::span<const RegistryPlace> places);

    /// Set for each entry, in their order; what stands behind the first that fails is not written.
    virtual Error SetAll(std::span<const RegistryEntry> entries);
};

}  // namespace lv
