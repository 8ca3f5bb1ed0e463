#include "foundation/number_format.h"

#include <cstdio>

#include "foundation/numbers.h"

namespace lv {

Text FormatWhole(TextView text, char decimalSeparator) {
    const char grouping = decimalSeparator == ',' ? '.' : ',';
    Text plain;
    for (const char c : text) {
        if (c != grouping) {
            plain += c == decimalSeparator ? '.' : c;
        }
    }
    const std::int32_t whole = ToLong(plain);
    return whole == 0 ? Text() : std::to_string(whole);
}

bool DecimalPointIsDot(char decimalSeparator) {
    return FormatWhole("1.00", decimalSeparator) == "1";
}

Text VersionText(const Version& version) {
    char digits[48];
    (void)std::snprintf(digits, sizeof digits, "%d.%02d.%04d", version.Major, version.Minor, version.Revision);
    return Join(digits, " <Beta>");
}

}  // namespace lv
