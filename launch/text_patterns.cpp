#include "launch/text_patterns.h"

namespace lv {

Text FillPattern(TextView pattern, TextView value, TextView resolution) {
    Text filled;
    for (const char c : pattern) {
        if (c == '%') {
            filled += value;
        } else if (c == '#') {
            filled += resolution;
        } else {
            filled += c;
        }
    }
    return filled;
}

}  // namespace lv
