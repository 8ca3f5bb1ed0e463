#include "transfer/carried_values.h"

#include <algorithm>

#include "catalogs/built_in_lists.h"
#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"
#include "foundation/run.h"
#include "transfer/settings_text.h"

namespace lv {

namespace {

using enum PathsIn;
using enum Carried;

constexpr TextView kAnyKey = "*";
constexpr TextView kOfAWindow = "_frm";
constexpr TextView kProfileList = "VideoProfileList";

// clang-format off
constexpr CarriedRule kRules[] = {
    // The catalogs, and what is selected in them.
    {kOptions, "Executables",           kYes, kFields, ""},
    {kOptions, "ExecutablesPos",        kYes, kNowhere, "0"},
    {kOptions, "Games",                 kYes, kNowhere, ""},
    {kOptions, "GamesPos",              kYes, kNowhere, "0"},
    {kOptions, "Scripts",               kYes, kFields, ""},
    {kOptions, "NetServers",            kYes, kNowhere, ""},
    {kOptions, "Demos",                 kYes, kNowhere, kBuiltInDemos},
    {kOptions, "DemoPos",               kYes, kNowhere, "0"},
    {kOptions, "Memory",                kYes, kNowhere, kBuiltInMemory},
    {kOptions, "MemoryPos",             kYes, kNowhere, "2"},
    // The boxes.
    {kOptions, "UseGames",              kYes, kNowhere, "1"},
    {kOptions, "UseScripts",            kYes, kNowhere, "0"},
    {kOptions, "UseServers",            kYes, kNowhere, "0"},
    {kOptions, "UseDemos",              kYes, kNowhere, "1"},
    {kOptions, "UseMemory",             kYes, kNowhere, "1"},
    {kOptions, "Dedicated",             kYes, kNowhere, "0"},
    {kOptions, "Listen",                kYes, kNowhere, "0"},
    {kOptions, "QSpy",                  kYes, kNowhere, "0"},
    {kOptions, "LaunchQSpy",            kYes, kNowhere, "0"},
    {kOptions, "NoLAN",                 kYes, kNowhere, "0"},
    {kOptions, "NoUDP",                 kYes, kNowhere, "0"},
    {kOptions, "NoCDAudio",             kYes, kNowhere, "0"},
    {kOptions, "EndOnLaunch",           kYes, kNowhere, "0"},
    {kOptions, "ShowEnvSettings",       kYes, kNowhere, "0"},
    {kOptions, "UseCustomCommandLine",  kYes, kNowhere, "0"},
    {kOptions, "CustomCommandLineText", kYes, kNowhere, ""},
    // Programs of the user's.
    {kOptions, "ScriptEditor",          kIfThere, kWhole},
    {kOptions, "GameSpyLocation",       kIfThere, kWhole},
    // Video profiles: the list, the one that is picked, the card. The base profile is the rest of the section.
    {kOptions, kProfileList,            kYes, kNowhere, ""},
    {kOptions, "VideoProfilePos",       kYes, kNowhere, "0"},
    {kOptions, "VidCard",               kYes, kNowhere, ""},
    // How this machine's window stands.
    {kOptions, "ShowAll",               kNo},
    {kOptions, "OnTop",                 kNo},
    {kOptions, kAnyKey,                 kYes},

    // How the values of the video profiles are laid out; all else there is what has happened on this machine.
    {kStuff, "VP_Version",              kYes, kNowhere, "0"},
    {kStuff, "NVC_Version",             kYes, kNowhere, "0"},
    {kStuff, kAnyKey,                   kNo},

    {"DefaultScript", kAnyKey,          kYes, kKeyToo},
    {"ShowMessage", kAnyKey,            kYes},
    {"SetupFoundry", kAnyKey,           kYes},
    {"Setups", kAnyKey,                 kYes, kSetup},

    // Engines that play games of other directories; whom they were named to is of this machine, and so are the
    // directories of links.
    {"Engines", "Seats",                kYes, kFields, ""},
    {"Engines", kAnyKey,                kNo},
    {"LinkedTrees", kAnyKey,            kNo},
    {"LinksLeftOut", kAnyKey,           kNo},

    {"", kAnyKey,                       kYes},
};
// clang-format on

bool IsOwnSection(TextView name) {
    return LowerCase(name).ends_with(kOfAWindow) ||
           std::ranges::any_of(kRules, [name](const CarriedRule& rule) { return SameText(rule.Section, name); });
}

Text IdOf(const StoredValue& value) {
    return Join(LowerCase(value.Section), TextView("\0", 1), LowerCase(value.Key));
}

}  // namespace

std::span<const CarriedRule> CarriedRules() {
    return kRules;
}

const StoredValue* FindValue(const std::vector<StoredValue>& values, TextView section, TextView key) {
    const auto found = std::ranges::find_if(values, [section, key](const StoredValue& value) {
        return SameText(value.Key, key) && SameText(value.Section, section);
    });
    return found == values.end() ? nullptr : &*found;
}

std::vector<Text> ProfileNames(const std::vector<StoredValue>& values) {
    const StoredValue* const list = FindValue(values, kOptions, kProfileList);
    std::vector<Text> names;
    if (list != nullptr) {
        for (const Text& field : SplitFields(list->Value)) {
            if (Text name = LowerCase(Trim(field)); !IsOwnSection(name)) {
                names.push_back(std::move(name));
            }
        }
    }
    std::ranges::sort(names);
    return names;
}

const CarriedRule* RuleOf(const std::vector<Text>& profiles, TextView section, TextView key) {
    const bool isProfile = std::ranges::binary_search(profiles, LowerCase(section));
    const auto* const rule = std::ranges::find_if(kRules, [&](const CarriedRule& row) {
        const bool isSection = row.Section.empty() ? isProfile : SameText(row.Section, section);
        return isSection && (row.Key == kAnyKey || SameText(row.Key, key));
    });
    return rule == std::end(kRules) ? nullptr : rule;
}

std::vector<StoredValue> CarriedOf(const std::vector<StoredValue>& values, std::vector<Text>* leftOut) {
    const std::vector<Text> profiles = ProfileNames(values);
    std::vector<std::pair<Text, const StoredValue*>> carried;
    for (const StoredValue& value : values) {
        const CarriedRule* const rule = RuleOf(profiles, value.Section, value.Key);
        if (rule == nullptr || rule->Goes == kNo) {
            continue;
        }
        if (FitsSettingsText(value)) {
            carried.emplace_back(IdOf(value), &value);
        } else if (leftOut != nullptr) {
            leftOut->push_back(Join(value.Section, "\\", value.Key));
        }
    }
    std::stable_sort(carried.begin(), carried.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    const auto twice =
        std::unique(carried.begin(), carried.end(), [](const auto& a, const auto& b) { return a.first == b.first; });
    carried.erase(twice, carried.end());
    std::vector<StoredValue> sorted;
    sorted.reserve(carried.size());
    for (const auto& [id, value] : carried) {
        sorted.push_back(*value);
    }
    return sorted;
}

}  // namespace lv
