// foundation/check_sum.h
//
// The check sum of the program's own files, by which damage is told.

#pragma once

#include <cstdint>

#include "foundation/text.h"

namespace lv {

/// CRC-32, as in zip archives: of "123456789" it is cbf43926. Behind a text with the sum `before` it is that of both
/// together.
std::uint32_t CheckSum(TextView text, std::uint32_t before = 0);

/// Eight digits, "cbf43926".
Text CheckSumText(std::uint32_t sum);

}  // namespace lv
