// foundation/numbers.h
//
// Numbers in stored texts, read tolerantly.

#pragma once

#include "foundation/text.h"

namespace lv {

/// The number at the text's start, blanks passed over, "." as the separator; 0 without one. "12 MB" is 12.
double ToNumber(TextView text);

/// As ToNumber, rounded, and held within 16 bits.
Index ToIndex(TextView text);

/// As ToNumber, rounded, and held within 32 bits.
std::int32_t ToLong(TextView text);

/// The number in its shortest form, with "." and without an exponent: 0.50 is "0.5".
Text NumberText(double number);

}  // namespace lv
