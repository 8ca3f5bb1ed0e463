// foundation/utf16_text.h
//
// Text of two bytes a letter, which newer programs write and the games of these years cannot read.

#pragma once

#include "foundation/text.h"
#include "platform/error.h"

namespace lv {

/// How many of a file's first bytes IsUtf16 needs.
constexpr std::size_t kByteOrderMark = 2;

/// Whether a file that begins with these bytes is UTF-16 text: a byte order mark stands first, FF FE or FE FF.
bool IsUtf16(TextView start);

/// What is told of such a file: error 75, with its path and what to do.
Error Utf16Fault(TextView path);

}  // namespace lv
