#include "console/files/script_finder.h"

#include <algorithm>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr std::size_t kLongestName = 255;

/// "/" between the parts, as archives have it.
Text WithSlashes(TextView name) {
    Text text(name);
    std::ranges::replace(text, '\\', '/');
    return text;
}

bool LeadsOut(TextView name) {
    for (;;) {
        const std::size_t end = std::min(name.find('/'), name.size());
        const TextView part = name.substr(0, end);
        if (part.empty() || part == "." || part == "..") {
            return true;
        }
        if (end == name.size()) {
            return false;
        }
        name.remove_prefix(end + 1);
    }
}

bool IsName(TextView name) {
    constexpr TextView kNever = ":*?\"<>|";
    return name.size() <= kLongestName && !LeadsOut(name) && std::ranges::all_of(name, [&](char c) {
               return static_cast<unsigned char>(c) >= ' ' && kNever.find(c) == TextView::npos;
           });
}

}  // namespace

ScriptFinder::ScriptFinder(Files& disk, std::vector<SearchPlace> places, const ExecRules& rules,
                           std::vector<GivenScript> given)
    : disk_(disk), places_(std::move(places)), rules_(rules), given_(std::move(given)) {}

std::optional<FoundScript> ScriptFinder::Find(TextView name, Lookup where, std::optional<std::size_t> level) {
    const Text asItIs = WithSlashes(name);
    if (!IsName(asItIs)) {
        return std::nullopt;
    }
    auto found = FindAsItIs(asItIs, where, level);
    const bool adds = rules_.Ending == ExecEnding::WhenMissing ||
                      (rules_.Ending == ExecEnding::WithoutPoint && asItIs.find('.') == Text::npos);
    return found || !adds ? std::move(found) : FindAsItIs(Join(asItIs, ".cfg"), where, level);
}

std::optional<FoundScript> ScriptFinder::FindAsItIs(TextView name, Lookup where, std::optional<std::size_t> level) {
    for (std::size_t place = 0; place < places_.size(); ++place) {
        const bool isLoose = places_[place].Archive.empty();
        if ((level && places_[place].Level != *level) || where == (isLoose ? Lookup::Archives : Lookup::LooseFiles)) {
            continue;
        }
        auto found = isLoose ? FindLoose(places_[place].Directory, name) : FindPacked(place, name);
        if (found) {
            found->Place = place;
            return found;
        }
    }
    return std::nullopt;
}

std::optional<FoundScript> ScriptFinder::FindLoose(TextView directory, TextView name) {
    FoundScript found;
    found.Path = PathBelow(directory, name);
    std::ranges::replace(found.Path, '/', '\\');
    const auto given =
        std::ranges::find_if(given_, [&](const GivenScript& each) { return SameText(each.Path, found.Path); });
    if (given != given_.end()) {
        found.Content = given->Content;
        return found;
    }
    if (!disk_.FileExists(found.Path)) {
        return std::nullopt;
    }
    const auto file = disk_.Open(found.Path);
    found.IsUnread = !file.Ok() || file.Value->Size() > kLargestRunScript;
    if (!found.IsUnread) {
        auto read = file.Value->Read(0, kLargestRunScript);
        found.IsUnread = !read.Ok();
        found.Content = std::move(read.Value);
    }
    return found;
}

Text ScriptFinder::KeyOf(TextView name) const {
    return rules_.ExactNames ? Text(name) : LowerCase(name);
}

ScriptFinder::Archive& ScriptFinder::Opened(std::size_t place) {
    const auto [archive, isNew] = archives_.try_emplace(place);
    if (!isNew) {
        return archive->second;
    }
    const Text path = PathBelow(places_[place].Directory, places_[place].Archive);
    auto file = disk_.Open(path);
    auto entries = file.Ok() ? ReadArchiveEntries(*file.Value) : std::nullopt;
    if (!entries || keptNames_ + entries->size() > kMostKeptNames) {
        unread_.push_back(path);
        return archive->second;
    }
    keptNames_ += entries->size();
    archive->second.File = std::move(file.Value);
    for (ArchiveEntry& entry : *entries) {
        archive->second.Entries.try_emplace(KeyOf(entry.Name), std::move(entry));
    }
    return archive->second;
}

std::optional<FoundScript> ScriptFinder::FindPacked(std::size_t place, TextView name) {
    Archive& archive = Opened(place);
    const auto entry = archive.Entries.find(KeyOf(name));
    if (entry == archive.Entries.end()) {
        return std::nullopt;
    }
    auto content = ReadArchiveEntry(*archive.File, entry->second, kLargestRunScript);
    FoundScript found;
    found.Path = PathBelow(places_[place].Directory, places_[place].Archive);
    found.Inner = entry->second.Name;
    found.IsUnread = !content;
    found.Content = std::move(content).value_or(Text());
    return found;
}

}  // namespace lv
