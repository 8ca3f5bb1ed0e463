#include "foundation/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace lv {

namespace {

template <class Whole>
Whole Rounded(TextView text) {
    const double number = std::nearbyint(ToNumber(text));
    if (number <= static_cast<double>(std::numeric_limits<Whole>::min())) {
        return std::numeric_limits<Whole>::min();
    }
    if (number >= static_cast<double>(std::numeric_limits<Whole>::max())) {
        return std::numeric_limits<Whole>::max();
    }
    return static_cast<Whole>(number);
}

}  // namespace

double ToNumber(TextView text) {
    Text digits;
    bool seenPoint = false;
    for (const char c : text) {
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            continue;
        }
        const bool sign = (c == '-' || c == '+') && digits.empty();
        const bool point = c == '.' && !seenPoint;
        if (!sign && !point && (c < '0' || c > '9')) {
            break;
        }
        seenPoint = seenPoint || point;
        digits += c;
    }
    const TextView plain = digits.starts_with('+') ? TextView(digits).substr(1) : TextView(digits);
    double number = 0;
    std::from_chars(plain.data(), plain.data() + plain.size(), number);
    return std::isfinite(number) ? number : 0;
}

Index ToIndex(TextView text) { return Rounded<Index>(text); }

std::int32_t ToLong(TextView text) { return Rounded<std::int32_t>(text); }

}  // namespace lv
