#include "games/engines/engine_search.h"

#include <algorithm>
#include <map>
#include <set>

#include "foundation/field_strings.h"
#include "games/engines/engine_lookup.h"
#include "games/engines/start_rules.h"

namespace lv {

namespace {

constexpr std::size_t kLongestTitle = 100;

/// Without what parts the fields of a list, and without control characters.
Text FitForList(TextView name) {
    Text title(name.substr(0, kLongestTitle));
    std::ranges::replace_if(
        title,
        [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F' || c == ';' || c == ',' || c == '"'; },
        '?');
    return title;
}

Text WithoutSlash(TextView directory) {
    Text path = Trim(directory);
    while (path.ends_with('\\')) {
        path.pop_back();
    }
    return path;
}

/// Those of one directory, by name.
std::vector<FoundEngine> EnginesIn(Files& disk, const Text& directory, const EngineLookup& lookup, bool& cutShort) {
    std::vector<FoundEngine> found;
    const Result<std::vector<DirectoryEntry>> listed =
        disk.List(directory.ends_with(':') ? directory + "\\" : directory);
    const std::vector<DirectoryEntry>& entries = listed.Value;
    cutShort = entries.size() > kMostDirectoryEntries;
    for (std::size_t i = 0; i < std::min(entries.size(), kMostDirectoryEntries); ++i) {
        if (entries[i].IsDirectory || entries[i].IsDevice) {
            continue;
        }
        if (const Engine* const engine = lookup.Of(entries[i].Name)) {
            found.push_back({engine, Join(directory, "\\", entries[i].Name), entries[i].Name});
        }
    }
    std::ranges::sort(found, {}, [](const FoundEngine& each) { return LowerCase(each.Title); });
    return found;
}

}  // namespace

EngineSearch FindEngines(Files& disk, const std::vector<Text>& directories, const EngineTable& table) {
    const EngineLookup lookup(table);
    EngineSearch search;
    std::set<Text> listed;
    std::set<Text> names;
    std::map<const Engine*, int> counts;
    for (const Text& each : directories) {
        const Text directory = WithoutSlash(each);
        if (directory.empty() || !listed.insert(LowerCase(directory)).second) {
            continue;
        }
        bool cutShort = false;
        for (FoundEngine& found : EnginesIn(disk, directory, lookup, cutShort)) {
            if (names.insert(LowerCase(found.Title)).second) {
                ++counts[found.Its];
                found.Path = ProgramToStart(disk, *found.Its, found.Path);
                search.Engines.push_back(std::move(found));
            }
        }
        if (cutShort) {
            search.CutShort.push_back(directory);
        }
    }
    for (FoundEngine& found : search.Engines) {
        const bool isOneOfMany = counts[found.Its] > 1;
        found.Title = FitForList(isOneOfMany ? Join(found.Its->Name, " (", found.Title, ")") : found.Its->Name);
    }
    std::ranges::stable_sort(search.Engines, {}, &FoundEngine::Its);
    return search;
}

}  // namespace lv
