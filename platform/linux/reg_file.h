// platform/linux/reg_file.h
//
// Registry files, "Windows Registry Editor Version 5.00": UTF-16LE text with a byte order mark, CR LF.

#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/user_registry.h"

namespace lv {

/// The values of one key by their names in lower case; the nameless one is "".
using RegistryKey = std::map<std::string, RegistryValue>;

/// The values of HKEY_CURRENT_USER\`path` in a registry file; nothing if the key is not in it. What cannot be read is
/// passed over, for the file may be cut off or damaged. A character without a code page 1252 form reads as "?".
std::optional<RegistryKey> ReadRegFile(std::string_view bytes, std::string_view path);

/// A registry file that sets one value. Nothing if `path` or `name` holds a control character, or the value is neither
/// text nor a number: such a file could say something else than is meant.
std::optional<std::string> ComposeRegFile(std::string_view path, std::string_view name, const RegistryValue& value);

/// The same for any number of values, in their order; nothing if one of them is refused.
std::optional<std::string> ComposeRegFile(std::span<const RegistryEntry> entries);

}  // namespace lv
