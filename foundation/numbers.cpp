#include "foundation/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

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

// What a number reads as that has too many digits: the greatest there is, or 0 if all of them stand behind the point.
double Extreme(TextView digits) {
    const TextView whole = digits.substr(0, digits.find('.'));
    if (whole.find_first_of("123456789") == TextView::npos) {
        return 0;
    }
    const double greatest = std::numeric_limits<double>::max();
    return whole.starts_with('-') ? -greatest : greatest;
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
    const auto read = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    return read.ec == std::errc::result_out_of_range ? Extreme(plain) : number;
}

Index ToIndex(TextView text) {
    return Rounded<Index>(text);
}

std::int32_t ToLong(TextView text) {
    return Rounded<std::int32_t>(text);
}

Text NumberText(double number) {
    std::array<char, 400> digits{};  // the longest, 5e-324, takes 326
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed).ptr;
    const Text text(digits.data(), end);
    return text == "-0" ? "0" : text;
}

}  // namespace lv
