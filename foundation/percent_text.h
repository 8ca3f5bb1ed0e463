// foundation/percent_text.h
//
// Text in which some bytes stand as "%" and two hexadecimal digits, so that any byte survives where not all may stand.

#pragma once

#include <optional>

#include "foundation/text.h"

namespace lv {

/// "%" and all that is not plain as "%" and two digits: "a;b" is "a%3Bb".
Text PercentText(TextView text, bool (*isPlain)(char));

/// Back again. Nothing if a "%" is without its digits, which are "0" to "9" and "A" to "F".
std::optional<Text> FromPercentText(TextView text);

}  // namespace lv
