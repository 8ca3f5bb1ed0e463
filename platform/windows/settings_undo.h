// platform/windows/settings_undo.h
//
// What a group of settings is about to change, as it was: kept in the registry as one value while the group is
// written, so that a group which was cut off can be taken back.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/windows/system.h"

namespace lv {

/// A value below HKEY_CURRENT_USER before the group.
struct FormerValue {
    std::wstring Path;
    std::wstring Name;
    bool WasThere = false;
    DWORD Type = REG_NONE;
    std::string Bytes;
};

/// The values one behind the other: their count, and for each its path, its name and its bytes, all led by their
/// lengths, and its type; numbers have 32 bits, the lowest byte first.
std::string PackFormerValues(const std::vector<FormerValue>& values);

/// Nothing if it is not exactly what PackFormerValues makes.
std::optional<std::vector<FormerValue>> UnpackFormerValues(std::string_view packed);

/// The value as it is now.
FormerValue ValueNow(const std::wstring& path, const std::wstring& name);

/// Puts the value back, or takes away what was not there; the system's error number, 0 for success.
LSTATUS PutBack(const FormerValue& value);

}  // namespace lv
