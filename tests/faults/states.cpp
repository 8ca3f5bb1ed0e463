#include "tests/faults/states.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <set>

#include "foundry/versions/version_file.h"
#include "transfer/settings_text.h"

namespace lv {

namespace {

using Entries = std::map<std::string, std::string>;

// Each start and each launch counts on.
const std::set<std::string> kCounts = {"LV-Stuff/RunCount", "LV-Stuff/LaunchCount", "LV-Stuff/FirstRunOn"};
constexpr const char* kPlayed = "Played/";  // a row a program

std::optional<std::string> ValueIn(const Entries& entries, const std::string& name) {
    const auto found = entries.find(name);
    return found == entries.end() ? std::nullopt : std::optional(found->second);
}

bool IsLeftover(const std::string& name) {
    return name.find("/.lv_666_") != std::string::npos || name.find("/.drives_") != std::string::npos;
}

std::string Described(const std::string& name, const std::optional<std::string>& value) {
    return name + (value ? ": " + value->substr(0, 60) : std::string(" is not there"));
}

// A value is as before or as after, wherever there is none is one of the two.
void Compare(const Entries& before, const Entries& after, const Entries& now, const std::set<std::string>& passedOver,
             std::vector<std::string>& damage) {
    std::set<std::string> names;
    for (const Entries* entries : {&before, &after, &now}) {
        for (const auto& [name, value] : *entries) {
            names.insert(name);
        }
    }
    for (const std::string& name : names) {
        const auto value = ValueIn(now, name);
        if (value != ValueIn(before, name) && value != ValueIn(after, name) && !passedOver.contains(name)) {
            damage.push_back(Described(name, value));
        }
    }
}

}  // namespace

HomeState StateOf(const FaultyHome& home) {
    auto rows = home.Rows();
    if (rows) {
        std::erase_if(*rows, [](const auto& row) {
            return row.first.starts_with(kPlayed) && std::ranges::count(row.second, ';') == 2;
        });
    }
    Entries files = home.Files();
    std::erase_if(files, [](const auto& file) {
        return file.first.find("/backups/settings ") != std::string::npos && ReadSettingsText(file.second).Ok();
    });
    return {std::move(files), rows.value_or(Entries())};
}

std::vector<std::string> Damage(const HomeState& before, const HomeState& after, const HomeState& now,
                                Leftovers leftovers) {
    std::vector<std::string> damage;
    Entries files = now.Files;
    if (leftovers == Leftovers::kAllowed) {
        std::erase_if(files, [](const auto& file) { return IsLeftover(file.first); });
    }
    Compare(before.Files, after.Files, files, {}, damage);
    Compare(before.Rows, after.Rows, now.Rows, kCounts, damage);
    return damage;
}

bool IsNew(const HomeState& after, const HomeState& now) {
    return Damage(after, after, now).empty();
}

HomeState WithoutPicture(HomeState state) {
    std::erase_if(state.Files, [](const auto& file) { return file.first.ends_with("/lv_666.pif"); });
    return state;
}

HomeState WithAnyVersions(HomeState state) {
    for (auto& [path, bytes] : state.Files) {
        if (path.find("/versions/") != std::string::npos) {
            const VersionFile file = ReadVersionFile(bytes);
            bytes = file.IsDamaged || file.Versions.empty() ? bytes : "(versions)";
        }
    }
    return state;
}

std::vector<std::string> NewIn(const std::vector<std::string>& told, const std::vector<std::string>& usual) {
    std::vector<std::string> all;
    std::copy_if(told.begin(), told.end(), std::back_inserter(all),
                 [&](const std::string& text) { return std::find(usual.begin(), usual.end(), text) == usual.end(); });
    return all;
}

bool Whole() {
    return std::getenv("LV_WHOLE") != nullptr;
}

}  // namespace lv
