#include "foundation/list_search.h"

#include <algorithm>
#include <limits>

#include "foundation/field_strings.h"
#include "foundation/numbers.h"

namespace lv {

namespace {

// Rows beyond this one have no index.
constexpr std::size_t kMostRows = std::numeric_limits<Index>::max();

TextView Stretch(TextView item, std::size_t start, std::size_t length) {
    const std::size_t skipped = start == 0 ? 0 : start - 1;
    return skipped >= item.size() ? TextView() : item.substr(skipped, length);
}

template <class Matches>
Index FindFirst(const std::vector<Text>& list, bool& found, const Matches& matches) {
    const std::size_t rows = std::min(list.size(), kMostRows);
    for (std::size_t i = 0; i < rows; ++i) {
        if (matches(list[i])) {
            found = true;
            return static_cast<Index>(i);
        }
    }
    found = false;
    return static_cast<Index>(rows);
}

}  // namespace

Index FindSorted(const std::vector<Text>& list, std::size_t start, std::size_t length, TextView key, bool& found) {
    int low = 0;
    int high = static_cast<int>(std::min(list.size(), kMostRows)) - 1;
    while (low <= high) {
        const int middle = (low + high) / 2;
        const TextView probe = Stretch(list[static_cast<std::size_t>(middle)], start, length);
        if (key == probe) {
            found = true;
            return static_cast<Index>(middle);
        }
        if (key < probe) {
            high = middle - 1;
        } else {
            low = middle + 1;
        }
    }
    found = false;
    return static_cast<Index>(low);
}

Index FindExact(const std::vector<Text>& list, std::size_t start, std::size_t length, TextView key, bool& found) {
    return FindFirst(list, found, [&](TextView item) { return SameText(Stretch(item, start, length), key); });
}

Index FindNumeric(const std::vector<Text>& list, std::size_t start, std::size_t length, TextView key, bool& found,
                  bool decimalPointIsDot) {
    const auto number = [&](TextView text) {
        return ToNumber(decimalPointIsDot ? Text(text) : ReplaceSameLength(text, ",", "."));
    };
    const double wanted = number(key);
    return FindFirst(list, found, [&](TextView item) {
        return SameText(Stretch(item, start, length), key) && number(item) == wanted;
    });
}

}  // namespace lv
