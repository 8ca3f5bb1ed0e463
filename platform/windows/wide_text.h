// platform/windows/wide_text.h
//
// Code page 1252 to the system's own text and back, whatever code page the user's system runs.

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lv {

/// UTF-16 of code page 1252. Never fails.
std::wstring ToWide(std::string_view text);

/// Code page 1252 of UTF-16. Nothing if a character has no form in it.
std::optional<std::string> FromWide(std::wstring_view wide);

/// As FromWide, with "?" for each character that has no form. For text that is only shown.
std::string FromWideLossy(std::wstring_view wide);

/// UTF-8 to UTF-16 and back. Nothing if it is not well-formed.
std::optional<std::wstring> WideFromUtf8(std::string_view utf8);
std::optional<std::string> Utf8FromWide(std::wstring_view wide);

}  // namespace lv
