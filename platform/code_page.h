// platform/code_page.h
//
// Code page 1252, the program's text, to UTF-8 and back, and its letter case.
// The mapping is Microsoft's best-fit one: the five bytes that code page 1252 leaves undefined (81, 8D, 8F, 90, 9D)
// stand for the control characters of the same number, so all 256 byte values survive the way there and back.

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lv {

/// The Unicode code point of a code page 1252 byte.
char32_t CodePointOf(unsigned char byte);

/// The code page 1252 byte of a code point, if it has one.
std::optional<unsigned char> ByteOf(char32_t codePoint);

/// Code page 1252 to UTF-8. Never fails.
std::string ToUtf8(std::string_view text);

/// UTF-8 to code page 1252. Empty if the text is not well-formed UTF-8 (overlong forms and surrogates included) or
/// holds a character that has no code page 1252 form.
std::optional<std::string> FromUtf8(std::string_view utf8);

/// As FromUtf8, with "?" for each character or stray byte that has no form. For text that is only shown.
std::string FromUtf8Lossy(std::string_view utf8);

/// Letter case of code page 1252, accented letters included. A letter whose other case is not in the code page stays.
char UpperCase(char character);
char LowerCase(char character);
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

/// Equal but for letter case.
bool SameText(std::string_view a, std::string_view b);
bool StartsWithText(std::string_view text, std::string_view start);

}  // namespace lv
