// launch/text_patterns.h
//
// The texts of the launch tables: what is added, with marks where a value goes.

#pragma once

#include "foundation/text.h"

namespace lv {

/// The pattern with "%" replaced by the value and "#" by the resolution; marks inside those two stay as they are.
Text FillPattern(TextView pattern, TextView value, TextView resolution = "");

}  // namespace lv
