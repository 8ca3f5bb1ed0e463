// platform/windows/registry_key.h
//
// A key of the user's registry that closes itself, and the values in it, in the system's own text.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/windows/system.h"

namespace lv {

struct RawRegistryValue {
    DWORD Type = 0;
    std::wstring Text;  // for REG_SZ, as long as reported, its terminator cut off
    std::uint32_t Number = 0;
};

class RegistryKeyHandle {
  public:
    RegistryKeyHandle() = default;
    ~RegistryKeyHandle();
    RegistryKeyHandle(const RegistryKeyHandle&) = delete;
    RegistryKeyHandle& operator=(const RegistryKeyHandle&) = delete;

    /// Below HKEY_CURRENT_USER. Each returns the system's error number, 0 for success.
    LSTATUS Open(const std::wstring& path, REGSAM access);
    /// Opens the key, and makes it if it is not there.
    LSTATUS OpenOrMake(const std::wstring& path, REGSAM access);

    /// Below HKEY_LOCAL_MACHINE, as programs of 32 bits see it; to be read alone.
    LSTATUS OpenMachine32(const std::wstring& path);
    /// The names of at most `most` keys in it.
    [[nodiscard]] std::vector<std::wstring> Keys(std::size_t most) const;

    /// The names of all keys in it, and of all values.
    LSTATUS AllKeys(std::vector<std::wstring>& names) const;
    LSTATUS AllValues(std::vector<std::wstring>& names) const;

    /// A value of a type other than text and number comes back as its type alone.
    LSTATUS Query(const std::wstring& name, RawRegistryValue& value) const;
    /// The value as it stands, of whatever type.
    LSTATUS QueryBytes(const std::wstring& name, DWORD& type, std::string& bytes) const;
    [[nodiscard]] LSTATUS SetBytes(const std::wstring& name, DWORD type, std::string_view bytes) const;
    [[nodiscard]] LSTATUS Delete(const std::wstring& name) const;
    [[nodiscard]] LSTATUS SetText(const std::wstring& name, const std::wstring& text) const;
    [[nodiscard]] LSTATUS SetNumber(const std::wstring& name, std::uint32_t number) const;

  private:
    void Close();

    HKEY key_ = nullptr;
};

}  // namespace lv
