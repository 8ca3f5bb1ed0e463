// foundation/number_format.h
//
// How the user's locale reads numbers, and the program's version as a text.

#pragma once

#include "foundation/text.h"

namespace lv {

/// The number that the text is to a locale with this decimal separator, "." or ",", as a whole number without leading
/// zeros: "1.00" is "1" with a point and "100" with a comma, where points only part the thousands.
Text FormatWhole(TextView text, char decimalSeparator);

/// Whether "1.00" reads as 1.
bool DecimalPointIsDot(char decimalSeparator);

struct Version {
    int Major = 1;
    int Minor = 6;
    int Revision = 112;
};

/// "1.06.0112 <Beta>".
Text VersionText(const Version& version = {});

}  // namespace lv
