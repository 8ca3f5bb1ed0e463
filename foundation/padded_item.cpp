#include "foundation/padded_item.h"

#include "foundation/field_strings.h"
#include "foundation/list_search.h"

namespace lv {

Text MakeItem(TextView title, TextView value) {
    return PadToWidth(title, NameFieldWidth).append(value);
}

Text ItemTitle(TextView item) {
    return Trim(item.substr(0, NameFieldWidth));
}

Text ItemValue(TextView item) {
    return Trim(StoredItemValue(item));
}

Text StoredItemValue(TextView item) {
    return DropLeft(item, NameFieldWidth);
}

std::optional<Index> FindItemValue(const std::vector<Text>& items, TextView wanted, std::size_t skipped) {
    bool found = false;
    const Index row = FindExact(items, NameFieldWidth + skipped + 1, kToTheEnd, wanted, found);
    return found ? std::optional(row) : std::nullopt;
}

}  // namespace lv
