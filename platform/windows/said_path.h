// platform/windows/said_path.h
//
// The system's paths in code page 1252. A name that has no form there is said by the short name that the disk keeps
// beside it, GAMES~1, if it keeps any.

#pragma once

#include <optional>
#include <string>

#include "platform/error.h"

namespace lv {

/// The short name of the last component of a path; empty if the disk keeps none, or if there is nothing at the path.
std::wstring ShortName(const std::wstring& path);

/// Where short names come from.
using ShortNames = std::wstring (*)(const std::wstring& path);

/// The path with short names in place of those that have no form; nothing if one of these has none.
std::optional<std::string> PathInCodePage(const std::wstring& systemPath, ShortNames names = ShortName);

/// As PathInCodePage, with "?" for what has no form.
std::string SayPath(const std::wstring& systemPath, ShortNames names = ShortName);

/// Why PathInCodePage has nothing for the path, and what helps.
Error WhyNotSaid(const std::wstring& systemPath, ShortNames names = ShortName);

}  // namespace lv
