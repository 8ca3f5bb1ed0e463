#include "games/trees/game_tree.h"

#include <algorithm>

#include "foundation/field_strings.h"

namespace lv {

namespace {

using Entries = std::vector<DirectoryEntry>;

bool Fits(TextView name, TextView mark) {
    if (mark.starts_with('*')) {
        const TextView end = mark.substr(1);
        return name.size() > end.size() && SameText(name.substr(name.size() - end.size()), end);
    }
    if (mark.ends_with('*')) {
        return StartsWithText(name, mark.substr(0, mark.size() - 1));
    }
    return SameText(name, mark);
}

bool IsFileLike(const DirectoryEntry& entry, const FileMarks& marks) {
    const auto fits = [&](TextView mark) { return !mark.empty() && Fits(entry.Name, mark); };
    return !entry.IsDirectory && !entry.IsDevice && std::ranges::any_of(marks, fits);
}

bool HasFileLike(const Entries& entries, const FileMarks& marks) {
    return std::ranges::any_of(entries, [&](const DirectoryEntry& entry) { return IsFileLike(entry, marks); });
}

// Those called so, the one in lower case first: engines that heed letter case find that alone.
std::vector<Text> DirectoriesCalled(const Entries& entries, TextView name) {
    std::vector<Text> found;
    for (const DirectoryEntry& entry : entries) {
        if (entry.IsDirectory && SameText(entry.Name, name)) {
            found.push_back(entry.Name);
        }
    }
    std::ranges::sort(found, [](const Text& a, const Text& b) { return a > b; });
    return found;
}

FileMarks OrArchives(const FileMarks& marks, const GameFacts& game) {
    return marks.front().empty() ? FileMarks{game.Archives} : marks;
}

bool IsLower(TextView name) {
    return LowerCase(name) == name;
}

bool AreArchivesLower(const Entries& within, const FileMarks& archives) {
    return std::ranges::all_of(
        within, [&](const DirectoryEntry& entry) { return !IsFileLike(entry, archives) || IsLower(entry.Name); });
}

bool IsFull(const DataMarks& data, const Entries& beside, const Entries& within) {
    return data.FullWithin.front().empty() || HasFileLike(within, data.FullWithin) ||
           HasFileLike(beside, data.FullBeside);
}

std::vector<Text> MissionPacksIn(Files& files, TextView directory, const Entries& entries, const GameFacts& game) {
    const FileMarks inPack = OrArchives(game.Data.InPack, game);
    std::vector<Text> packs;
    for (const TextView pack : game.Data.MissionPacks) {
        const auto names = pack.empty() ? std::vector<Text>() : DirectoriesCalled(entries, pack);
        const auto hasArchive = [&](const Text& name) {
            return HasFileLike(files.List(PathBelow(directory, name)).Value, inPack);
        };
        if (const auto found = std::ranges::find_if(names, hasArchive); found != names.end()) {
            packs.push_back(*found);
        }
    }
    return packs;
}

std::optional<GameTree> TreeOf(Files& files, TextView directory, const Entries& entries, const GameFacts& game) {
    const DataMarks& data = game.Data;
    if (!data.Beside.empty() && DirectoriesCalled(entries, data.Beside).empty()) {
        return std::nullopt;
    }
    const FileMarks marks = OrArchives(data.Within, game);
    for (const Text& base :
         DirectoriesCalled(entries, data.Directory.empty() ? BaseDirectoryOf(game) : Text(data.Directory))) {
        const Entries within = files.List(PathBelow(directory, base)).Value;
        if (!HasFileLike(within, marks) || HasFileLike(within, {data.NotThere})) {
            continue;
        }
        return GameTree{.GameKind = game.GameKind,
                        .Directory = Text(directory),
                        .BaseGameDir = base,
                        .IsFull = IsFull(data, entries, within),
                        .IsSpelledForToday = data.AnyCase || (IsLower(base) && AreArchivesLower(within, marks)),
                        .MissionPacks = MissionPacksIn(files, directory, entries, game)};
    }
    return std::nullopt;
}

}  // namespace

std::optional<GameTree> TreeIn(Files& files, TextView directory, const Entries& entries,
                               std::span<const GameFacts> games) {
    for (const GameFacts& game : games) {
        if (auto tree = TreeOf(files, directory, entries, game)) {
            return tree;
        }
    }
    return std::nullopt;
}

std::optional<GameTree> TreeIn(Files& files, TextView directory) {
    return TreeIn(files, directory, files.List(directory).Value);
}

Text ProgramDirectoryOf(const GameTree& tree) {
    return tree.GameKind == Game::Unreal ? PathBelow(tree.Directory, tree.BaseGameDir) : tree.Directory;
}

}  // namespace lv
