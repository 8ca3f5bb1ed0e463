#include "console/files/search_path.h"

#include <algorithm>

#include "catalogs/wildcard.h"
#include "foundation/field_strings.h"
#include "games/games.h"

namespace lv {

namespace {

std::vector<Text> Parts(TextView list) {
    std::vector<Text> parts;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(';'), list.size());
        parts.emplace_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return parts;
}

Text Numbered(TextView pattern, std::size_t number) {
    const std::size_t sign = pattern.find('%');
    return Join(pattern.substr(0, sign), std::to_string(number), pattern.substr(sign + 1));
}

/// As the directory spells it; empty without one.
Text TakeName(std::vector<Text>& names, TextView wanted) {
    const auto name = std::ranges::find_if(names, [&](const Text& each) { return SameText(each, wanted); });
    if (name == names.end()) {
        return {};
    }
    Text taken = std::move(*name);
    names.erase(name);
    return taken;
}

std::vector<Text> TakeNumbered(std::vector<Text>& names, const ExecRules& rules) {
    constexpr std::size_t kNumbers = 10;
    std::vector<Text> archives;
    const bool untilGap = rules.Numbers == Numbering::UntilGap;
    for (std::size_t i = 0; rules.Numbers != Numbering::None && (untilGap || i < kNumbers); ++i) {
        Text name = TakeName(names, Numbered(rules.NumberedArchive, i));
        if (!name.empty()) {
            archives.push_back(std::move(name));
        } else if (untilGap) {
            break;
        }
    }
    return archives;
}

/// The first in the game's order is the last.
std::vector<Text> ArchivesOf(Files& disk, TextView directory, const ExecRules& rules) {
    std::vector<Text> names = ListFiles(disk, directory, "*");
    std::ranges::sort(names, {}, [](const Text& name) { return LowerCase(name); });
    std::vector<Text> archives = TakeNumbered(names, rules);
    for (const Text& pattern : Parts(rules.MoreArchives)) {
        std::ranges::copy_if(names, std::back_inserter(archives),
                             [&](const Text& name) { return MatchesWildcard(name, pattern); });
    }
    if (archives.size() > kMostSearchedArchives) {
        archives.erase(archives.begin(), archives.end() - static_cast<std::ptrdiff_t>(kMostSearchedArchives));
    }
    return archives;
}

void AddDirectory(Files& disk, const Text& directory, std::size_t level, const ExecRules& rules,
                  std::vector<SearchPlace>& places) {
    if (!disk.DirectoryExists(directory)) {
        return;
    }
    if (rules.LooseFirst) {
        places.push_back({directory, {}, level});
    }
    const std::vector<Text> archives = ArchivesOf(disk, directory, rules);
    for (auto archive = archives.rbegin(); archive != archives.rend(); ++archive) {
        places.push_back({directory, *archive, level});
    }
    if (!rules.LooseFirst) {
        places.push_back({directory, {}, level});
    }
}

/// Those that hold the game's directories, the first to be searched ahead.
std::vector<Text> RootsOf(const PlayedGame& game) {
    std::vector<Text> roots;
    const TextView own = FilesOfEngine(game.Engine).UserDirectory;
    if (!own.empty() && !game.UserHome.empty()) {
        const std::size_t sign = std::min(own.find('%'), own.size());
        const bool names = sign < own.size();
        roots.push_back(Join(game.UserHome, own.substr(0, sign), names ? LowerCase(FactsOf(game.GameKind).Name) : ""));
    }
    roots.push_back(game.Directory);
    return roots;
}

}  // namespace

std::vector<Text> GameDirectories(const PlayedGame& game) {
    std::vector<Text> names;
    if (!game.Modification.empty()) {
        names.push_back(game.Modification);
    }
    const auto add = [&](const Text& name) {
        if (std::ranges::none_of(names, [&](const Text& each) { return SameText(each, name); })) {
            names.push_back(name);
        }
    };
    const std::vector<Text> more = Parts(ExecRulesOf(game.Of).MoreBases);
    std::for_each(more.rbegin(), more.rend(), add);
    add(game.Base.empty() ? BaseDirectoryOf(FactsOf(game.GameKind)) : game.Base);
    return names;
}

std::vector<SearchPlace> SearchPath(Files& disk, const PlayedGame& game) {
    const ExecRules& rules = ExecRulesOf(game.Of);
    std::vector<SearchPlace> places;
    if (game.Of == Console::Unreal) {
        AddDirectory(disk, game.Directory, 0, rules, places);
        return places;
    }
    const TextView ownArchive = FilesOfEngine(game.Engine).OwnArchive;
    const std::vector<Text> directories = GameDirectories(game);
    for (std::size_t level = 0; level < directories.size(); ++level) {
        for (const Text& root : RootsOf(game)) {
            const bool isBase = level + 1 == directories.size() && root == game.Directory;
            if (isBase && !ownArchive.empty() && disk.FileExists(PathBelow(root, ownArchive))) {
                places.push_back({root, Text(ownArchive), level});
            }
            AddDirectory(disk, PathBelow(root, directories[level]), level, rules, places);
        }
    }
    return places;
}

}  // namespace lv
