#include "transfer/setting_changes.h"

#include <algorithm>
#include <map>
#include <set>

#include "catalogs/catalog_store.h"
#include "transfer/carried_values.h"

namespace lv {

namespace {

constexpr const Catalog* kCatalogs[] = {&kExecutables, &kGames, &kScripts, &kServers, &kDemos, &kMemory};

struct Pair {
    const StoredValue* Before = nullptr;
    const StoredValue* After = nullptr;
};

TextView ValueOf(const StoredValue* value) {
    return value != nullptr ? TextView(value->Value) : TextView();
}

const Catalog* CatalogOf(const StoredValue& value) {
    const auto* const found =
        std::ranges::find_if(kCatalogs, [&value](const Catalog* catalog) { return SameText(catalog->Key, value.Key); });
    return found != std::end(kCatalogs) && SameText(value.Section, kOptions) ? *found : nullptr;
}

std::multiset<Text> Records(TextView value, std::size_t size) {
    std::multiset<Text> records;
    const auto rows = SplitRows(value, size);
    for (std::size_t i = 0; rows && i < rows->Count(); ++i) {
        Text record;
        for (std::size_t field = 0; field < size; ++field) {
            AppendRecord(record, rows->Field(i, field));
        }
        records.insert(std::move(record));
    }
    return records;
}

/// At least one: two lists that differ in their order alone are not the same.
std::size_t ChangedRecords(const Catalog& catalog, const Pair& pair) {
    const auto before = Records(ValueOf(pair.Before), catalog.RecordSize);
    const auto after = Records(ValueOf(pair.After), catalog.RecordSize);
    std::vector<Text> changed;
    std::ranges::set_symmetric_difference(before, after, std::back_inserter(changed));
    return std::max<std::size_t>(changed.size(), 1);
}

Text Count(std::size_t count, TextView one, TextView many) {
    return Join(std::to_string(count), " ", count == 1 ? one : many);
}

}  // namespace

SettingChanges ChangesBetween(const std::vector<StoredValue>& before, const std::vector<StoredValue>& after) {
    std::map<std::pair<Text, Text>, Pair> pairs;
    for (const StoredValue& value : before) {
        pairs[{LowerCase(value.Section), LowerCase(value.Key)}].Before = &value;
    }
    for (const StoredValue& value : after) {
        pairs[{LowerCase(value.Section), LowerCase(value.Key)}].After = &value;
    }
    std::vector<Text> profiles = ProfileNames(before);
    std::ranges::copy(ProfileNames(after), std::back_inserter(profiles));
    const std::set<Text> isProfile(profiles.begin(), profiles.end());

    SettingChanges changes;
    std::set<Text> changedProfiles;
    for (const auto& [names, pair] : pairs) {
        if (pair.Before != nullptr && pair.After != nullptr && pair.Before->Value == pair.After->Value) {
            continue;
        }
        const Catalog* const catalog = CatalogOf(pair.Before != nullptr ? *pair.Before : *pair.After);
        if (catalog != nullptr) {
            changes.Entries += ChangedRecords(*catalog, pair);
        } else if (isProfile.contains(names.first)) {
            changedProfiles.insert(names.first);
        } else {
            ++changes.Settings;
        }
    }
    changes.Profiles = changedProfiles.size();
    return changes;
}

Text ChangesText(const SettingChanges& changes) {
    std::vector<Text> parts;
    if (changes.Entries > 0) {
        parts.push_back(Count(changes.Entries, "list entry", "list entries"));
    }
    if (changes.Profiles > 0) {
        parts.push_back(Count(changes.Profiles, "video profile", "video profiles"));
    }
    if (changes.Settings > 0) {
        parts.push_back(Count(changes.Settings, "setting", "settings"));
    }
    Text text;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const TextView between = i == 0 ? "" : i + 1 == parts.size() ? " and " : ", ";
        text += Join(between, parts[i]);
    }
    return text.empty() ? "nothing" : text;
}

}  // namespace lv
