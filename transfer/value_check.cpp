#include "transfer/value_check.h"

#include <algorithm>

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"
#include "foundation/run.h"

namespace lv {

namespace {

struct CheckedCatalog {
    const Catalog& List;
    bool MayBeEmpty;
    bool HealsItsEnd;  // a start cuts ";" from its end
};

// The list of modifications is not here: a damaged one is emptied, and the start goes on.
constexpr CheckedCatalog kCatalogs[] = {
    {kExecutables, true, true}, {kScripts, true, false}, {kServers, true, false},
    {kDemos, true, false},      {kMemory, false, false},
};

constexpr TextView kPairs[] = {"Resolutions", "Bits"};

bool IsWhole(const CheckedCatalog& catalog, TextView value) {
    auto rows = SplitRows(value, catalog.List.RecordSize);
    while (!rows && catalog.HealsItsEnd && value.ends_with(';')) {
        value.remove_suffix(1);
        rows = SplitRows(value, catalog.List.RecordSize);
    }
    return rows && (catalog.MayBeEmpty || rows->Count() > 0);
}

bool ArePairs(TextView value) {
    return value.size() >= kShortestCatalog && CountDelimiters(value, ";") % 2 == 1;
}

}  // namespace

Text FaultOfValue(const StoredValue& value) {
    const auto* const catalog = std::ranges::find_if(
        kCatalogs, [&value](const CheckedCatalog& checked) { return SameText(checked.List.Key, value.Key); });
    const bool isCatalog = catalog != std::end(kCatalogs) && SameText(value.Section, kOptions);
    const bool isListOfPairs = std::ranges::any_of(kPairs, [&value](TextView key) { return SameText(key, value.Key); });
    if ((isCatalog && !IsWhole(*catalog, value.Value)) || (isListOfPairs && !ArePairs(value.Value))) {
        return Join("The list \"", value.Key, "\" of section \"", value.Section, "\" is damaged");
    }
    return {};
}

}  // namespace lv
