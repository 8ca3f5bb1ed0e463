// foundation/text.h
//
// The program's text: bytes of code page 1252. Positions count from 1, indexes from 0, both signed 16-bit.

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/code_page.h"

namespace lv {

using Text = std::string;
using TextView = std::string_view;
using Index = std::int16_t;

constexpr TextView NewLine = "\r\n";
constexpr TextView TabChar = "\t";
constexpr TextView SingleQuote = "'";
constexpr TextView DoubleQuote = "\"";
constexpr TextView Blank = " ";
constexpr TextView TwoBlanks = "  ";

/// Joins any number of texts.
template <class... Parts>
Text Join(const Parts&... parts) {
    Text joined;
    joined.reserve((TextView(parts).size() + ... + 0));
    (joined.append(TextView(parts)), ...);
    return joined;
}

}  // namespace lv
